Removing a fetus is asked about

{"new":true}
{"do":["addFetus"]}
{"save":"twins.nascor"}
{"state":true}
{"do":["deleteFetus"]}
{"state":true}
=~ {"edited":false,"effects":[],"alerts":[["Are you sure you want to remove this fetus?","","Remove","Cancel"]],"popup":{"titles":["Twin 1","Twin 2"]},"document":{"numberOfFetuses":2}}

With "Remove" the fetus on show leaves every examination in a puff of smoke, beside the middle of the choice of fetus.

{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"edited":true,"currentFetus":0,"effects":[[10,-20,0]],"popup":{"titles":["Singleton"],"keys":[""],"selected":0},"document":{"numberOfFetuses":1,"examinations":[{"measurements":[{}]}]}}
