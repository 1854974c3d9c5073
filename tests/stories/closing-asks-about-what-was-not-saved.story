Closing asks about what was not saved

{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}

Cancelling keeps the window.

{"close":"cancel"}
=> {"closed":false}
{"state":true}
=~ {"number":0,"edited":true}

Saving a document that has no file yet saves it under the patient's name in the documents folder.

{"close":"save"}
=> {"closed":true}
{"open":"A (G1).nascor"}
=> {"number":1}
{"state":true}
=~ {"fields":{"referenceIDField":"A"}}

Discarding leaves the file as it was.

{"edit":["referenceIDField","B"]}
{"close":"discard"}
=> {"closed":true}
{"open":"A (G1).nascor"}
=> {"number":2}
{"state":true}
=~ {"edited":false,"fields":{"referenceIDField":"A"}}

What was not edited closes without a question, whatever the answer would be. Without a window only the
program's own things are left.

{"close":"cancel"}
=> {"closed":true}
{"state":true}
{"state":true}
=> {"defaults":{"DataFile Extension":"nascor","Show All":"YES","Standard":0,"Estimated Fetal Weight Standard":0,"CRL Standard":0},"posted":[],"alerts":[],"log":[],"exports":[],"prints":[],"opened":[],"effects":[]}
