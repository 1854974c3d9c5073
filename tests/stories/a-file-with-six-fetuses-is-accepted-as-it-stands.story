A file with six fetuses is accepted as it stands

There are names for five at most, so there is no choice of fetus and none can be added. What the file holds is kept, the unknown
standards too.

{"open":"$DATA/six-fetuses.nascor"}
{"state":true}
=~ {"currentFetus":0,"popup":{"titles":[],"keys":[],"selected":-1},"fields":{"bpdField":"41.0","headerSummaryField":"SIX (G1) 1 of 6"},"document":{"standard":7,"fetalWeightStandard":99,"crlStandard":-1,"numberOfFetuses":6}}
{"do":["addFetus"]}
{"do":["chooseFetus"]}
{"choose":0}
=~ {"error":"..."}
{"edit":["bpdField","40"]}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"currentFetus":0,"document":{"standard":7,"fetalWeightStandard":99,"crlStandard":-1,"numberOfFetuses":6,"examinations":[{"measurements":[{"bpd":40},{"bpd":42},{"bpd":43},{"bpd":44},{"bpd":45},{"bpd":46}]},{"measurements":[{},{},{},{},{},{}]}]}}

Removing one brings the names back.

{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"popup":{"titles":["Quin 1 of 5","Quin 2 of 5","Quin 3 of 5","Quin 4 of 5","Quin 5 of 5"],"selected":0},"document":{"numberOfFetuses":5,"examinations":[{"measurements":[{"bpd":42},{},{},{},{}]},{"measurements":[{},{},{},{},{}]}]}}
