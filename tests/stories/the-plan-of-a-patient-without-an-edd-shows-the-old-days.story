The plan of a patient without an EDD shows the old days

When the EDD is taken away the panel keeps its texts, since there is nothing to show in their place. Moving the days plans the
gestation all the same, and neither draws nor marks anything.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"step":-3}
{"answer":["Modify"]}
{"edit":["birthDateField",""]}
{"save":"a.nascor"}
{"step":-7}
{"state":true}
=~ {"edited":false,"fields":{"birthDateField":"","adjustEDDField":"4/10/27","adjustDeliverOnField":"4/7/27","adjustDeliverAtField":"39w 4d"},"document":{"extrapolatedGestation":39}}

The days that were planned meanwhile count from the EDD that comes next.

{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowLMP","7/1/26"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"4/7/27","adjustDeliverOnField":"3/31/27","adjustDeliverAtField":"39w 0d"}}
