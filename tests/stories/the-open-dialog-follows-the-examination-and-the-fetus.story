The open dialog follows the examination and the fetus

It stays open while the work goes on. What it shows is always dated from what the window shows, or the length of one examination
would be counted from the day of another.

{"new":true}
{"edit":["examDateField","10/24/26"]}
{"edit":["acField","130"]}
{"do":["addFetus"]}
{"edit":["acField","174"]}
{"choose":0}
{"do":["addExaminationAction"]}
{"edit":["acField","154.5"]}
{"check":["measurementsWindowBPDCheck",false]}
{"check":["measurementsWindowHCCheck",false]}
{"check":["measurementsWindowFLCheck",false]}
{"do":["doSetEDDfromMeasurements"]}
{"state":true}
=~ {"currentExam":1,"windows":{"measurementsWindow":true},"fields":{"measurementsWindowACGestation":"20w 0d","measurementsWindowAvGestation":"20w 0d"}}

A length changes, ...

{"edit":["acField","130"]}
{"state":true}
=~ {"fields":{"measurementsWindowAvGestation":"17w 6d"}}

... the fetus, ...

{"edit":["acField","154.5"]}
{"choose":1}
{"state":true}
=~ {"fields":{"measurementsWindowACGestation":"-","measurementsWindowAvGestation":"-"}}
{"choose":0}
{"state":true}
=~ {"fields":{"measurementsWindowAvGestation":"20w 0d"}}

... the growth standard, ...

{"menu":["Standards",1]}
{"state":true}
=~ {"fields":{"measurementsWindowAvGestation":"20w 3d"}}
{"menu":["Standards",0]}

... the examination. Its length is counted from its own day: 17.87 weeks on 24 October leave 154.89 days, and one is added.

{"do":["previousExamination"]}
{"state":true}
=~ {"currentExam":0,"fields":{"measurementsWindowAvGestation":"17w 6d"}}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"windows":{"measurementsWindow":false},"fields":{"birthDateField":"3/28/27"}}

Closed, it shows what it last found.

{"do":["nextExamination"]}
{"state":true}
=~ {"fields":{"acField":"154.5","measurementsWindowAvGestation":"17w 6d"}}

A document that is read back or opened is dated by its own standard.

{"save":"a.nascor"}
{"close":"discard"}
{"open":"a.nascor"}
{"answer":["Modify"]}
{"do":["doSetEDDfromMeasurements"]}
{"state":true}
=~ {"fields":{"measurementsWindowACGestation":"20w 0d"}}
