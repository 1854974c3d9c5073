A document from another zone keeps the day that is shown here

A file holds moments, not days. Midnight in Sydney is the morning of the day before in New York: there the document shows the day
before, and keeps that day once a field has been left. It is on the page of known oddities.

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
=~ {"fields":{"birthDateField":"4/9/27","examDateField":"12/23/26"},"document":{"eddISO":"2027-04-09T00:00:00","examinations":[{"examDateISO":"2026-12-23T00:00:00"}]}}
