A script takes a date away

{"new":true}
{"script":["get","edd"]}
=> {"value":null}
{"script":["set","edd","2027-04-10"]}
{"script":["set","edd",null]}
{"script":["get","edd"]}
=> {"value":null}
{"script":["set","examDate",""]}
{"script":["get","examDate"]}
=> {"value":null}
{"state":true}
=~ {"fields":{"birthDateField":"","examDateField":""},"document":{"edd":null,"examinations":[{"examDate":null}]},"log":["Scripting: edd is (null)","Scripting: set edd to 2027-04-10 00:00:00 +0000","Scripting: set edd to (null)","Scripting: edd is (null)","Scripting: set exam date to (null)","Scripting: examDate is (null)"]}
