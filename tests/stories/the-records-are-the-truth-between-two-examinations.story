The records are the truth between two examinations

Every step to another examination or fetus goes the same way: what the fields show goes to the records, the place changes, the
fields are read from the records.

{"new":true}
{"edit":["examDateField","10/1/26"]}
{"do":["addFetus"]}
{"do":["addExaminationAction"]}
{"edit":["notesField","second visit"]}
{"choose":0}
{"state":true}
=~ {"currentExam":1,"currentFetus":0,"fields":{"notesField":"second visit"},"document":{"examinations":[{"note":""},{"note":"second visit"}]}}
{"edit":["notesField","second visit, twin 1"]}
{"do":["previousExamination"]}
{"state":true}
=~ {"currentExam":0,"fields":{"notesField":"","examDateField":"10/1/26"},"document":{"examinations":[{"note":""},{"note":"second visit, twin 1"}]}}
{"edit":["notesField","first visit"]}
{"do":["addFetus"]}
{"state":true}
=~ {"currentFetus":2,"document":{"numberOfFetuses":3,"examinations":[{"note":"first visit"},{"note":"second visit, twin 1"}]}}

Reading the records back drops what was typed and not stored.

{"edit":["notesField","gone"]}
{"do":["synchronizeFromData"]}
{"state":true}
=~ {"fields":{"notesField":"first visit"},"document":{"examinations":[{"note":"first visit"},{}]}}
