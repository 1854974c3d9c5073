A date is typed in any usual way

The order of day and month is the locale's; the separators, blanks and leading zeros are free, and the ISO form is read
everywhere.

{"new":true}
{"edit":["examDateField","03-04-2027"]}
{"state":true}
=~ {"fields":{"examDateField":"3/4/27"},"document":{"examinations":[{"examDateISO":"2027-03-04T00:00:00"}]}}
{"edit":["examDateField"," 3.4.27 "]}
{"state":true}
=~ {"document":{"examinations":[{"examDateISO":"2027-03-04T00:00:00"}]}}
{"edit":["examDateField","2027-03-05"]}
{"state":true}
=~ {"fields":{"examDateField":"3/5/27"},"document":{"examinations":[{"examDateISO":"2027-03-05T00:00:00"}]}}

Three numbers make a date; more or fewer do not.

{"edit":["examDateField","3/4"]}
{"state":true}
=~ {"fields":{"examDateField":""}}
{"edit":["examDateField","3/4/27/1"]}
{"state":true}
=~ {"fields":{"examDateField":""}}
