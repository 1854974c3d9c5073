Typing goes on where something new is empty

A new examination has its date and no length; a new fetus has no length anywhere. So the BPD is next.

{"new":true}
{"focus":true}
=> {"focus":""}
{"do":["addExaminationAction"]}
{"focus":true}
=> {"focus":"bpdField"}
{"edit":["bpdField","50"]}
{"do":["addFetus"]}
{"focus":true}
=> {"focus":"bpdField"}

Nothing else moves it:

{"do":["previousExamination"]}
{"focus":true}
=> {"focus":""}
