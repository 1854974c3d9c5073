An EDD is not replaced by a report without its own question

Everything is dated by it.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["birthDateField","3/4/27"]}
{"import":["$REPORTS/plain.dcm"]}
=~ {"rows":[["","EDD","11 March 2027","4 March 2027","is not taken: the established EDD stays",false],"..."]}
{"decide":["row","","EDD",true]}
=~ {"rows":[["","EDD","11 March 2027","4 March 2027","replaces the established EDD",true],"..."]}

Who keeps it has stored nothing yet.

{"answer":["Cancel"]}
{"decide":"OK"}
=> {"stored":false}
{"state":true}
=~ {"fields":{"birthDateField":"3/4/27","bpdField":"0.0"},"alerts":[["EDD is already specified","Are you sure you want to modify the established EDD?","Modify","Cancel"]]}
{"answer":["Modify"]}
{"decide":"OK"}
=> {"stored":true}
{"state":true}
=~ {"fields":{"birthDateField":"3/11/27","bpdField":"60.9","adjustDeliverOnField":"3/11/27"}}
{"do":["undo"]}
{"state":true}
=~ {"fields":{"birthDateField":"3/4/27","bpdField":"0.0","adjustDeliverOnField":"3/4/27"}}

Without a wish nothing is asked, and the EDD stays.

{"import":["$REPORTS/plain.dcm"]}
{"decide":"OK"}
=> {"stored":true}
{"state":true}
=~ {"fields":{"birthDateField":"3/4/27","bpdField":"60.9"},"alerts":[]}
