A file that is open in another window is not overwritten

Two windows on one file would overwrite each other's patient, so the second is not saved there, under whatever name.

{"new":true}
{"edit":["referenceIDField","one"]}
{"save":"one.nascor"}
{"new":true}
{"edit":["referenceIDField","two"]}
{"save":"one.nascor"}
=~ {"error":"...It is open in another window."}
{"save":"./one.nascor"}
=~ {"error":"...It is open in another window."}
{"state":true}
=~ {"edited":true,"fields":{"referenceIDField":"TWO"}}
{"save":"two.nascor"}
=> {"saved":true}
{"save":"two.nascor"}
=> {"saved":true}
{"use":0}
{"close":"cancel"}
=> {"closed":true}
{"open":"one.nascor"}
{"state":true}
=~ {"fields":{"referenceIDField":"ONE"}}
