A script on a document without examinations

There is nothing to read, and writes reach nothing; but the window is shown anew, and the document counts as edited.

{"open":"$DATA/without-examinations.nascor"}
{"script":["get","examDate"]}
=> {"value":null}
{"script":["get","bpd"]}
=> {"value":0}
{"script":["get","hc"]}
=> {"value":0}
{"script":["get","ac"]}
=> {"value":0}
{"script":["get","fl"]}
=> {"value":0}
{"state":true}
=~ {"edited":false,"log":["Scripting: examDate is (null)"]}
{"script":["set","bpd",45]}
=> {"value":null}
{"script":["set","examDate","2026-11-21"]}
=> {"value":null}
{"state":true}
=~ {"edited":true,"fields":{"bpdField":""},"document":{"examinations":[]},"log":["Scripting: set bpd to 45.0","Scripting: set exam date to 2026-11-21 00:00:00 +0000"]}
