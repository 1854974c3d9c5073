What is not a number is refused like one that is out of range

{"new":true}
{"edit":["bpdField","50"]}
{"edit":["bpdField","forty"]}
=> {"began":true,"ended":false}
{"edit":["bpdField","45 mm"]}
=> {"began":true,"ended":false}
{"edit":["bpdField","1e2"]}
=> {"began":true,"ended":false}
{"edit":["bpdField","nan"]}
=> {"began":true,"ended":false}
{"edit":["bpdField","4.5.6"]}
=> {"began":true,"ended":false}
{"state":true}
=~ {"fields":{"bpdField":"50.0"},"document":{"examinations":[{"measurements":[{"bpd":50}]}]}}

Blanks around a number, a plus sign, and either decimal sign do no harm.

{"edit":["bpdField"," +45,25 "]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"fields":{"bpdField":"45.3"},"document":{"examinations":[{"measurements":[{"bpd":45.25}]}]}}

A field of whole numbers takes nothing else.

{"edit":["gravidaField","2.0"]}
=> {"began":true,"ended":false}
{"edit":["gravidaField","two"]}
=> {"began":true,"ended":false}
{"edit":["gravidaField","2"]}
=> {"began":true,"ended":true}

An emptied length is one that was not measured.

{"edit":["bpdField",""]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"fields":{"bpdField":"0.0"},"document":{"examinations":[{"measurements":[{"bpd":0}]}]}}
