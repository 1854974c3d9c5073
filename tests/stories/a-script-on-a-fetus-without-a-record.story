A script on a fetus without a record

The last examination has a date, and no record of the fetus on show: lengths read 0 and reach nobody.

{"open":"$DATA/a-fetus-without-a-record.nascor"}
{"choose":1}
{"state":true}
{"script":["get","bpd"]}
=> {"value":0}
{"script":["set","bpd",45]}
{"script":["get","bpd"]}
=> {"value":0}
{"script":["set","examDate","2026-11-21"]}
{"script":["get","examDate"]}
=> {"value":"2026-11-21"}
{"state":true}
=~ {"currentFetus":1,"edited":true,"fields":{"bpdField":""},"log":["Scripting: set bpd to 45.0","Scripting: set exam date to 2026-11-21 00:00:00 +0000","Scripting: examDate is 2026-11-21 00:00:00 +0000"]}
