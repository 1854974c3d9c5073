Lengths are shown rounded half up

As a person rounds: 25.25 shows as 25.3 and 45.25 as 45.3. What is stored is what was typed.

{"new":true}
{"edit":["bpdField","25.25"]}
{"edit":["hcField","45.25"]}
{"edit":["acField","45.24"]}
{"edit":["flField","0.05"]}
{"state":true}
=~ {"fields":{"bpdField":"25.3","hcField":"45.3","acField":"45.2","flField":"0.1"},"document":{"examinations":[{"measurements":[{"bpd":25.25,"hc":45.25,"ac":45.24,"fl":0.05}]}]}}
{"edit":["flField","-0"]}
{"edit":["bpdField","99.95"]}
{"state":true}
=~ {"fields":{"bpdField":"100.0","flField":"0.0"}}
