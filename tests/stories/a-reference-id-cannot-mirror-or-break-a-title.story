A reference ID cannot mirror or break a title

Pasted from elsewhere, an ID may hold a sign that turns the direction of writing, a tab, or the end of a line. It is stored as it
is; what is drawn of it shows such signs and lets them do nothing.

{"new":true}
{"script":["set","identifier","AB\u202e12\t3\n4"]}
{"state":true}
=~ {"document":{"maternalIDString":"AB\u202e12\t3\n4"},"fields":{"referenceIDField":"AB\u202e12\t3\n4"}}
{"draw":1}
=~ {"draw":[["text","Black","AB\\u202e12\\t3\\n4 (G0)",50,10],"..."]}
{"draw":"report"}
=~ {"draw":[["view","NascorDataView","..."],["text","..."],["text","Black","Identifier:\tAB\\u202e12\\t3\\n4",40,10,[100]],"..."]}

A title that is too long for its page loses its middle: 740 units are there, 6 for a character.

{"script":["set","identifier","AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA"]}
{"draw":1}
=~ {"draw":[["text","Black","AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA\u2026 (G0)",50,10],"..."]}
{"state":true}
=~ {"fields":{"headerBPDField":"AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA (G0)"}}
