A page is exported under the patient's name

The page on show goes into a file that bears the patient's title and the page's name. It lies beside the document, and in the
documents folder as long as there is no document file.

{"new":true}
{"edit":["referenceIDField","ab/123"]}
{"edit":["gravidaField","2"]}
{"do":["doExport"]}
=> {"result":null}
{"state":true}
=~ {"exports":["AB-123 (G2) - Trends.pdf"],"alerts":[],"tab":0}

Each export is told once, and each page has its own name.

{"tab":5}
{"do":["doExport"]}
{"tab":"report"}
{"do":["doExport"]}
{"state":true}
=~ {"exports":["AB-123 (G2) - Weight.pdf","AB-123 (G2) - Report.pdf"]}
{"state":true}
=~ {"exports":[]}
