All pages of 2 fetuses

First page and last page of each fetus, one fetus after the other. The last fetus and the report stay on show.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["gravidaField","2"]}
{"do":["addFetus"]}
{"tab":3}
{"state":true}
{"do":["autoExport"]}
=> {"result":null}
{"state":true}
=~ {"exports":["AB-123 (G2) 1 of 2 - Trends.pdf","AB-123 (G2) 1 of 2 - Report.pdf","AB-123 (G2) 2 of 2 - Trends.pdf","AB-123 (G2) 2 of 2 - Report.pdf"],"tab":6,"currentFetus":1,"popup":{"selected":1},"alerts":[]}
