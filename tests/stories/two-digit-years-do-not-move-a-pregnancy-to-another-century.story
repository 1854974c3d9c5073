Two-digit years do not move a pregnancy to another century

The short date of many countries has two digits for the year. Every time a field is left the window reads back what it shows:
were 27 read as 1927, leaving any field would move the pregnancy by a hundred years.

{"new":true}
{"edit":["birthDateField","7/1/27"]}
{"state":true}
=~ {"document":{"eddISO":"2027-07-01T00:00:00"}}
{"edit":["bpdField","20"]}
{"edit":["notesField","x"]}
{"do":["updateArrayOrder"]}
{"state":true}
=~ {"fields":{"birthDateField":"7/1/27","examDateField":"11/21/26","ageField":"8w 2d"},"document":{"eddISO":"2027-07-01T00:00:00","examinations":[{"examDateISO":"2026-11-21T00:00:00"}]}}

Two digits are years from 1950 to 2049.

{"edit":["examDateField","1/2/49"]}
{"state":true}
=~ {"fields":{"examDateField":"1/2/49"},"document":{"examinations":[{"examDateISO":"2049-01-02T00:00:00"}]}}
{"edit":["examDateField","1/2/50"]}
{"state":true}
=~ {"fields":{"examDateField":"1/2/50"},"document":{"examinations":[{"examDateISO":"1950-01-02T00:00:00"}]}}

Four digits are taken as typed, and shown where two would be read as another year.

{"edit":["examDateField","1/2/1949"]}
{"state":true}
=~ {"fields":{"examDateField":"1/2/1949"},"document":{"examinations":[{"examDateISO":"1949-01-02T00:00:00"}]}}
{"edit":["examDateField","1/2/2050"]}
{"edit":["bpdField","21"]}
{"state":true}
=~ {"fields":{"examDateField":"1/2/2050"},"document":{"examinations":[{"examDateISO":"2050-01-02T00:00:00"}]}}

29 February of the leap year 2000 is a day; that of 2100 is none.

{"edit":["examDateField","2/29/00"]}
{"state":true}
=~ {"fields":{"examDateField":"2/29/00"},"document":{"examinations":[{"examDateISO":"2000-02-29T00:00:00"}]}}
{"edit":["examDateField","2/29/2100"]}
{"state":true}
=~ {"fields":{"examDateField":""}}
