The average of what is checked dates the pregnancy

Each length is dated by the mean of its chart, checked or not; only those that are checked count, each as much as the others.

{"new":true}
{"edit":["bpdField","47.5"]}
{"edit":["hcField","174.2"]}
{"edit":["acField","130"]}
{"do":["doSetEDDfromMeasurements"]}
{"state":true}
=~ {"fields":{"measurementsWindowBPDGestation":"20w 0d","measurementsWindowHCGestation":"20w 0d","measurementsWindowACGestation":"17w 6d","measurementsWindowFLGestation":"-","measurementsWindowAvGestation":"14w 3d"}}

An empty field that is checked counts as 0 weeks: 20.03, 20.01 and 17.87 weeks and that make 14.48 on average. Without it and the
AC two are left.

{"check":["measurementsWindowFLCheck",false]}
=> {}
{"check":["measurementsWindowACCheck",false]}
{"state":true}
=~ {"checks":{"measurementsWindowBPDCheck":true,"measurementsWindowHCCheck":true,"measurementsWindowACCheck":false,"measurementsWindowFLCheck":false},"fields":{"measurementsWindowACGestation":"17w 6d","measurementsWindowAvGestation":"20w 0d"}}
{"do":["avGestation"]}
=> {"result":20.0218101108985}

One alone stands as it is, and with none there is no average.

{"check":["measurementsWindowBPDCheck",false]}
{"check":["measurementsWindowHCCheck",false]}
{"check":["measurementsWindowACCheck",true]}
{"state":true}
=~ {"fields":{"measurementsWindowAvGestation":"17w 6d"}}
{"check":["measurementsWindowACCheck",false]}
{"state":true}
=~ {"fields":{"measurementsWindowBPDGestation":"20w 0d","measurementsWindowAvGestation":"-"}}
{"do":["avGestation"]}
=> {"result":0}
{"check":["noSuchCheck",true]}
=> {"error":"there is no check box \"noSuchCheck\""}
{"cancel":"noSuchWindow"}
=> {"error":"there is no window \"noSuchWindow\""}

What is found stays until OK, also when the dialog was closed meanwhile.

{"check":["measurementsWindowBPDCheck",true]}
{"cancel":"measurementsWindow"}
{"edit":["bpdField","80"]}
{"edit":["bpdField","47.5"]}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"fields":{"birthDateField":"4/10/27"}}
