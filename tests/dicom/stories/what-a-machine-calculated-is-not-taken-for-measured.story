What a machine calculated is not taken for measured

Beside the measured head stands one that was worked out of two diameters; the femur stands under a code of the maker's own; the last
period makes no EDD. There is one fetus on both sides, so nothing is asked about it.

{"new":true}
{"import":["$REPORTS/calculated.dcm"]}
=~ {"doubt":null,"fetuses":{"Fetus without an ID":"Singleton"},"obstacle":null,"rows":[["Fetus without an ID","BPD","60.9 mm","","is added",true],["Fetus without an ID","HC","227.3 mm","","is added",true],["Fetus without an ID","AC","202.8 mm","","is added",true],["Fetus without an ID","FL","44.9 mm","","is added",true],["Fetus without an ID","Weight","900 g","","is compared only",null],["","Note","","","FL stands under a private code of the machine's maker.",null],["","Note","","","...",null],["","Last period","","","is not taken: the last period, 2026-05-01, makes no EDD by itself",null],["","FL/AC","22.1 %","","...",null],["","HC","231.9 mm","","is not taken: a plain value is taken before a calculated one",null]]}
{"decide":"OK"}
=> {"stored":true}
{"state":true}
=~ {"fields":{"hcField":"227.3","flField":"44.9","birthDateField":"","gravidaField":"0"},"document":{"edd":null,"examinations":[{"examDateISO":"2026-11-13T00:00:00","measurements":[{"bpd":60.9,"hc":227.3,"ac":202.8,"fl":44.9}]}]}}
