A script makes a new document

Exactly one, as if it had been chosen from the menu. Another word does nothing.

{"script":["command","make new document"]}
=> {"value":null}
{"state":true}
=~ {"number":0,"blank":true,"edited":false,"log":["make new document"]}
{"script":["command","Make New Document"]}
=> {"value":null}
{"script":["command","close"]}
=> {"value":null}
{"state":true}
=~ {"number":0,"log":[]}
{"use":1}
=~ {"error":"..."}
{"script":["command","make new document"]}
{"state":true}
=~ {"number":1,"log":["make new document"]}
