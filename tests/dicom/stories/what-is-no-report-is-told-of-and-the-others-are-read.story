What is no report is told of, and the others are read

{"new":true}
{"import":["$REPORTS/basic-text.dcm","$REPORTS/plain.dcm"]}
=~ {"failures":["basic-text.dcm: is a structured report of a kind that is not read (neither Comprehensive nor Enhanced)."],"rows":[["","EDD","11 March 2027","","is added",true],"..."]}
{"decide":"Cancel"}
{"import":["$REPORTS/no-content.dcm"]}
=~ {"failures":["..."],"rows":"<none>"}
{"decide":"OK"}
=> {"error":"nothing is being imported"}

A report that does not say when it was written stores nothing.

{"import":["$REPORTS/no-day.dcm"]}
=~ {"obstacle":"There is nothing to be added."}
{"decide":"Cancel"}
{"state":true}
=~ {"edited":false}
