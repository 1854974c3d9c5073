An export overwrites nothing

Whoever exports twice has two files.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["gravidaField","1"]}
{"do":["doExport"]}
{"do":["doExport"]}
{"do":["doExport"]}
{"state":true}
=~ {"exports":["AB-123 (G1) - Trends.pdf","AB-123 (G1) - Trends (2).pdf","AB-123 (G1) - Trends (3).pdf"]}

That goes for files of any origin.

{"tab":1}
{"save":"AB-123 (G1) - BPD.pdf"}
{"do":["doExport"]}
{"state":true}
=~ {"exports":["AB-123 (G1) - BPD (2).pdf"]}
