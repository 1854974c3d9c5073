A scripted length goes through single precision

What a script hands over becomes the nearest single-precision number, as a file would keep it: saving and opening again changes no
digit. A typed length keeps the digits that were typed.

{"new":true}
{"edit":["flField","45.3"]}
{"script":["set","bpd",45.3]}
{"script":["get","bpd"]}
=> {"value":45.29999923706055}
{"script":["get","fl"]}
=> {"value":45.3}
{"script":["set","hc",25.3]}
{"script":["set","ac",45.25]}
{"state":true}
=~ {"fields":{"bpdField":"45.3","flField":"45.3","hcField":"25.3","acField":"45.3"},"document":{"examinations":[{"measurements":[{"bpd":45.29999923706055,"hc":25.299999237060547,"ac":45.25,"fl":45.3}]}]},"log":["Scripting: set bpd to 45.3","Scripting: set hc to 25.3","Scripting: set ac to 45.2"]}

The log rounds a tie to the even digit, the window away from zero.
