An unnamed patient's page is untitled

Without a reference ID there is no name, whatever the gravidity.

{"new":true}
{"edit":["gravidaField","3"]}
{"do":["preferredFileName",true]}
=> {"result":""}
{"do":["doExport"]}
{"state":true}
=~ {"exports":["Untitled - Trends.pdf"]}

Signs that some disk refuses in a name are replaced in the file's name, not in the title.

{"edit":["referenceIDField","A:B?C/D\\E"]}
{"do":["preferredFileName",true]}
=> {"result":"A:B?C-D\\E (G3)"}
{"do":["doExport"]}
{"state":true}
=~ {"exports":["A-B-C-D-E (G3) - Trends.pdf"]}
