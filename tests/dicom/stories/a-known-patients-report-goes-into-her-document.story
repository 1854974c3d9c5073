A known patient's report goes into her document

The window is blank, and the documents folder holds what was found before.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["gravidaField","2"]}
{"edit":["acField","150"]}
{"save":"AB-123 (G2).nascor"}
{"close":"discard"}
{"advance":86400}
{"new":true}
=> {"number":1}
{"answer":["Open"]}
{"import":["$REPORTS/plain.dcm"]}
=~ {"doubt":null}
{"decide":"OK"}
{"state":true}
=~ {"number":2,"edited":true,"currentExam":0,"fields":{"referenceIDField":"AB-123","gravidaField":"2","bpdField":"60.9"},"document":{"examinations":[{"examDateISO":"2026-11-13T00:00:00","measurements":[{"bpd":60.9}]},{"examDateISO":"2026-11-21T00:00:00","measurements":[{"ac":150}]}]},"alerts":[["This patient has a document already.","...","Open","Cancel"]]}

Whoever declines begins a second one.

{"new":true}
{"answer":["Cancel"]}
{"import":["$REPORTS/plain.dcm"]}
=~ {"doubt":null}
{"decide":"OK"}
{"state":true}
=~ {"number":3,"fields":{"referenceIDField":"AB-123","acField":"0.0"}}
