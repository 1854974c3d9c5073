The panel places each length while it is typed

At 20 weeks the Westerway standard has a BPD of 47.414 mm with a deviation of 1.9 mm, an HC of 174.01 and 9.0, an AC of 154.374 and
8.75, an FL of 32.117 and 1.45. Without an EDD there is no age, and nothing to compare with:

{"new":true}
{"edit":["bpdField","50"]}
{"beside":true}
=~ {"beside":{"bpdZ":"-","bpdCentile":"-","hcZ":"-","weightText":"-","ageRemark":"","bpdRemark":""}}
{"edit":["birthDateField","4/10/27"]}
{"beside":true}
=~ {"beside":{"bpdZ":"+1.36","bpdCentile":"91.3","hcZ":"-","hcCentile":"-","bpdRemark":"","ageRemark":""}}

No key waits for the field to be left. What is no number yet has no place, and whether a length is improbable is said when all its
digits are there:

{"type":["hcField","16"]}
{"beside":true}
=~ {"beside":{"hcZ":"-17.56","hcCentile":"<0.1","hcRemark":""}}
{"type":["hcField","165"]}
{"beside":true}
=~ {"beside":{"hcZ":"-1.00","hcCentile":"15.8","hcRemark":"","weightText":"-"}}
A number that the field will refuse counts for nothing:

{"type":["hcField","16500"]}
{"beside":true}
=~ {"beside":{"hcZ":"-","hcCentile":"-","hcRemark":"","weightText":"-"}}
{"type":["hcField","165x"]}
{"beside":true}
=~ {"beside":{"hcZ":"-","hcCentile":"-","hcRemark":""}}
{"revert":"hcField"}
{"beside":true}
=~ {"beside":{"hcZ":"-","hcCentile":"-"}}
{"edit":["hcField","165"]}

The weight comes as soon as its formula has its lengths: 10^(1.326 - 0.0000326 x 154.4 x 30 + 0.00107 x 165 + 0.00438 x 154.4 +
0.0158 x 30) is 317.55 g.

{"edit":["acField","154.4"]}
{"type":["flField","30"]}
{"beside":true}
=~ {"beside":{"acZ":"+0.00","acCentile":"50.1","flZ":"-1.46","flCentile":"7.2","weightText":"318 g"}}
{"type":["flField","300"]}
{"beside":true}
=~ {"beside":{"flZ":"-","flCentile":"-","weightText":"-"}}

Another formula is another weight at once, 10^(1.304 + 0.005281 x 154.4 + 0.01938 x 30 - 0.00004 x 154.4 x 30) g; under another standard the FL of
20 weeks is 32.23 mm with a deviation of 2.4 mm.

{"edit":["flField","30"]}
{"do":["doSetEFWStandard",1]}
{"beside":true}
=~ {"beside":{"weightText":"328 g"}}
{"do":["doSetStandard",3]}
{"beside":true}
=~ {"beside":{"flZ":"-0.93"}}

Where there is no standard there is no place:

{"do":["doSetStandard",9]}
{"beside":true}
=~ {"beside":{"bpdZ":"-","bpdCentile":"-","flZ":"-","weightText":"328 g"}}
