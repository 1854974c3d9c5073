A file that holds nothing is not overwritten

Such a file is well-formed and says that it holds no patient. It opens as a blank document without a file of its own: saving asks
where to.

{"open":"$DATA/nil-root.nascor"}
=> {"number":0}
{"state":true}
=~ {"blank":true,"edited":false,"lookUpRequired":true,"document":{"maternalIDString":"","examinations":[{"examDateISO":"2026-11-21T10:00:00"}]}}
{"save":true}
=~ {"error":"..."}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"close":"save"}
=> {"closed":true}

It went into a new file under the patient's name; the old one holds nothing still.

{"open":"A (G1).nascor"}
=> {"number":1}
{"open":"$DATA/nil-root.nascor"}
=> {"number":2}
{"state":true}
=~ {"blank":true}
