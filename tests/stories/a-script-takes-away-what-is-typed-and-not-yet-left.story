A script takes away what is typed and not yet left

Reading the identifier, and every write, shows the records anew. What stands in a field that was not left yet is lost with it; here
it is a length that its field refused to take.

{"new":true}
{"edit":["bpdField","48"]}
{"edit":["bpdField","480"]}
=> {"began":true,"ended":false}
{"script":["get","gravida"]}
{"script":["get","bpd"]}
=> {"value":48}
{"tab":1}
=> {"refused":"bpdField"}
{"script":["get","identifier"]}
{"tab":1}
=> {}
{"state":true}
=~ {"tab":1,"fields":{"bpdField":"48.0"}}
{"edit":["bpdField","480"]}
=> {"began":true,"ended":false}
{"script":["set","hc",170]}
{"tab":2}
=> {}
{"state":true}
=~ {"fields":{"bpdField":"48.0","hcField":"170.0"}}

The page is turned without looking at the records.

{"edit":["bpdField","480"]}
=> {"began":true,"ended":false}
{"script":["set","tabViewIndex",3]}
{"state":true}
=~ {"tab":3}
{"tab":2}
=> {"refused":"bpdField"}

A note that was typed since the last examination was left goes the same way.

{"revert":"bpdField"}
{"edit":["notesField","breech"]}
{"script":["get","identifier"]}
{"state":true}
=~ {"fields":{"notesField":""}}
