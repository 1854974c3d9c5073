A script measures the fetus that is left

After the second of twins was removed, the fetus on show is the one that is left: that is whom scripts measure, and the removed
twin's numbers, which the window still shows, go with the refresh.

{"new":true}
{"edit":["bpdField","45"]}
{"do":["addFetus"]}
{"edit":["bpdField","70"]}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"currentFetus":0,"fields":{"bpdField":"70.0"}}
{"script":["get","bpd"]}
=> {"value":45}
{"script":["set","hc",170]}
{"state":true}
=~ {"fields":{"bpdField":"45.0","hcField":"170.0"},"document":{"examinations":[{"measurements":[{"bpd":45,"hc":170}]}]}}
