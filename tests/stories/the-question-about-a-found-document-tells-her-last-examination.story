The question about a found document tells her last examination

Two patients may bear one number. The last examination and the EDD tell which document is hers.

{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","10/24/26"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","11/19/26"]}
{"save":"A (G1).nascor"}
{"close":"discard"}
{"state":true}
{"new":true}
{"edit":["referenceIDField","a"]}
{"answer":["Cancel"]}
{"edit":["gravidaField","1"]}
{"state":true}
=~ {"alerts":[["This patient has a document already.","A (G1).nascor\n11/21/26, ... bytes\n\nLast examination: 19 November 2026\nEDD: 10 April 2027","Open","Cancel"]]}
{"close":"discard"}

A file of that name that cannot be read is offered all the same: opening it says what is wrong.

{"outside":["remove","A (G1).nascor"]}
{"outside":["append","A (G1).nascor","no document"]}
{"new":true}
{"edit":["referenceIDField","a"]}
{"edit":["gravidaField","1"]}
{"state":true}
=~ {"alerts":[["This patient has a document already.","A (G1).nascor\n..., 11 bytes","Open","Cancel"]]}
