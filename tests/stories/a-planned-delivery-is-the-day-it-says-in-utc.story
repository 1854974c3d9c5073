A planned delivery is the day that it says (UTC)

A day is not always 24 hours long: the clocks there never change.
A delivery planned a number of days from the EDD is on the day that
one counts to on the calendar, before and after such a change.

{"zone":"UTC"}
=> {}
{"new":true}
{"edit":["birthDateField","4/1/27"]}
{"edit":["examDateField","11/21/26"]}
{"state":true}
=~ {"fields":{"ageField":"21w 2d","adjustEDDField":"4/1/27","adjustDeliverOnField":"4/1/27","adjustDeliverAtField":"40w 0d"},"document":{"eddISO":"2027-04-01T00:00:00"}}
{"step":-7}
=> {"value":-7}
{"state":true}
=~ {"fields":{"adjustEDDField":"4/1/27","adjustDeliverOnField":"3/25/27","adjustDeliverAtField":"39w 0d"},"document":{"extrapolatedGestation":39,"eddISO":"2027-04-01T00:00:00"}}
{"step":7}
=> {"value":7}
{"state":true}
=~ {"fields":{"adjustDeliverOnField":"4/8/27","adjustDeliverAtField":"41w 0d"},"document":{"extrapolatedGestation":41}}

The same over more than half a year.

{"step":-200}
{"state":true}
=~ {"fields":{"adjustDeliverOnField":"9/13/26"},"document":{"eddISO":"2027-04-01T00:00:00"}}
