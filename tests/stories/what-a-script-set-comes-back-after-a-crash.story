A script enters a patient that was never saved. After the crash the document is untitled, and what it holds is there.

{"new":true}
=> {"number":0}
{"script":["set","identifier","CD-4"]}
{"script":["set","bpd",45.5]}
{"keep":true}
=> {"kept":1}
{"crash":true}
{"recover":"Recover"}
=~ {"offered":["Patient: CD-4\nDocument: never saved\n..."],"opened":[1]}
{"script":["get","bpd"]}
=> {"value":45.5}
{"close":"discard"}
=> {"closed":true}
{"crash":true}
{"recover":"Recover"}
=> {"offered":[],"opened":[]}
