Days stay days in the zone Australia/Lord_Howe

Twenty weeks between an examination and the EDD are twenty weeks, whatever the clocks do in between; leaving fields, saving and
opening again move no date.

{"zone":"Australia/Lord_Howe"}
{"new":true}
{"edit":["birthDateField","7/15/27"]}
{"edit":["examDateField","2/25/27"]}
{"edit":["bpdField","47.4"]}
{"do":["updateArrayOrder"]}
{"state":true}
=~ {"fields":{"birthDateField":"7/15/27","examDateField":"2/25/27","ageField":"20w 0d"},"document":{"eddISO":"2027-07-15T00:00:00","examinations":[{"examDateISO":"2027-02-25T00:00:00"}]}}
{"do":["addExaminationAction"]}
{"edit":["examDateField","10/4/26"]}
{"state":true}
=~ {"currentExam":0,"fields":{"examDateField":"10/4/26"},"document":{"examinations":[{"examDateISO":"2026-10-04T00:00:00"},{"examDateISO":"2027-02-25T00:00:00"}]}}
{"edit":["examDateField","4/4/27"]}
{"state":true}
=~ {"currentExam":1,"fields":{"examDateField":"4/4/27","ageField":"25w 3d"}}

A click finds the examination at 20 weeks.

{"do":["setCurrentRecordFromClick",20]}
{"state":true}
=~ {"currentExam":0,"fields":{"ageField":"20w 0d"}}
{"save":"a.nascor"}
{"close":"discard"}
{"open":"a.nascor"}
{"state":true}
=~ {"currentExam":1,"fields":{"birthDateField":"7/15/27","examDateField":"4/4/27","ageField":"25w 3d"},"document":{"eddISO":"2027-07-15T00:00:00","examinations":[{"examDateISO":"2027-02-25T00:00:00"},{"examDateISO":"2027-04-04T00:00:00"}]}}
