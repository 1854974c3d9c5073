A length keeps all its digits

The window shows one digit after the point. A caliper gives more, and what was typed is kept, however often the fields are read
back: 45.26 must not become 45.3 because somebody left another field.

{"new":true}
{"edit":["bpdField","45.26"]}
{"state":true}
=~ {"fields":{"bpdField":"45.3"},"document":{"examinations":[{"measurements":[{"bpd":45.26}]}]}}
{"edit":["hcField","170.04"]}
{"edit":["examDateField","11/20/26"]}
{"visit":"bpdField"}
{"do":["addFetus"]}
{"choose":0}
{"do":["addExaminationAction"]}
{"do":["previousExamination"]}
{"state":true}
=~ {"fields":{"bpdField":"45.3","hcField":"170.0"},"document":{"examinations":[{"measurements":[{"bpd":45.26,"hc":170.04},{"bpd":0}]},{}]}}

Only typing replaces it: with what is typed.

{"edit":["bpdField","45.3"]}
{"state":true}
=~ {"fields":{"bpdField":"45.3"},"document":{"examinations":[{"measurements":[{"bpd":45.3,"hc":170.04},{}]},{}]}}
