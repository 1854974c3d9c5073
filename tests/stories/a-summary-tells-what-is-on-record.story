A summary tells what is on record

It is made of the records, what is in edit among them, and names the patient, the fetus and the EDD. Each length stands with its z and its
centile by the standard in force: at 20 weeks the Westerway standard has a BPD of 47.414 mm with a deviation of 1.9 mm.

{"new":true}
{"edit":["referenceIDField","ab-123"]}
{"edit":["gravidaField","2"]}
{"edit":["bpdField","50"]}
{"do":["summary","measurements"]}
=> {"result":{"rows":[["21 November 2026","-","50.0","-","-","-","-","-","-","-","-","-","-","-","-","-","-"]],"notes":["The age is not known."]}}
{"do":["summaryFacts"]}
=~ {"result":{"Reference ID":"AB-123","Gravidity":"2","Fetus":"Singleton","EDD":"-","Last examination":"21 November 2026"}}

{"edit":["birthDateField","4/10/27"]}
{"do":["summary","measurements"]}
=> {"result":{"rows":[["21 November 2026","20w 0d","50.0","+1.36","91.3","-","-","-","-","-","-","-","-","-","-","-","-"]],"notes":[]}}
{"do":["summaryFacts"]}
=~ {"result":{"EDD":"10 April 2027 (in 140 days)","Growth standard":"Westerway (ASUM 2001)","Examiner":"<none>"}}

Another standard gives other places.

{"do":["doSetStandard",1]}
{"do":["summaryFacts"]}
=~ {"result":{"Growth standard":"Hadlock..."}}

A file is named after the patient. HTML needs nothing else; paper is another matter.

{"do":["summaryFileName",".html"]}
=> {"result":"AB-123 (G2) - Summary.html"}
{"do":["exportSummary","summary.html"]}
=> {"result":null}
{"outside":["copy","summary.html","copy.html"]}
{"do":["exportSummary","summary.pdf"]}
=> {"error":"nothing is put on paper here"}

The document is not edited by that.

{"save":"patient.nascor"}
{"do":["exportSummary","again.html"]}
{"state":true}
=~ {"edited":false}

A text that a field refuses holds it back.

{"edit":["bpdField","201"]}
=> {"began":true,"ended":false}
{"do":["exportSummary","refused.html"]}
{"outside":["copy","refused.html","copy.html"]}
=~ {"error":"..."}
