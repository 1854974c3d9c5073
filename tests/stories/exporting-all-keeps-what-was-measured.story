Exporting all keeps what was measured

Turning to each fetus stores the one before.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["gravidaField","2"]}
{"do":["addFetus"]}
{"edit":["bpdField","48"]}
{"choose":0}
{"edit":["bpdField","50"]}
{"do":["autoExport"]}
{"state":true}
=~ {"fields":{"bpdField":"48.0"},"document":{"examinations":[{"measurements":[{"bpd":50},{"bpd":48}]}]}}
