A click shows the examination nearest to an age

Examinations at 20, 22 and 24 weeks. Clicking a chart at an age shows the nearest; exactly between two, the one that stands first.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","11/21/26"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","12/5/26"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","12/19/26"]}
{"state":true}
=~ {"currentExam":2,"fields":{"ageField":"24w 0d"}}
{"do":["setCurrentRecordFromClick",20.4]}
{"state":true}
=~ {"currentExam":0,"fields":{"ageField":"20w 0d"}}
{"do":["setCurrentRecordFromClick",23.0]}
{"state":true}
=~ {"currentExam":1,"fields":{"ageField":"22w 0d"}}
{"do":["setCurrentRecordFromClick",23.01]}
{"state":true}
=~ {"currentExam":2}

What is in the fields is stored before another examination comes on show.

{"edit":["notesField","typed and not left"]}
{"do":["setCurrentRecordFromClick",20]}
{"state":true}
=~ {"currentExam":0,"fields":{"notesField":""},"document":{"examinations":[{},{},{"note":"typed and not left"}]}}

Where none lies within 999999 seconds, which is a little more than eleven days and a half, it is the first examination,
deliberately. 25.6 weeks are 967680 seconds past the last one; 25.7 are 1028160.

{"do":["setCurrentRecordFromClick",25.6]}
{"state":true}
=~ {"currentExam":2}
{"do":["setCurrentRecordFromClick",25.7]}
{"state":true}
=~ {"currentExam":0}

An examination without a date is passed over.

{"edit":["examDateField",""]}
{"do":["setCurrentRecordFromClick",22]}
{"state":true}
=~ {"currentExam":1,"fields":{"ageField":"22w 0d"}}
