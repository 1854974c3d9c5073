A gravidity without a reference ID looks nobody up

There is no name to look for. The look-up stays due until the next field is left, which ends it; when the reference ID follows
the gravidity no look-up comes any more. The manual says to begin with the reference ID.

{"new":true}
{"edit":["gravidaField","1"]}
{"state":true}
=~ {"blank":true,"lookUpRequired":true,"alerts":[],"document":{"gravida":1}}
{"edit":["referenceIDField","A"]}
{"state":true}
=~ {"blank":true,"lookUpRequired":false,"alerts":[],"fields":{"headerSummaryField":"A (G1)"},"document":{"maternalIDString":"A","gravida":1}}
