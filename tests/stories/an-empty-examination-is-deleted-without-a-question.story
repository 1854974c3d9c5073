An empty examination is deleted without a question

It was added by a slip: nothing is lost with it.

{"new":true}
{"edit":["bpdField","31"]}
{"do":["addExaminationAction"]}
{"state":true}
{"do":["deleteExaminationAction"]}
{"state":true}
=~ {"alerts":[],"currentExam":0,"fields":{"bpdField":"31.0"},"document":{"examinations":[{"measurements":[{"bpd":31}]}]}}

A note alone is something, and so is a number that is still in the fields.

{"do":["addExaminationAction"]}
{"edit":["notesField","x"]}
{"do":["deleteExaminationAction"]}
{"state":true}
=~ {"alerts":[["Are you sure you want to remove this examination?","","Remove","Cancel"]],"document":{"examinations":[{},{"note":"x"}]}}
{"edit":["notesField",""]}
{"do":["addFetus"]}
{"edit":["flField","9"]}
{"choose":0}
{"do":["deleteExaminationAction"]}
{"state":true}
=~ {"alerts":[["Are you sure you want to remove this examination?","","Remove","Cancel"]],"document":{"examinations":[{},{}]}}
