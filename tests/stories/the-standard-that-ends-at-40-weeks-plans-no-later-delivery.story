The standard that ends at 40 weeks plans no later delivery

Under the last standard of the menu the stepper ends at the EDD; a later plan is moved back to it. Changing the standard does
not mark the document as edited.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"step":5}
=> {"value":5}
{"save":"a.nascor"}
{"menu":["Standards",3]}
=> {"enabled":true,"state":0}
{"state":true}
=~ {"edited":false,"stepper":{"value":0,"maximum":0},"fields":{"adjustDeliverOnField":"4/10/27","adjustDeliverAtField":"40w 0d"},"document":{"standard":3,"extrapolatedGestation":40}}
{"step":1}
=> {"value":0}
{"menu":["Standards",1]}
{"step":7}
=> {"value":7}
{"state":true}
=~ {"stepper":{"value":7,"maximum":7},"fields":{"adjustDeliverOnField":"4/17/27","adjustDeliverAtField":"41w 0d"}}

Without an EDD the plan is kept although nothing can be shown.

{"new":true}
{"do":["doSetStandard",0]}
{"save":"b.nascor"}
{"step":-7}
=> {"value":-7}
{"state":true}
=~ {"edited":false,"fields":{"adjustEDDField":"","adjustDeliverOnField":"","adjustDeliverAtField":""},"document":{"extrapolatedGestation":39}}
