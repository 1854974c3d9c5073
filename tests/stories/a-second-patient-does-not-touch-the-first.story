A second patient does not touch the first

{"new":true}
{"edit":["referenceIDField","ONE"]}
{"edit":["birthDateField","4/10/27"]}
{"edit":["bpdField","50"]}
{"new":true}
{"edit":["referenceIDField","TWO"]}
{"edit":["bpdField","60"]}
{"do":["addFetus"]}
{"use":0}
{"state":true}
=~ {"number":0,"currentFetus":0,"popup":{"titles":["Singleton"]},"fields":{"referenceIDField":"ONE","bpdField":"50.0"},"document":{"maternalIDString":"ONE","numberOfFetuses":1,"examinations":[{"measurements":[{"bpd":50}]}]}}
{"use":1}
{"state":true}
=~ {"number":1,"currentFetus":1,"fields":{"referenceIDField":"TWO","birthDateField":"","bpdField":"0.0"},"document":{"edd":null,"numberOfFetuses":2}}
