A gravidity that no file can hold is told of

A file has 32 bits for it. What is saved is another number, and whoever typed too many digits, or whose script did, hears of it
while the right one can still be typed.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["gravidaField","2147483647"]}
{"edit":["bpdField","45"]}
{"save":"AB-123.nascor"}
=> {"saved":true}
{"told":true}
=> {"told":[]}
{"script":["set","gravida",5000000000]}
{"save":true}
=> {"saved":true}
{"told":true}
=~ {"told":["The document was saved, but its file cannot hold all of it. ...AB-123.nascor: The gravidity 5000000000 will be read as 705032704. A file holds gravidities up to 2147483647."]}
{"answer":["Modify"]}
{"edit":["gravidaField","99999999999999999999"]}
{"close":"save"}
=> {"closed":true}
{"told":true}
=~ {"told":["...The gravidity 9223372036854775807 will be read as -1...."]}
{"open":"AB-123.nascor"}
{"state":true}
=~ {"fields":{"gravidaField":"-1"}}
