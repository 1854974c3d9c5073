The choice of fetus names the kind of pregnancy

One fetus more each time; the new one is on show at once, and Ctrl with its number shows it again. A pregnancy has at most five:
the sixth is not added, without a word.

{"new":true}
{"state":true}
=~ {"popup":{"titles":["Singleton"],"keys":[""],"selected":0}}
{"do":["addFetus"]}
{"state":true}
=~ {"edited":true,"currentFetus":1,"popup":{"titles":["Twin 1","Twin 2"],"keys":["1","2"],"selected":1}}
{"do":["addFetus"]}
{"state":true}
=~ {"currentFetus":2,"popup":{"titles":["Triplet 1 of 3","Triplet 2 of 3","Triplet 3 of 3"],"keys":["1","2","3"],"selected":2}}
{"do":["addFetus"]}
{"state":true}
=~ {"currentFetus":3,"popup":{"titles":["Quad 1 of 4","Quad 2 of 4","Quad 3 of 4","Quad 4 of 4"],"keys":["1","2","3","4"],"selected":3}}
{"do":["addFetus"]}
{"state":true}
=~ {"currentFetus":4,"popup":{"titles":["Quin 1 of 5","Quin 2 of 5","Quin 3 of 5","Quin 4 of 5","Quin 5 of 5"],"keys":["1","2","3","4","5"],"selected":4}}
{"save":"quins.nascor"}
{"do":["addFetus"]}
{"state":true}
=~ {"edited":false,"currentFetus":4,"popup":{"selected":4},"alerts":[],"document":{"numberOfFetuses":5,"examinations":[{"measurements":[{},{},{},{},{}]}]}}
