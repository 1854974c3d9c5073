Turning the pages

Trends, BPD, HC, AC, FL, weight, report.

{"new":true}
{"state":true}
=~ {"tab":0}
{"tab":"report"}
=> {}
{"state":true}
=~ {"tab":6}
{"do":["switchToGraph",1]}
{"state":true}
=~ {"tab":1}
{"tab":7}
=~ {"error":"..."}
{"do":["switchToGraph",-1]}
=~ {"error":"..."}
{"state":true}
=~ {"tab":1,"edited":false}
