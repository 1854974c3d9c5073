A new examination keeps its day and not its hour

It is dated now, at four in the afternoon; the field shows the day, and the day is what is kept from the first time that the
fields are read. The age is that of the calendar day then: at four in the afternoon one night fewer is left to the EDD than
there are days.

{"advance":21600}
{"new":true}
{"state":true}
=~ {"document":{"examinations":[{"examDateISO":"2026-11-21T16:00:00"}]}}
{"edit":["birthDateField","4/10/27"]}
{"state":true}
=~ {"fields":{"examDateField":"11/21/26","ageField":"20w 0d"},"document":{"examinations":[{"examDateISO":"2026-11-21T00:00:00"}]}}
{"do":["addExamination"]}
{"do":["synchronizeFromData"]}
{"state":true}
=~ {"currentExam":1,"fields":{"examDateField":"11/21/26","ageField":"20w 1d"},"document":{"examinations":[{},{"examDateISO":"2026-11-21T16:00:00"}]}}
{"do":["updateArrayOrder"]}
{"state":true}
=~ {"fields":{"ageField":"20w 0d"},"document":{"examinations":[{},{"examDateISO":"2026-11-21T00:00:00"}]}}
