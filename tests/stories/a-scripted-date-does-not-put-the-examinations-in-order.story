A scripted date does not put the examinations in order

A script that moves the last examination before the first leaves it where it is until the next field is left. Until then "the last"
goes on meaning the same one; afterwards it is another.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","10/24/26"]}
{"edit":["bpdField","34"]}
{"do":["addExaminationAction"]}
{"edit":["bpdField","48"]}
{"script":["set","examDate","2026-09-26"]}
{"script":["get","examDate"]}
=> {"value":"2026-09-26"}
{"state":true}
=~ {"currentExam":1,"fields":{"examDateField":"9/26/26","bpdField":"48.0"},"document":{"examinations":[{"examDateISO":"2026-10-24T00:00:00"},{"examDateISO":"2026-09-26T00:00:00"}]}}
{"edit":["hcField","170"]}
{"state":true}
=~ {"currentExam":0,"fields":{"examDateField":"9/26/26","bpdField":"48.0"},"document":{"examinations":[{"examDateISO":"2026-09-26T00:00:00"},{"examDateISO":"2026-10-24T00:00:00"}]}}
{"script":["get","examDate"]}
=> {"value":"2026-10-24"}
{"script":["get","bpd"]}
=> {"value":34}
