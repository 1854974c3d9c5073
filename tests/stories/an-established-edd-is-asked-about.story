An established EDD is asked about before it is changed

Everything is dated by it, so nobody changes it by a slip.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"alerts":[]}
{"edit":["birthDateField","5/10/27"]}
=> {"began":false,"ended":false}
{"state":true}
=~ {"fields":{"birthDateField":"4/10/27","ageField":"20w 0d"},"alerts":[["EDD is already specified","Are you sure you want to modify the established EDD?","Modify","Cancel"]]}
{"answer":["Modify"]}
{"edit":["birthDateField","4/11/27"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"fields":{"birthDateField":"4/11/27","ageField":"19w 6d"},"document":{"eddISO":"2027-04-11T00:00:00"},"alerts":[["EDD is already specified","...","Modify","Cancel"]]}

No other field is asked about, however full it is.

{"edit":["bpdField","50"]}
{"edit":["bpdField","51"]}
{"edit":["examDateField","11/20/26"]}
{"edit":["examDateField","11/21/26"]}
{"edit":["referenceIDField","A"]}
{"edit":["referenceIDField","B"]}
{"state":true}
=~ {"alerts":[]}
