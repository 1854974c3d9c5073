A colleague's changes of a file are not overwritten unasked

Two workplaces open one patient on a share. What the colleague saved meanwhile is lost only when the user says so; Return
and Escape cancel, and under another name both are kept.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["bpdField","45.5"]}
{"save":"AB-123.nascor"}
=> {"saved":true}
{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["bpdField","47.1"]}
{"save":"colleague.nascor"}
{"close":"cancel"}
{"outside":["copy","colleague.nascor","AB-123.nascor"]}
{"edit":["hcField","160"]}
{"state":true}
{"save":true}
=> {"saved":false}
{"state":true}
=~ {"edited":true,"alerts":[["Another program has changed the file of this document. Do you want to replace what it holds now?","...AB-123.nascor...save this document under another name.","Save Anyway","Cancel"]]}

Nothing was written, and the name that the file has already gets the same question.

{"save":"./AB-123.nascor"}
=> {"saved":false}
{"close":"save"}
=> {"closed":false}
{"save":"mine.nascor"}
=> {"saved":true}
{"close":"cancel"}
=> {"closed":true}
{"open":"AB-123.nascor"}
{"state":true}
=~ {"fields":{"bpdField":"47.1","hcField":"0.0"}}

Reading the colleague's document was enough to save over it again; so is having saved anyway.

{"edit":["hcField","161"]}
{"save":true}
=> {"saved":true}
{"outside":["copy","mine.nascor","AB-123.nascor"]}
{"edit":["acField","140"]}
{"answer":["Save Anyway"]}
{"save":true}
=> {"saved":true}
{"edit":["flField","30"]}
{"save":true}
=> {"saved":true}
{"close":"cancel"}
{"open":"AB-123.nascor"}
{"state":true}
=~ {"fields":{"bpdField":"47.1","hcField":"161.0","acField":"140.0","flField":"30.0"}}
