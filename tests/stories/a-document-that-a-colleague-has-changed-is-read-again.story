A document that a colleague has changed is read again

It is open here and nothing was typed. Coming back to it says that its file holds something else by now, and Revert reads it
without a question, since nothing is lost by it.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["bpdField","50"]}
{"save":"colleague.nascor"}
{"close":"cancel"}
{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["bpdField","45.5"]}
{"save":"AB-123.nascor"}
{"outside":["copy","colleague.nascor","AB-123.nascor"]}
{"state":true}
{"use":1}
{"status":true}
=> {"status":"Another program has changed the file of this document. Revert reads it."}
{"revert":true}
=> {"reverted":true}
{"state":true}
=~ {"edited":false,"alerts":[],"fields":{"bpdField":"50.0"}}
{"use":1}
{"status":true}
=> {"status":""}
{"edit":["hcField","160"]}
{"save":true}
=> {"saved":true}
