Another twin's numbers do not leak after a deletion

Twin 1 measures 50, twin 2 measures 60. Twin 1 is removed. The fields go on showing 50.0, the numbers of a fetus that is gone:
were they stored, as fields are at every step, the remaining fetus would have them from now on.

{"new":true}
{"edit":["referenceIDField","T"]}
{"edit":["gravidaField","1"]}
{"edit":["bpdField","50"]}
{"edit":["hcField","150"]}
{"edit":["acField","140"]}
{"edit":["flField","30"]}
{"do":["addFetus"]}
{"edit":["bpdField","60"]}
{"edit":["hcField","160"]}
{"edit":["acField","145"]}
{"edit":["flField","35"]}
{"choose":0}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"currentFetus":0,"fields":{"bpdField":"50.0","hcField":"150.0","acField":"140.0","flField":"30.0"},"document":{"examinations":[{"measurements":[{"bpd":60,"hc":160,"ac":145,"fl":35}]}]}}

The fields are stored: by a stepper, by another examination, by any field that is left. Nothing of the removed twin is.

{"do":["synchronizeToData"]}
{"state":true}
=~ {"fields":{"bpdField":"50.0"},"document":{"examinations":[{"measurements":[{"bpd":60,"hc":160,"ac":145,"fl":35}]}]}}
{"edit":["notesField","Twin 1 was a shadow."]}
{"step":-2}
{"save":"t.nascor"}
{"state":true}
=~ {"fields":{"bpdField":"50.0"},"document":{"examinations":[{"note":"Twin 1 was a shadow.","measurements":[{"bpd":60,"hc":160,"ac":145,"fl":35}]}]}}
{"edit":["referenceIDField","TT"]}
{"state":true}
=~ {"fields":{"referenceIDField":"TT","bpdField":"60.0","hcField":"160.0","acField":"145.0","flField":"35.0"},"document":{"maternalIDString":"TT","examinations":[{"measurements":[{"bpd":60,"hc":160,"ac":145,"fl":35}]}]}}
