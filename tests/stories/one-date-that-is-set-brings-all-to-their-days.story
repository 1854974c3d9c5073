One date that is set brings all to their days

A length that is measured sets no date.

{"zone":"Europe/Berlin"}
{"open":"$DATA/../../resources/samples/twins.nascor"}
{"edit":["bpdField","84"]}
{"state":true}
=~ {"document":{"eddISO":"2027-03-04T11:00:00","examinations":[{"examDateISO":"2026-09-17T12:00:00"},"..."]}}

A date that is typed brings the others with it, the EDD and those of examinations that are not on show.

{"edit":["examDateField","1/18/27"]}
{"state":true}
=~ {"document":{"eddISO":"2027-03-04T00:00:00","examinations":[{"examDateISO":"2026-09-17T00:00:00"},{"examDateISO":"2026-10-15T00:00:00"},{"examDateISO":"2026-11-13T00:00:00"},{"examDateISO":"2026-12-10T00:00:00"},{"examDateISO":"2026-12-31T00:00:00"},{"examDateISO":"2027-01-18T00:00:00"}]}}
{"do":["menstrualAgeStringForRecord",0]}
=> {"result":"16w 0d"}

So does a dialog: 28 May and 280 days are 4 March.

{"close":"discard"}
{"open":"$DATA/../../resources/samples/twins.nascor"}
{"answer":["Modify"]}
{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowLMP","5/28/26"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"document":{"eddISO":"2027-03-04T00:00:00","examinations":[{"examDateISO":"2026-09-17T00:00:00"},{"examDateISO":"2026-10-15T00:00:00"},{"examDateISO":"2026-11-13T00:00:00"},{"examDateISO":"2026-12-10T00:00:00"},{"examDateISO":"2026-12-31T00:00:00"},{"examDateISO":"2027-01-17T00:00:00"}]}}

And so does an examination that is added: it is dated today.

{"close":"discard"}
{"open":"$DATA/../../resources/samples/twins.nascor"}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"currentExam":3,"document":{"eddISO":"2027-03-04T00:00:00","examinations":[{"examDateISO":"2026-09-17T00:00:00"},{"examDateISO":"2026-10-15T00:00:00"},{"examDateISO":"2026-11-13T00:00:00"},{"examDateISO":"2026-11-21T00:00:00"},{"examDateISO":"2026-12-10T00:00:00"},{"examDateISO":"2026-12-31T00:00:00"},{"examDateISO":"2027-01-17T00:00:00"}]}}

A script writes the moment that it gives. It stays, and the other dates with it, until a date is set here.

{"script":["set","edd","2027-03-05T09:30:00+01:00"]}
{"choose":1}
{"do":["nextExamination"]}
{"edit":["bpdField","70"]}
{"state":true}
=~ {"fields":{"birthDateField":"3/5/27"},"document":{"eddISO":"2027-03-05T09:30:00","examinations":[{"examDateISO":"2026-09-17T00:00:00"},"..."]}}
{"edit":["examDateField","12/11/26"]}
{"state":true}
=~ {"document":{"eddISO":"2027-03-05T00:00:00"}}
