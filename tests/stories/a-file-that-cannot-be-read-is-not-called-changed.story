A file that cannot be read is not called changed

In its place lies something that is no file any more. The question says what is so, and Return cancels.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"save":"AB-123.nascor"}
{"edit":["bpdField","45.5"]}
{"outside":["remove","AB-123.nascor"]}
{"outside":["folder","AB-123.nascor"]}
{"use":0}
{"status":true}
=> {"status":"The file of this document cannot be read: Is a directory"}
{"state":true}
{"save":true}
=> {"saved":false}
{"state":true}
=~ {"edited":true,"alerts":[["The file of this document cannot be read. Do you want to replace it?","...AB-123.nascor\n\nIs a directory...","Save Anyway","Cancel"]]}
