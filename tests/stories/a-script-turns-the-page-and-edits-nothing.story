A script turns the page and edits nothing

{"new":true}
{"state":true}
{"script":["set","tabViewIndex",2]}
=> {"value":null}
{"state":true}
=~ {"tab":2,"edited":false,"log":["Scripting: set tab view index to 2"]}
{"script":["get","tabViewIndex"]}
=> {"value":2}

A number with a fraction loses it. A page that is not there is an error; the page on show stays.

{"script":["set","tabViewIndex",6.9]}
{"script":["set","tabViewIndex",7]}
=> {"error":"tabViewIndex: expected one of the pages 0 to 6, but got 7"}
{"script":["set","tabViewIndex",-1]}
=~ {"error":"..."}
{"script":["set","tabViewIndex",-0.9]}
{"state":true}
=~ {"tab":0,"edited":false}
