A crown-rump length dates a pregnancy (America/New_York)

45 mm are 11.33 weeks by Hadlock, so 200.7 days are left at the scan; 202.0 by Nelson, 202.3 by Robinson, 203.0 by Westerway. The
part of a day is cut off, since the EDD is entered as a day. The clocks go forward there on 8 March 2026 and 14 March 2027, and back on 1 November 2026.

{"zone":"America/New_York"}
{"new":true}
{"do":["doSetEDDfromCRL"]}
{"edit":["crlWindowDate","8/20/26"]}
{"edit":["crlWindowCRL","45"]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"birthDateField":"3/8/27","adjustDeliverOnField":"3/8/27"},"document":{"eddISO":"2027-03-08T00:00:00"},"windows":{"crlWindow":false}}
{"menu":["Crown Rump Length",1]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"birthDateField":"3/9/27"},"document":{"eddISO":"2027-03-09T00:00:00"}}
{"menu":["Crown Rump Length",2]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"birthDateField":"3/10/27"},"document":{"eddISO":"2027-03-10T00:00:00"}}
{"menu":["Crown Rump Length",3]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"birthDateField":"3/11/27"},"document":{"eddISO":"2027-03-11T00:00:00"}}

From a scan on 20 March 2027 to October.

{"edit":["crlWindowDate","3/20/27"]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"birthDateField":"10/9/27"},"document":{"eddISO":"2027-10-09T00:00:00"}}
