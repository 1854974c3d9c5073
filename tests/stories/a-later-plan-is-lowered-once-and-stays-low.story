A later plan is lowered once and stays low

Under the last standard of the menu no delivery is planned after the EDD. Going back to another standard permits it again, and plans
none by itself; neither marks the document as edited.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"step":7}
=> {"value":7}
{"save":"a.nascor"}
{"menu":["Standards",3]}
{"state":true}
=~ {"edited":false,"stepper":{"value":0,"minimum":-280,"maximum":0,"increment":1},"fields":{"adjustDeliverOnField":"4/10/27","adjustDeliverAtField":"40w 0d"},"document":{"extrapolatedGestation":40}}
{"menu":["Standards",1]}
{"state":true}
=~ {"edited":false,"stepper":{"value":0,"maximum":7},"fields":{"adjustDeliverOnField":"4/10/27","adjustDeliverAtField":"40w 0d"},"document":{"extrapolatedGestation":40}}
{"menu":["Standards",3]}
{"menu":["Standards",2]}
{"state":true}
=~ {"edited":false,"stepper":{"value":0,"maximum":7}}

An earlier plan is left alone, and an unknown standard permits what most do.

{"step":-7}
{"menu":["Standards",3]}
{"state":true}
=~ {"stepper":{"value":-7,"maximum":0}}
{"do":["doSetStandard",9]}
{"state":true}
=~ {"stepper":{"value":-7,"maximum":7}}
