A machine's means become an examination of twins

It writes the mean of each length in centimetres beside its single values and their statistics, the femur in millimetres, and calls
the twins 1 and 2. All of it is one step.

{"new":true}
{"import":["$REPORTS/means.dcm"]}
=~ {"doubt":null,"fetuses":{"Fetus 1":"Twin 1","Fetus 2":"Twin 2"},"obstacle":null,"failures":[],"rows":[["","EDD","4 March 2027","","is added",true],["","Gravidity","2","","is added",true],["Fetus 1","BPD","60.9 mm (mean)","","is added",true],["Fetus 1","HC","227.3 mm (mean)","","is added",true],["Fetus 1","AC","202.8 mm (mean)","","is added",true],["Fetus 1","FL","44.9 mm (mean)","","is added",true],["Fetus 1","Weight","868 g","","is compared only",null],"..."]}

Until OK the document is what it was.

{"state":true}
=~ {"edited":false,"blank":true,"document":{"maternalIDString":"","numberOfFetuses":1,"edd":null}}
{"decide":"OK"}
=> {"stored":true}
{"state":true}
=~ {"edited":true,"blank":false,"fields":{"referenceIDField":"AB-123","gravidaField":"2","birthDateField":"3/4/27","examDateField":"11/13/26","ageField":"24w 1d"},"popup":{"titles":["Twin 1","Twin 2"]},"document":{"maternalIDString":"AB-123","gravida":2,"eddISO":"2027-03-04T00:00:00","numberOfFetuses":2,"examinations":[{"note":"","examDateISO":"2026-11-13T00:00:00","measurements":[{"bpd":60.9,"hc":227.3,"ac":202.8,"fl":44.9},{"bpd":58.3,"hc":219.6,"ac":188.7,"fl":42.5}]}]},"alerts":[]}
{"do":["undoName"]}
=> {"result":"Import Report"}
{"do":["undo"]}
{"state":true}
=~ {"edited":false,"blank":true,"document":{"maternalIDString":"","gravida":0,"edd":null,"numberOfFetuses":1,"examinations":[{"examDateISO":"2026-11-21...","measurements":[{"bpd":0,"hc":0,"ac":0,"fl":0}]}]}}
{"do":["redo"]}
{"state":true}
=~ {"document":{"numberOfFetuses":2,"eddISO":"2027-03-04T00:00:00","examinations":[{"examDateISO":"2026-11-13T00:00:00"}]}}

The same report again finds everything there.

{"import":["$REPORTS/means.dcm"]}
=~ {"obstacle":"There is nothing to be added.","rows":[["","EDD","4 March 2027","4 March 2027","is there already",null],"..."]}
{"decide":"OK"}
=> {"stored":false}
