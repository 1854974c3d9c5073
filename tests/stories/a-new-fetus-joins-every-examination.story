A new fetus joins every examination

The second heartbeat is found at the third scan. The twin gets a place in all examinations, not yet measured, and comes on show
with the BPD selected for typing. What was typed for the first stays with the first.

{"new":true}
{"edit":["examDateField","9/1/26"]}
{"edit":["bpdField","30"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","10/1/26"]}
{"edit":["bpdField","40"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","11/1/26"]}
{"edit":["bpdField","50"]}
{"do":["addFetus"]}
{"state":true}
=~ {"currentExam":2,"currentFetus":1,"fields":{"bpdField":"0.0"},"document":{"numberOfFetuses":2,"examinations":[{"measurements":[{"bpd":30},{"bpd":0,"hc":0,"ac":0,"fl":0}]},{"measurements":[{"bpd":40},{"bpd":0}]},{"measurements":[{"bpd":50},{"bpd":0}]}]}}
{"edit":["bpdField","49"]}
{"choose":0}
{"state":true}
=~ {"currentFetus":0,"popup":{"selected":0},"fields":{"bpdField":"50.0"},"document":{"examinations":[{},{},{"measurements":[{"bpd":50},{"bpd":49}]}]}}

A new examination has a place for both.

{"do":["addExaminationAction"]}
{"state":true}
=~ {"currentExam":3,"currentFetus":0,"document":{"examinations":[{},{},{},{"measurements":[{"bpd":0},{"bpd":0}]}]}}
