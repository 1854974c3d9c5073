A patient is entered and saved. At the second visit the program is killed while a length is being typed: the note, the length
and the document's own file are offered at the next start, and nothing was saved unasked.

{"new":true}
=> {"number":0}
{"edit":["referenceIDField","ab-123"]}
{"edit":["gravidaField","2"]}
{"save":"patient.nascor"}
=> {"saved":true}
{"keep":true}
=> {"kept":0}
{"edit":["notesField","second visit"]}
=> {"began":true,"ended":true}
{"type":["bpdField","62.1"]}
=> {"began":true}
{"keep":true}
=> {"kept":1}
{"crash":true}
=> {}

Not now: it is asked again at the next start.

{"recover":"Not Now"}
=~ {"offered":["Patient: AB-123\nDocument: ...\nLast kept: ...\n\nWhat differs from the saved document:\nExamination of 21 November 2026"],"opened":[]}
{"crash":true}
{"recover":"Recover"}
=~ {"opened":[1]}
{"state":true}
=~ {"number":1,"edited":true,"fields":{"referenceIDField":"AB-123","bpdField":"62.1","notesField":"second visit"}}
{"save":true}
=> {"saved":true}
{"keep":true}
=> {"kept":0}
{"close":"cancel"}
=> {"closed":true}
{"crash":true}
{"recover":"Recover"}
=> {"offered":[],"opened":[]}
{"open":"patient.nascor"}
{"state":true}
=~ {"fields":{"bpdField":"62.1","notesField":"second visit"}}
