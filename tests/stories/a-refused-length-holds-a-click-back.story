A refused length holds a click back

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"do":["addExaminationAction"]}
{"edit":["bpdField","200.1"]}
=> {"began":true,"ended":false}
{"click":[1,314,315,1]}
=> {"refused":"bpdField"}
{"state":true}
=~ {"tab":0,"currentExam":1}
