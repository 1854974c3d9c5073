A refused length never reaches the patient by any road

2000 mm is typed for 200.0. While the field refuses it, no action of the window is done, so that nothing can carry the number
into the records or lose it unseen.

{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"edit":["birthDateField","4/10/27"]}
{"do":["addFetus"]}
{"do":["addExaminationAction"]}
{"edit":["bpdField","80"]}
{"save":"a.nascor"}
{"edit":["bpdField","2000"]}
=> {"began":true,"ended":false}
{"choose":0}
=> {"refused":"bpdField"}
{"step":3}
=> {"refused":"bpdField"}
{"tab":2}
=> {"refused":"bpdField"}
{"menu":["Standards",2]}
=> {"refused":"bpdField"}
{"menu":["View","Show All"]}
=> {"refused":"bpdField"}
{"save":true}
=> {"refused":"bpdField"}
{"save":"b.nascor"}
=> {"refused":"bpdField"}

Another field cannot be entered either, the note included.

{"edit":["hcField","200"]}
=> {"began":false,"ended":false}
{"visit":"acField"}
=> {"began":false,"ended":false}
{"edit":["notesField","x"]}
=> {"began":false,"ended":false}

Visiting the field itself finds it still refusing.

{"visit":"bpdField"}
=> {"began":true,"ended":false}

Nothing of all that has happened.

{"state":true}
=~ {"currentFetus":1,"tab":0,"stepper":{"value":0},"fields":{"bpdField":"80.0","hcField":"0.0","notesField":""},"defaults":{"Standard":0,"Show All":"YES"},"document":{"standard":0,"extrapolatedGestation":40}}
{"open":"b.nascor"}
=~ {"error":"...b.nascor: No such file or directory"}

A new window and the other windows can still be used.

{"new":true}
=> {"number":1}
{"use":0}
=> {}

The old text comes back on request, and the work goes on.

{"revert":"bpdField"}
=> {}
{"tab":2}
=> {}
{"state":true}
=~ {"tab":2,"fields":{"bpdField":"80.0"},"document":{"examinations":[{},{"measurements":[{},{"bpd":80}]}]}}
