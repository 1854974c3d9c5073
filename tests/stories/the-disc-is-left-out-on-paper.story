The disc is left out on paper

On the screen a disc shows which examination the fields belong to. A page that lies in a file of the hospital would seem to say that
one measurement is special. 60 mm at 25 weeks is in the middle of the chart: at 410, 235.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","12/26/26"]}
{"edit":["bpdField","60"]}
{"marks":1}
=> {"marks":[["fillOval","FaintGray",[400,225,20,20]],["mark","Orange","cross",410,235]]}
{"tab":1}
{"do":["doExport"]}
{"paper":true}
=> {"paper":[[["mark","Orange","cross",410,235]]]}

Nor is it printed. The weight, which is printed behind each page, is not known.

{"do":["printDocumentWithSettings",false]}
{"paper":true}
=> {"paper":[[["mark","Orange","cross",410,235]],[]]}

Nor does it come back between the pages of all that is exported: the trends and the report.

{"do":["autoExport"]}
{"paper":true}
=~ {"paper":[[["mark","Orange","cross","..."]],[]]}

On the screen it is there again.

{"marks":1}
=~ {"marks":[["fillOval","FaintGray",[400,225,20,20]],"..."]}
{"marks":7}
=~ {"error":"..."}
{"paper":1}
=~ {"error":"..."}
