All pages of one fetus

First page and last page of each fetus, one fetus after the other. The last fetus and the report stay on show.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["gravidaField","2"]}
{"tab":3}
{"state":true}
{"do":["autoExport"]}
=> {"result":null}
{"state":true}
=~ {"exports":["AB-123 (G2) - Trends.pdf","AB-123 (G2) - Report.pdf"],"tab":6,"currentFetus":0,"popup":{"selected":0},"alerts":[]}
