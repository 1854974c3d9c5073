The only fetus is not removed

{"new":true}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"edited":false,"alerts":[],"effects":[],"document":{"numberOfFetuses":1,"examinations":[{"measurements":[{}]}]}}
