What is typed after a deletion belongs to the fetus that is left

The other half: the fields still show the removed twin, but whoever types a number now means the one that is left. It is stored,
and the three fields beside it, which nobody touched, are not.

{"new":true}
{"edit":["bpdField","50"]}
{"edit":["hcField","150"]}
{"do":["addFetus"]}
{"edit":["bpdField","60"]}
{"edit":["hcField","160"]}
{"choose":0}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"edit":["bpdField","61"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"fields":{"bpdField":"61.0","hcField":"160.0"},"document":{"examinations":[{"measurements":[{"bpd":61,"hc":160,"ac":0,"fl":0}]}]}}

Typing the very number that the field still showed counts too.

{"do":["addFetus"]}
{"edit":["bpdField","70"]}
{"choose":0}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"edit":["bpdField","61"]}
{"state":true}
=~ {"fields":{"bpdField":"61.0","hcField":"0.0"},"document":{"examinations":[{"measurements":[{"bpd":61,"hc":0,"ac":0,"fl":0}]}]}}
