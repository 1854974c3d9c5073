A refusing field holds back the actions and the menus

{"new":true}
{"do":["addExaminationAction"]}
{"edit":["bpdField","480"]}
=> {"began":true,"ended":false}
{"do":["addExaminationAction"]}
=> {"refused":"bpdField"}
{"do":["deleteExaminationAction"]}
=> {"refused":"bpdField"}
{"do":["previousExamination"]}
=> {"refused":"bpdField"}
{"do":["nextExamination"]}
=> {"refused":"bpdField"}
{"app":["doSetStandard",2]}
=> {"refused":"bpdField"}
{"app":["toggleShowAll"]}
=> {"refused":"bpdField"}
{"state":true}
=~ {"currentExam":1,"document":{"standard":0},"defaults":{"Show All":"YES"}}
{"revert":"bpdField"}

Otherwise the note goes to its examination first.

{"edit":["notesField","breech"]}
{"app":["doSetStandard",2]}
=> {"result":null}
{"state":true}
=~ {"document":{"standard":2,"examinations":[{"note":""},{"note":"breech"}]}}
