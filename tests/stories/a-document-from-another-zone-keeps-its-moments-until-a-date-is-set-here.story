A document from another zone keeps its moments until a date is set here

A file holds moments, not days. Midnight in Sydney is the morning of the day before in New York: there the document shows the day
before. Looking and measuring leave its dates alone. A date that is set here brings all of them to the days that they show here,
together, so that no age is between a day of Sydney and one of New York. It is on the page of known oddities.

{"zone":"Australia/Sydney"}
{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","12/24/26"]}
{"save":"a.nascor"}
{"close":"discard"}
{"zone":"America/New_York"}
{"open":"a.nascor"}
{"state":true}
=~ {"edited":false,"fields":{"birthDateField":"4/9/27","examDateField":"12/23/26"},"document":{"eddISO":"2027-04-09T10:00:00","examinations":[{"examDateISO":"2026-12-23T08:00:00"}]}}
{"edit":["bpdField","50"]}
{"state":true}
=~ {"edited":true,"document":{"eddISO":"2027-04-09T10:00:00","examinations":[{"examDateISO":"2026-12-23T08:00:00"}]}}
{"edit":["examDateField","12/22/26"]}
{"state":true}
=~ {"fields":{"birthDateField":"4/9/27","examDateField":"12/22/26"},"document":{"eddISO":"2027-04-09T00:00:00","examinations":[{"examDateISO":"2026-12-22T00:00:00"}]}}
