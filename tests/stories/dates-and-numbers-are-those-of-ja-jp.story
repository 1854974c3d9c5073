Dates and numbers are those of the locale ja_JP

The EDD is 3 April 2027. What the window shows reads back to the same day, so nothing moves while fields are left.

{"locale":"ja_JP"}
=> {}
{"new":true}
{"edit":["birthDateField","2027/4/3"]}
{"state":true}
=~ {"fields":{"birthDateField":"2027/04/03","examDateField":"2026/11/21"},"document":{"eddISO":"2027-04-03T00:00:00"}}
{"edit":["bpdField","47.4"]}
{"edit":["hcField","175,2"]}
{"state":true}
=~ {"fields":{"birthDateField":"2027/04/03","examDateField":"2026/11/21","bpdField":"47.4","hcField":"175.2"},"document":{"eddISO":"2027-04-03T00:00:00","examinations":[{"examDateISO":"2026-11-21T00:00:00","measurements":[{"bpd":47.4,"hc":175.2}]}]}}

The ISO form is read here too, and a saved document shows the same day again.

{"answer":["Modify"]}
{"edit":["birthDateField","2027-04-03"]}
{"save":"a.nascor"}
{"close":"discard"}
{"open":"a.nascor"}
{"state":true}
=~ {"fields":{"birthDateField":"2027/04/03","examDateField":"2026/11/21","bpdField":"47.4"},"document":{"eddISO":"2027-04-03T00:00:00"}}
