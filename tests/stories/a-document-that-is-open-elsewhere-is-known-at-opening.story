A document that is open elsewhere is known at opening

Anna has the patient open in another room. Who opens the document here too is told who, where and since when, and may look at
it or work on a copy.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["bpdField","45.5"]}
{"save":"AB-123.nascor"}
=> {"saved":true}
{"close":"cancel"}
{"outside":["lock","AB-123.nascor","anna","ward-3"]}
{"open":"AB-123.nascor"}
=~ {"error":"AB-123.nascor: It is open elsewhere. User: anna; Machine: ward-3; Since: ...; Process: ..."}

What is opened to be read is not saved in its place, but under another name.

{"answer":["Open Read-Only"]}
{"open":"AB-123.nascor"}
=> {"number":1}
{"edit":["hcField","160"]}
{"save":true}
=~ {"error":"The document was not saved. ...AB-123.nascor: It is open elsewhere. User: anna; Machine: ward-3; ..."}
{"state":true}
=~ {"edited":true}
{"save":"mine.nascor"}
=> {"saved":true}
{"close":"cancel"}
=> {"closed":true}

A copy has no file yet, and counts as edited.

{"answer":["Open a Copy"]}
{"open":"AB-123.nascor"}
=> {"number":2}
{"state":true}
=~ {"edited":true,"fields":{"bpdField":"45.5","hcField":"0.0"}}
{"edit":["hcField","160"]}
{"do":["undo"]}
{"state":true}
=~ {"edited":true,"fields":{"hcField":"0.0"}}
{"save":"AB-123.nascor"}
=~ {"error":"...It is open elsewhere. User: anna..."}
{"close":"discard"}

Anna's machine was switched off. A user who knows that opens the document all the same, and holds it from then on.

{"answer":["Open Anyway"]}
{"open":"AB-123.nascor"}
=> {"number":3}
{"edit":["acField","140"]}
{"save":true}
=> {"saved":true}
{"close":"cancel"}
=> {"closed":true}
{"open":"AB-123.nascor"}
=> {"number":4}
{"state":true}
=~ {"fields":{"bpdField":"45.5","acField":"140.0"}}
