What is typed is on the exported page

A length that is still being typed reaches the records first.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["gravidaField","1"]}
{"edit":["bpdField","48"]}
{"edit":["notesField","cord normal"]}
{"do":["doExport"]}
{"state":true}
=~ {"exports":["..."],"document":{"examinations":[{"note":"cord normal","measurements":[{"bpd":48}]}]}}

A field that refuses its text holds the export back, and the printer too.

{"edit":["bpdField","201"]}
=> {"began":true,"ended":false}
{"do":["doExport"]}
{"do":["autoExport"]}
{"do":["printDocumentWithSettings",false]}
{"state":true}
=~ {"exports":[],"prints":[],"alerts":[],"document":{"examinations":[{"measurements":[{"bpd":48}]}]}}
{"revert":"bpdField"}
{"do":["doExport"]}
{"state":true}
=~ {"exports":["..."]}

A note that is still being typed reaches them before the printer begins, too.

{"edit":["notesField","breech"]}
{"do":["printDocumentWithSettings",false]}
{"state":true}
=~ {"prints":["..."],"document":{"examinations":[{"note":"breech"}]}}
