The OK of a dialog stores and marks once

The EDD is entered, everything is stored and drawn anew, the document is edited, and the delivery is planned as many days from
the new EDD as from the old one. The delivery's own storing would draw a second time, and does not.

{"new":true}
{"step":-7}
{"edit":["notesField","scanned twice"]}
{"save":"a.nascor"}
{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowLMP","7/1/26"]}
{"state":true}
=~ {"edited":false,"displays":2,"fields":{"adjustEDDField":"","adjustDeliverOnField":"","adjustDeliverAtField":""}}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"edited":true,"displays":3,"alerts":[],"windows":{"lmpWindow":false},"fields":{"birthDateField":"4/7/27","adjustEDDField":"4/7/27","adjustDeliverOnField":"3/31/27","adjustDeliverAtField":"39w 0d","ageField":"20w 3d"},"document":{"eddISO":"2027-04-07T00:00:00","extrapolatedGestation":39}}
{"save":true}
{"edit":["crlWindowDate","8/20/26"]}
{"edit":["crlWindowCRL","45"]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"edited":true,"displays":4,"fields":{"birthDateField":"3/8/27","adjustEDDField":"3/8/27","adjustDeliverOnField":"3/1/27","adjustDeliverAtField":"39w 0d"}}
{"save":true}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"edited":true,"displays":5,"fields":{"birthDateField":"8/29/27","adjustEDDField":"8/29/27","adjustDeliverOnField":"8/22/27"}}

A note that was typed meanwhile is stored with the rest.

{"edit":["notesField","scanned again"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"document":{"examinations":[{"note":"scanned again"}]}}
