A script means the last examination, not the one on show

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","10/24/26"]}
{"edit":["bpdField","34"]}
{"do":["addExaminationAction"]}
{"edit":["bpdField","48"]}
{"do":["previousExamination"]}
{"state":true}
=~ {"currentExam":0,"fields":{"examDateField":"10/24/26","bpdField":"34.0"}}
{"script":["get","examDate"]}
=> {"value":"2026-11-21"}
{"script":["get","bpd"]}
=> {"value":48}
{"script":["set","bpd",49]}
{"script":["set","examDate","2026-11-20"]}
{"state":true}
=~ {"currentExam":0,"fields":{"examDateField":"10/24/26","bpdField":"34.0"},"document":{"examinations":[{"measurements":[{"bpd":34}]},{"examDateISO":"2026-11-20T00:00:00","measurements":[{"bpd":49}]}]}}

With twins it is the fetus that is chosen in the window.

{"do":["addFetus"]}
{"script":["set","fl",31]}
{"choose":0}
{"script":["get","fl"]}
=> {"value":0}
{"choose":1}
{"script":["get","fl"]}
=> {"value":31}
