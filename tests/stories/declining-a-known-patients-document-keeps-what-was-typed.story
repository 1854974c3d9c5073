Declining a known patient's document keeps what was typed

It is another patient with the same ID, or a new pregnancy. The fields are stored as if no document had been found.

{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"save":"A (G1).nascor"}
{"close":"discard"}
{"new":true}
{"edit":["referenceIDField","A"]}
{"answer":["Cancel"]}
{"edit":["gravidaField","2"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"number":1,"edited":true,"blank":false,"lookUpRequired":false,"fields":{"gravidaField":"2","headerSummaryField":"A (G2)"},"document":{"maternalIDString":"A","gravida":2},"alerts":[["This patient has a document already.","...","Open","Cancel"]]}

It is asked once only.

{"answer":["Modify"]}
{"edit":["gravidaField","3"]}
{"state":true}
=~ {"alerts":[["Gravidity is already specified","...","Modify","Cancel"]]}
