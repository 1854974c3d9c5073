A script may store what the window refuses

Values of scripts are not tested for their range. Numbers are cut to whole ones where whole ones are kept, and what no 64 bits hold is
the nearest that they do.

{"new":true}
{"script":["set","gravida",-1]}
{"script":["set","bpd",480]}
{"script":["set","hc",-1.5]}
{"script":["set","ac",1e39]}
{"script":["set","fl","nan"]}
{"state":true}
=~ {"edited":true,"fields":{"gravidaField":"-1","bpdField":"480.0","hcField":"-1.5"},"document":{"gravida":-1,"examinations":[{"measurements":[{"bpd":480,"hc":-1.5,"ac":"inf","fl":"nan"}]}]},"log":["Scripting: set gravida to -1","Scripting: set bpd to 480.0","Scripting: set hc to -1.5","Scripting: set ac to inf","Scripting: set fl to nan"]}
{"script":["set","gravida",2.9]}
{"script":["get","gravida"]}
=> {"value":2}
{"script":["set","gravida",-2.9]}
{"script":["get","gravida"]}
=> {"value":-2}
{"script":["set","gravida",1e300]}
{"script":["get","gravida"]}
=> {"value":9223372036854775807}
{"script":["set","gravida","nan"]}
{"script":["get","gravida"]}
=> {"value":0}
