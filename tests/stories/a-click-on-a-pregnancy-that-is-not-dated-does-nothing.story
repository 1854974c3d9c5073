A click on a pregnancy that is not dated does nothing

Without an EDD no age has a date. Not even the fields are stored.

{"new":true}
{"do":["addExaminationAction"]}
{"edit":["notesField","typed and not left"]}
{"state":true}
=~ {"currentExam":1,"displays":4}
{"do":["setCurrentRecordFromClick",20]}
{"state":true}
=~ {"currentExam":1,"displays":4,"fields":{"notesField":"typed and not left"},"document":{"examinations":[{},{"note":""}]}}
