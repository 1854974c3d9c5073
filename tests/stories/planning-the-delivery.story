Planning the delivery

The panel shows the EDD, the planned day and the gestation on it, and the charts project to it.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"app":["doAdjustDeliveryDate"]}
{"state":true}
=~ {"windows":{"adjustDeliveryPanel":true},"fields":{"adjustEDDField":"4/10/27","adjustDeliverOnField":"4/10/27","adjustDeliverAtField":"40w 0d"}}
{"save":"a.nascor"}
{"step":-7}
=> {"value":-7}
{"state":true}
=~ {"edited":true,"fields":{"adjustEDDField":"4/10/27","adjustDeliverOnField":"4/3/27","adjustDeliverAtField":"39w 0d"},"document":{"extrapolatedGestation":39}}

Another EDD keeps the number of days.

{"answer":["Modify"]}
{"edit":["birthDateField","4/20/27"]}
{"state":true}
=~ {"stepper":{"value":-7},"fields":{"adjustEDDField":"4/20/27","adjustDeliverOnField":"4/13/27","adjustDeliverAtField":"39w 0d"}}
