The last period dates a pregnancy (Europe/Paris)

280 days are counted on the calendar, and so is every day by which the cycle differs. The clocks go forward there on 29 March 2026 and 28 March 2027, and back on 25 October 2026.

{"zone":"Europe/Paris"}
{"new":true}
{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowLMP","7/1/26"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"4/7/27","adjustEDDField":"4/7/27","adjustDeliverOnField":"4/7/27","ageField":"20w 3d"},"document":{"eddISO":"2027-04-07T00:00:00"},"windows":{"lmpWindow":false}}

A cycle of 35 days moves it a week on.

{"answer":["Modify"]}
{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowCycleField","35"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"4/14/27"},"document":{"eddISO":"2027-04-14T00:00:00"}}

A luteal phase of 16 days in a cycle of 28 moves it two days back.

{"answer":["Modify"]}
{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowCycleField","28"]}
{"edit":["lmpWindowLutealField","16"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"4/5/27"},"document":{"eddISO":"2027-04-05T00:00:00"}}

The same from a day of spring, and from one of autumn.

{"edit":["lmpWindowLutealField","14"]}
{"edit":["lmpWindowLMP","3/10/2025"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"12/15/25"},"document":{"eddISO":"2025-12-15T00:00:00"}}
{"edit":["lmpWindowLMP","10/1/26"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"7/8/27"},"document":{"eddISO":"2027-07-08T00:00:00"}}

From one day of June to a day before the spring, and from November to August.

{"edit":["lmpWindowLMP","6/10/25"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"3/17/26"},"document":{"eddISO":"2026-03-17T00:00:00"}}
{"edit":["lmpWindowLMP","11/20/26"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"8/27/27"},"document":{"eddISO":"2027-08-27T00:00:00"}}

Saved and opened again it is the same day.

{"save":"a.nascor"}
{"close":"discard"}
{"open":"a.nascor"}
{"state":true}
=~ {"fields":{"birthDateField":"8/27/27"},"document":{"eddISO":"2027-08-27T00:00:00"}}
