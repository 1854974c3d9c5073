A planned delivery is the day that it says (America/New_York)

A day is not always 24 hours long: the clocks there spring forward on 14 March.
A delivery planned a number of days from the EDD is on the day that
one counts to on the calendar, before and after such a change.

{"zone":"America/New_York"}
=> {}
{"new":true}
{"edit":["birthDateField","3/17/27"]}
{"edit":["examDateField","11/21/26"]}
{"state":true}
=~ {"fields":{"ageField":"23w 3d","adjustEDDField":"3/17/27","adjustDeliverOnField":"3/17/27","adjustDeliverAtField":"40w 0d"},"document":{"eddISO":"2027-03-17T00:00:00"}}
{"step":-7}
=> {"value":-7}
{"state":true}
=~ {"fields":{"adjustEDDField":"3/17/27","adjustDeliverOnField":"3/10/27","adjustDeliverAtField":"39w 0d"},"document":{"extrapolatedGestation":39,"eddISO":"2027-03-17T00:00:00"}}
{"step":7}
=> {"value":7}
{"state":true}
=~ {"fields":{"adjustDeliverOnField":"3/24/27","adjustDeliverAtField":"41w 0d"},"document":{"extrapolatedGestation":41}}

The same over more than half a year.

{"step":-200}
{"state":true}
=~ {"fields":{"adjustDeliverOnField":"8/29/26"},"document":{"eddISO":"2027-03-17T00:00:00"}}
