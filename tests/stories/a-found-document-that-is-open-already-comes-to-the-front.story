A found document that is open already comes to the front

{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"save":"A (G1).nascor"}
{"edit":["bpdField","50"]}
{"new":true}
=> {"number":1}
{"edit":["referenceIDField","A"]}
{"answer":["Open"]}
{"edit":["gravidaField","1"]}
{"state":true}
=~ {"number":0,"edited":true,"fields":{"bpdField":"50.0"}}
{"use":1}
=~ {"error":"..."}
