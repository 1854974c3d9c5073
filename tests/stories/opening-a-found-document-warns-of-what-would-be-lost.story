Opening a found document warns of what would be lost

Somebody typed the measurements first and the patient last. Opening her document would lose them, so the question says so.

{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"save":"A (G1).nascor"}
{"close":"discard"}
{"state":true}
{"new":true}
{"edit":["bpdField","50"]}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"state":true}
=~ {"fields":{"bpdField":"50.0"},"alerts":[["This patient has a document already.","A (G1).nascor\n11/21/26, ... bytes\nWhat was entered here besides reference ID and gravidity will be lost.\n\nLast examination: 21 November 2026\nEDD: -","Open","Cancel"]]}
{"close":"discard"}

The date of the examination counts too, and a note that is still in its field.

{"new":true}
{"edit":["examDateField","11/20/26"]}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"state":true}
=~ {"alerts":[["...","... bytes\nWhat was entered here ...","...","..."]]}
{"close":"discard"}
{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["notesField","x"]}
{"edit":["gravidaField","1"]}
{"state":true}
=~ {"alerts":[["...","... bytes\nWhat was entered here ...","...","..."]],"document":{"examinations":[{"note":"x"}]}}
