A typed note is in the saved file

The cursor is still in the note when the document is saved. The note belongs to it.

{"new":true}
{"edit":["notesField","first"]}
{"state":true}
=~ {"document":{"examinations":[{"note":""}]}}
{"save":"a.nascor"}
{"edit":["notesField","second"]}
{"close":"save"}
=> {"closed":true}
{"open":"a.nascor"}
{"state":true}
=~ {"fields":{"notesField":"second"}}

A note stands with its examination: moving on stores it.

{"do":["addExaminationAction"]}
{"edit":["notesField","third"]}
{"do":["previousExamination"]}
{"state":true}
=~ {"fields":{"notesField":"second"},"document":{"examinations":[{"note":"second"},{"note":"third"}]}}

A note typed before a field refused its text is saved when the window is closed; the refused text is dropped.

{"edit":["notesField","fourth"]}
{"edit":["bpdField","999"]}
=> {"began":true,"ended":false}
{"close":"cancel"}
=> {"closed":false}
{"close":"save"}
=> {"closed":true}
{"open":"a.nascor"}
{"state":true}
=~ {"currentExam":1,"document":{"examinations":[{"note":"fourth","measurements":[{"bpd":0}]},{"note":"third"}]}}
