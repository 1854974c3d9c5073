The dialogs read and write dates and numbers as the locale en_AU does

A year of two digits is one of this century. The last period was on 10 June 2026, the scan on 20 August.

{"locale":"en_AU"}
{"new":true}
{"do":["doSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"crlWindowDate":"21/11/26"}}
{"cancel":"crlWindow"}
{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowLMP","10/6/26"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"lmpWindowLMP":"10/6/26","birthDateField":"17/3/27","adjustEDDField":"17/3/27"},"document":{"eddISO":"2027-03-17T00:00:00"},"windows":{"lmpWindow":false}}

Other separators and four digits of the year are read as well, and the ISO form.

{"edit":["birthDateField",""]}
{"answer":["Modify"]}
{"edit":["birthDateField",""]}
{"edit":["lmpWindowLMP","10.6.2026"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"document":{"eddISO":"2027-03-17T00:00:00"}}
{"edit":["lmpWindowLMP","2026-06-11"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"document":{"eddISO":"2027-03-18T00:00:00"}}

A crown-rump length may be typed with a point or a comma. By Robinson 45.5 mm leave 201.97 days.

{"menu":["Crown Rump Length",2]}
{"edit":["crlWindowDate","20/8/26"]}
{"edit":["crlWindowCRL","45.5"]}
{"state":true}
=~ {"fields":{"crlWindowCRL":"45.5"}}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"birthDateField":"9/3/27"},"document":{"eddISO":"2027-03-09T00:00:00"}}
{"edit":["crlWindowDate","20-08-26"]}
{"edit":["crlWindowCRL","45.5"]}
{"state":true}
=~ {"fields":{"crlWindowCRL":"45.5"}}

From the measurements, with none checked.

{"check":["measurementsWindowBPDCheck",false]}
{"check":["measurementsWindowHCCheck",false]}
{"check":["measurementsWindowACCheck",false]}
{"check":["measurementsWindowFLCheck",false]}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"fields":{"birthDateField":"29/8/27"},"document":{"eddISO":"2027-08-29T00:00:00"}}
