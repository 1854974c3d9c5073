A command that cannot be done is an error

Without a document there is nothing to export, and a command without a name is none. Properties need a document too.

{"script":["command","export to file"]}
=~ {"error":"Value==nil...NascorScriptCommand:22..."}
{"script":["command",null]}
=~ {"error":"Value==nil...NascorScriptCommand:11..."}
{"script":["get","bpd"]}
=~ {"error":"..."}
{"script":["set","bpd",45]}
=~ {"error":"..."}
{"state":true}
=~ {"log":["export to file"],"exports":[]}
