A note that was left stays, whatever a script reads

{"new":true}
{"edit":["notesField","breech"]}
{"visit":"bpdField"}
{"state":true}
=~ {"document":{"examinations":[{"note":"breech"}]}}
{"script":["get","identifier"]}
{"state":true}
=~ {"edited":true,"fields":{"notesField":"breech"},"document":{"examinations":[{"note":"breech"}]}}

A field that refuses its text does not hold the note back.

{"edit":["notesField","head down"]}
{"edit":["bpdField","480"]}
=> {"began":true,"ended":false}
{"visit":"hcField"}
=> {"began":false,"ended":false}
{"state":true}
=~ {"document":{"examinations":[{"note":"head down","measurements":[{"bpd":0}]}]}}
