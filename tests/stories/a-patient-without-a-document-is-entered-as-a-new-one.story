A patient without a document is entered as a new one

With ID and gravidity known, the documents folder is searched. There is nothing for this patient, so nothing is asked, and what
was typed is stored at once: the gravidity too, which was only just left.

{"new":true}
{"edit":["referenceIDField","AB/123"]}
{"state":true}
=~ {"blank":true,"lookUpRequired":false}
{"edit":["gravidaField","2"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"number":0,"blank":false,"lookUpRequired":false,"edited":true,"alerts":[],"fields":{"gravidaField":"2","headerSummaryField":"AB-123 (G2)"},"document":{"maternalIDString":"AB/123","gravida":2}}
