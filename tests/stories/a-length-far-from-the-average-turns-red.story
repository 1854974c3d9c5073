A length far from the average turns red

More than two standard deviations from the mean at the average are far, whether the length is checked or not. All four near 20 weeks:

{"new":true}
{"edit":["bpdField","47.5"]}
{"edit":["hcField","174.2"]}
{"edit":["acField","154.5"]}
{"edit":["flField","32.2"]}
{"do":["doSetEDDfromMeasurements"]}
{"state":true}
=~ {"marked":{"measurementsWindowBPDGestation":"<none>","measurementsWindowHCGestation":"<none>","measurementsWindowACGestation":"<none>","measurementsWindowFLGestation":"<none>"}}

At 20.02 weeks, the average of BPD and HC, the AC has the mean 154.6 mm and the deviation 8.76 mm: 130 mm are 2.8 below it. A length
that was not measured is as far from the mean as can be.

{"check":["measurementsWindowACCheck",false]}
{"check":["measurementsWindowFLCheck",false]}
{"edit":["acField","130"]}
{"edit":["flField","0"]}
{"state":true}
=~ {"marked":{"measurementsWindowBPDGestation":"<none>","measurementsWindowHCGestation":"<none>","measurementsWindowACGestation":"red","measurementsWindowFLGestation":"red"}}

With nothing checked the average is 0, and so is the mean: whatever was measured is red, and what was not is not.

{"check":["measurementsWindowBPDCheck",false]}
{"check":["measurementsWindowHCCheck",false]}
{"state":true}
=~ {"marked":{"measurementsWindowBPDGestation":"red","measurementsWindowHCGestation":"red","measurementsWindowACGestation":"red","measurementsWindowFLGestation":"<none>"}}

Exactly two deviations are not far. The last standard of the menu gives an FL of 43.16 mm for 24 weeks, and for the AC there
194.0 mm with a deviation of 12.0 mm.

{"do":["doSetStandard",3]}
{"edit":["flField","43.16"]}
{"check":["measurementsWindowFLCheck",true]}
{"edit":["acField","218"]}
{"do":["avGestation"]}
=> {"result":24}
{"state":true}
=~ {"marked":{"measurementsWindowBPDGestation":"red","measurementsWindowHCGestation":"red","measurementsWindowACGestation":"<none>","measurementsWindowFLGestation":"<none>"}}
{"edit":["acField","218.1"]}
{"state":true}
=~ {"marked":{"measurementsWindowBPDGestation":"red","measurementsWindowHCGestation":"red","measurementsWindowACGestation":"red","measurementsWindowFLGestation":"<none>"}}
{"edit":["acField","170"]}
{"state":true}
=~ {"marked":{"measurementsWindowBPDGestation":"red","measurementsWindowHCGestation":"red","measurementsWindowACGestation":"<none>","measurementsWindowFLGestation":"<none>"}}
{"edit":["acField","169.9"]}
{"state":true}
=~ {"marked":{"measurementsWindowBPDGestation":"red","measurementsWindowHCGestation":"red","measurementsWindowACGestation":"red","measurementsWindowFLGestation":"<none>"}}
