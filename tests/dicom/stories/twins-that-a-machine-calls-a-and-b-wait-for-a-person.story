Twins that a machine calls A and B wait for a person

Nobody but a person knows which of them the document's first twin is. Of several values counts the one that was chosen at the
machine, else their mean; an estimated length is said to be one.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"do":["addFetus"]}
{"import":["$REPORTS/groups.dcm"]}
=~ {"doubt":null,"fetuses":{"Fetus A":null,"Fetus B":null},"obstacle":"Please choose for each fetus which one it is.","rows":[["","EDD","4 March 2027 (from the last period)","","is added",true],["Fetus A","BPD","60.9 mm (chosen at the machine)","","Which fetus is it?",null],["Fetus A","HC","227.3 mm (mean)","","Which fetus is it?",null],["Fetus A","AC","198 mm (estimated, not measured)","","Which fetus is it?",null],["Fetus B","BPD","58.3 mm (mean of several)","","Which fetus is it?",null],"..."]}
{"decide":"OK"}
=> {"stored":false}
{"decide":["fetus","A",2]}
=~ {"fetuses":{"Fetus A":"Twin 2","Fetus B":null},"obstacle":"Please choose for each fetus which one it is."}
{"decide":["fetus","B",2]}
=~ {"obstacle":"Two fetuses of the report cannot be the same one."}
{"decide":["fetus","B",1]}
=~ {"obstacle":null}
{"decide":"OK"}
=> {"stored":true}
{"state":true}
=~ {"document":{"examinations":[{"measurements":[{"bpd":58.3,"hc":227.3},{"bpd":60.9,"hc":227.3}]}]}}

One of them can be left out. What one twin has is not overwritten by the other.

{"import":["$REPORTS/groups.dcm"]}
{"decide":["fetus","A",null]}
{"decide":["fetus","B",2]}
=~ {"fetuses":{"Fetus A":"left out","Fetus B":"Twin 2"},"obstacle":"There is nothing to be added.","rows":[["","EDD","4 March 2027 (from the last period)","4 March 2027","is there already",null],["Fetus A","BPD","60.9 mm (chosen at the machine)","","is left out",null],["Fetus A","HC","...","","is left out",null],["Fetus A","AC","...","","is left out",null],["Fetus B","BPD","58.3 mm (mean of several)","60.9 mm","is not taken: another value stands",null],["Fetus B","HC","227.3 mm (mean)","227.3 mm","is there already",null],"..."]}
{"decide":"Cancel"}

A document of one fetus has no room for two.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["bpdField","50"]}
{"import":["$REPORTS/groups.dcm"]}
=~ {"obstacle":"The report is of 2 fetuses, the document of 1. Please leave out the others, or cancel and add a fetus."}
