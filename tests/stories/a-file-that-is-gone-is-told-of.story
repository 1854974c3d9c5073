A file that is gone is told of

It was removed, moved or renamed, perhaps because the patient has another name now; so it is not written again unasked. A file
that was written anew with the very same contents is the same file.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"save":"AB-123.nascor"}
{"edit":["bpdField","45.5"]}
{"outside":["remove","AB-123.nascor"]}
{"use":0}
{"status":true}
=> {"status":"The file of this document is gone."}
{"state":true}
{"save":true}
=> {"saved":false}
{"state":true}
=~ {"edited":true,"alerts":[["The file of this document is gone. Do you want to write it again?","...AB-123.nascor...removed, moved or renamed it.","Save Anyway","Cancel"]]}
{"answer":["Save Anyway"]}
{"save":true}
=> {"saved":true}
{"outside":["copy","AB-123.nascor","copy.nascor"]}
{"outside":["remove","AB-123.nascor"]}
{"outside":["copy","copy.nascor","AB-123.nascor"]}
{"edit":["hcField","160"]}
{"state":true}
{"save":true}
=> {"saved":true}
{"close":"cancel"}
=> {"closed":true}
{"open":"AB-123.nascor"}
{"state":true}
=~ {"fields":{"bpdField":"45.5","hcField":"160.0"},"alerts":[]}
