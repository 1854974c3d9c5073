A document goes back to its file after a question

Without a file there is nothing to go back to, and nothing is asked.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["bpdField","45.5"]}
{"revert":true}
=> {"reverted":false}
{"state":true}
=~ {"edited":true,"alerts":[],"fields":{"bpdField":"45.5"}}
{"save":"AB-123.nascor"}
=> {"saved":true}

Cancel keeps what was typed.

{"edit":["bpdField","47.1"]}
{"edit":["hcField","160"]}
{"revert":true}
=> {"reverted":false}
{"state":true}
=~ {"edited":true,"alerts":[["Do you want to go back to the document as it was last saved?","All changes since then will be lost.","Revert","Cancel"]],"fields":{"bpdField":"47.1","hcField":"160.0"}}

Revert reads the file again, and the document counts as saved.

{"answer":["Revert"]}
{"revert":true}
=> {"reverted":true}
{"state":true}
=~ {"edited":false,"fields":{"referenceIDField":"AB-123","bpdField":"45.5","hcField":"0.0"}}
{"close":"cancel"}
=> {"closed":true}

A field that refuses its text holds the question back.

{"open":"AB-123.nascor"}
{"type":["bpdField","999"]}
{"revert":true}
=> {"refused":"bpdField"}
{"revert":"bpdField"}
{"state":true}
=~ {"alerts":[],"fields":{"bpdField":"45.5"}}

What the file holds now is read: a colleague's numbers, if a colleague has saved it meanwhile.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["bpdField","50"]}
{"save":"colleague.nascor"}
{"close":"cancel"}
{"outside":["copy","colleague.nascor","AB-123.nascor"]}
{"answer":["Revert"]}
{"revert":true}
=> {"reverted":true}
{"state":true}
=~ {"edited":false,"fields":{"bpdField":"50.0"}}

A file that cannot be read changes nothing, and the user is told why.

{"edit":["bpdField","51"]}
{"outside":["remove","AB-123.nascor"]}
{"told":true}
{"answer":["Revert"]}
{"revert":true}
=> {"reverted":false}
{"told":true}
=~ {"told":["The document cannot be read. ...AB-123.nascor..."]}
{"state":true}
=~ {"edited":true,"fields":{"bpdField":"51.0"}}
