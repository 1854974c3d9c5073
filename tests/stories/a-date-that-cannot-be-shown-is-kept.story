A date that cannot be shown is kept

A damaged file holds dates beyond any calendar. They have no text, so the fields are empty; an empty field that nobody typed into
does not erase them.

{"open":"$DATA/dates-beyond-the-calendar.nascor"}
{"state":true}
=~ {"fields":{"birthDateField":"","examDateField":"","adjustEDDField":"","adjustDeliverOnField":""},"document":{"edd":1e300,"eddISO":null,"examinations":[{"examDate":"inf","examDateISO":null}]}}
{"edit":["bpdField","42"]}
{"edit":["notesField","x"]}
{"do":["updateArrayOrder"]}
{"save":"b.nascor"}
{"state":true}
=~ {"document":{"edd":1e300,"examinations":[{"note":"x","examDate":"inf","measurements":[{"bpd":42}]}]}}

Who types there means it.

{"edit":["examDateField",""]}
{"answer":["Modify"]}
{"edit":["birthDateField","4/10/27"]}
{"state":true}
=~ {"document":{"eddISO":"2027-04-10T00:00:00","examinations":[{"examDate":null}]}}
