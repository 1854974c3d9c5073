A script enters the last examination

A measuring device's script hands the lengths of today's scan to the open document. They appear in the window at once, each write
makes the document edited, and each leaves a line in the system's log.

{"new":true}
{"state":true}
=~ {"edited":false,"log":[]}
{"script":["set","identifier","ab-123"]}
=> {"value":null}
{"script":["set","gravida",2]}
{"script":["set","edd","2027-04-10"]}
{"script":["set","examDate","2026-11-21"]}
{"script":["set","bpd",45.3]}
{"script":["set","hc",170]}
{"script":["set","ac",150.26]}
{"script":["set","fl",30.04]}
{"state":true}
=~ {"edited":true,"log":["Scripting: set identifer to ab-123","Scripting: set gravida to 2","Scripting: set edd to 2027-04-10 00:00:00 +0000","Scripting: set exam date to 2026-11-21 00:00:00 +0000","Scripting: set bpd to 45.3","Scripting: set hc to 170.0","Scripting: set ac to 150.3","Scripting: set fl to 30.0"],"fields":{"referenceIDField":"ab-123","gravidaField":"2","birthDateField":"4/10/27","examDateField":"11/21/26","ageField":"20w 0d","bpdField":"45.3","hcField":"170.0","acField":"150.3","flField":"30.0"}}

The identifier is taken as it is: only what is typed goes to capitals.

{"script":["get","identifier"]}
=> {"value":"ab-123"}
{"script":["get","gravida"]}
=> {"value":2}
{"script":["get","edd"]}
=> {"value":"2027-04-10"}
{"script":["get","examDate"]}
=> {"value":"2026-11-21"}
{"state":true}
=~ {"log":["Scripting: identifier is ab-123","Scripting: gravida is 2","Scripting: edd is 2027-04-10 00:00:00 +0000","Scripting: examDate is 2026-11-21 00:00:00 +0000"]}

Reading lengths and the page is not logged.

{"script":["get","hc"]}
=> {"value":170}
{"script":["get","ac"]}
{"script":["get","fl"]}
{"script":["get","bpd"]}
{"script":["get","tabViewIndex"]}
=> {"value":0}
{"state":true}
=~ {"log":[]}
