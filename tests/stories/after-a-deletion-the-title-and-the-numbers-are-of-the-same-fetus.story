After a deletion the title and the numbers are of the same fetus

Triplets, the second on show. It is removed; the third moves up into its place, and the choice of fetus must stay where it is:
a choice that fell back to the first item would put one fetus's numbers under another's name.

{"new":true}
{"edit":["referenceIDField","T"]}
{"edit":["gravidaField","1"]}
{"edit":["bpdField","41"]}
{"do":["addFetus"]}
{"edit":["bpdField","42"]}
{"do":["addFetus"]}
{"edit":["bpdField","43"]}
{"choose":1}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"currentFetus":1,"popup":{"titles":["Twin 1","Twin 2"],"selected":1},"fields":{"headerSummaryField":"T (G1) 2 of 2","bpdField":"42.0"}}

The summary's title follows at once, the others with the next display.

{"state":true}
=~ {"fields":{"headerBPDField":"T (G1) 2 of 3"}}
{"do":["updateDisplay"]}
{"state":true}
=~ {"fields":{"headerBPDField":"T (G1) 2 of 2"}}
{"do":["synchronizeFromData"]}
{"state":true}
=~ {"currentFetus":1,"popup":{"selected":1},"fields":{"bpdField":"43.0"}}

Removing the last one shows the one before it.

{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"currentFetus":0,"popup":{"titles":["Singleton"],"selected":0},"fields":{"headerSummaryField":"T (G1)","bpdField":"43.0"}}
{"choose":0}
{"state":true}
=~ {"fields":{"bpdField":"41.0"},"document":{"examinations":[{"measurements":[{"bpd":41}]}]}}

And with the first on show, the first item stays.

{"do":["addFetus"]}
{"choose":0}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"currentFetus":0,"popup":{"selected":0}}
