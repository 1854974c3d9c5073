Reading the records back ends a refusal

While a field refuses its text, something else, a script for example, changes the patient. The window shows the patient as she is
now; the refused text is dropped without a question, and the window can be used again.

{"new":true}
{"edit":["bpdField","50"]}
{"edit":["bpdField","500"]}
=> {"began":true,"ended":false}
{"tab":1}
=> {"refused":"bpdField"}
{"do":["synchronizeFromData"]}
{"state":true}
=~ {"alerts":[],"fields":{"bpdField":"50.0"}}
{"tab":1}
=> {}
{"do":["updateArrayOrder"]}
{"state":true}
=~ {"tab":1,"document":{"examinations":[{"measurements":[{"bpd":50}]}]}}
