A lock that a killed program left is no obstacle

A program of this machine had the document open and was killed, so its lock lies beside the document still.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"save":"AB-123.nascor"}
{"close":"cancel"}
{"outside":["stale lock","AB-123.nascor"]}
{"open":"AB-123.nascor"}
=> {"number":1}
{"edit":["bpdField","45.5"]}
{"save":true}
=> {"saved":true}
{"close":"cancel"}
{"outside":["remove",".AB-123.nascor.lock"]}
=~ {"error":"..."}
