The measurements date a pregnancy (America/New_York)

The four lengths are each a little above the mean of 20 weeks, 20.02 weeks on average, so that 139.85 days are left. One day more
is added here, and has been in all documents: 140.85 days after the examination, cut to whole days. The clocks go forward there on 8 March 2026 and 14 March 2027, and back on 1 November 2026.

{"zone":"America/New_York"}
{"new":true}
{"edit":["examDateField","11/21/26"]}
{"edit":["bpdField","47.5"]}
{"edit":["hcField","174.2"]}
{"edit":["acField","154.5"]}
{"edit":["flField","32.2"]}
{"do":["doSetEDDfromMeasurements"]}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"fields":{"measurementsWindowAvGestation":"20w 0d","birthDateField":"4/10/27","adjustDeliverOnField":"4/10/27","ageField":"20w 0d"},"document":{"eddISO":"2027-04-10T00:00:00"},"windows":{"measurementsWindow":false}}

With no length checked there is no average, and 281 days are added to the day of the examination.

{"answer":["Modify"]}
{"do":["doSetEDDfromMeasurements"]}
{"check":["measurementsWindowBPDCheck",false]}
{"check":["measurementsWindowHCCheck",false]}
{"check":["measurementsWindowACCheck",false]}
{"check":["measurementsWindowFLCheck",false]}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"fields":{"measurementsWindowAvGestation":"-","birthDateField":"8/29/27"},"document":{"eddISO":"2027-08-29T00:00:00"}}
