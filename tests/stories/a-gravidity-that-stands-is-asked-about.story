A gravidity that stands is asked about before it is changed

The first time nothing is asked: there is none yet.

{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","3"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"alerts":[],"fields":{"gravidaField":"3"}}

Now it stands. Who cancels does not get into the field.

{"answer":["Cancel"]}
{"edit":["gravidaField","4"]}
=> {"began":false,"ended":false}
{"state":true}
=~ {"fields":{"gravidaField":"3"},"document":{"gravida":3},"alerts":[["Gravidity is already specified","Are you sure you want to modify it?","Modify","Cancel"]]}

Only "Modify" lets the change begin.

{"answer":["Modify"]}
{"edit":["gravidaField","4"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"fields":{"gravidaField":"4","headerSummaryField":"A (G4)"},"document":{"gravida":4},"alerts":[["Gravidity is already specified","Are you sure you want to modify it?","Modify","Cancel"]]}

Walking through the field without a change asks nothing.

{"visit":"gravidaField"}
=> {"began":true,"ended":true}
{"state":true}
=~ {"alerts":[]}
