Removing a fetus says what goes with it

Beneath the question stands which fetus is on show, and how many of its lengths would be gone: four at each of six examinations.

{"open":"$DATA/../../resources/samples/twins.nascor"}
{"choose":1}
{"do":["deleteFetus"]}
{"additions":true}
=> {"additions":["Twin 2. Lengths that will be removed with it: 24."]}
{"state":true}
=~ {"alerts":[["Are you sure you want to remove this fetus?","","Remove","Cancel"]]}
{"stale":true}
=> {"stale":[]}

The numbers that stay in the fields belong to no fetus, and are shown so until others take their place.

{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"stale":true}
=> {"stale":["bpdField","hcField","acField","flField"]}
{"state":true}
=~ {"fields":{"bpdField":"79.7"}}
{"choose":0}
{"stale":true}
=> {"stale":[]}
{"state":true}
=~ {"fields":{"bpdField":"83.9"}}

Of triplets at five examinations one was not measured whole at one of them.

{"open":"$DATA/../../resources/samples/triplets.nascor"}
{"choose":2}
{"do":["deleteFetus"]}
{"additions":true}
=> {"additions":["Triplet 3 of 3. Lengths that will be removed with it: 18."]}
