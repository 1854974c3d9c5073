A file that is gone is written again

Somebody removed or moved it; there is nothing that saving could destroy, so nobody is asked. Neither is a file that was
written anew with the very same contents.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"save":"AB-123.nascor"}
{"edit":["bpdField","45.5"]}
{"outside":["remove","AB-123.nascor"]}
{"save":true}
=> {"saved":true}
{"outside":["copy","AB-123.nascor","copy.nascor"]}
{"outside":["remove","AB-123.nascor"]}
{"outside":["copy","copy.nascor","AB-123.nascor"]}
{"edit":["hcField","160"]}
{"save":true}
=> {"saved":true}
{"close":"cancel"}
=> {"closed":true}
{"open":"AB-123.nascor"}
{"state":true}
=~ {"fields":{"bpdField":"45.5","hcField":"160.0"},"alerts":[]}
