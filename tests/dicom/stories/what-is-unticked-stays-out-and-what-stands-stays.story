What is unticked stays out, and what stands stays

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["examDateField","11/13/26"]}
{"edit":["hcField","229"]}
{"import":["$REPORTS/plain.dcm"]}
=~ {"rows":[["","EDD","11 March 2027","","is added",true],["Fetus without an ID","BPD","60.9 mm","","is added",true],["Fetus without an ID","HC","227.3 mm","229 mm","is not taken: another value stands",null]]}
{"decide":["row","Fetus without an ID","BPD",false]}
=~ {"rows":[["","EDD","11 March 2027","","is added",true],["Fetus without an ID","BPD","60.9 mm","","is left out",false],["Fetus without an ID","HC","227.3 mm","229 mm","is not taken: another value stands",null]]}
{"decide":"OK"}
{"state":true}
=~ {"fields":{"birthDateField":"3/11/27"},"document":{"examinations":[{"measurements":[{"bpd":0,"hc":229,"ac":0,"fl":0}]}]}}

A field that refuses its text holds an import back.

{"type":["bpdField","201"]}
{"import":["$REPORTS/plain.dcm"]}
=~ {"error":"a field refuses its text"}
