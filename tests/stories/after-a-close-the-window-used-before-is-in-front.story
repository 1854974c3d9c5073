After a close the window used before is in front

{"new":true}
=> {"number":0}
{"edit":["referenceIDField","ZERO"]}
{"new":true}
=> {"number":1}
{"new":true}
=> {"number":2}
{"use":0}
{"use":2}
{"close":"discard"}
=> {"closed":true}
{"state":true}
=~ {"number":0,"fields":{"referenceIDField":"ZERO"}}
{"close":"discard"}
{"state":true}
=~ {"number":1}

A number is never given again.

{"new":true}
=> {"number":3}
