A scripted date is a day of the user's zone

The log names the moment, which in New York is four hours behind.

{"zone":"America/New_York"}
{"new":true}
{"script":["set","edd","2027-04-10"]}
{"script":["get","edd"]}
=> {"value":"2027-04-10"}
{"state":true}
=~ {"fields":{"birthDateField":"4/10/27"},"document":{"eddISO":"2027-04-10T00:00:00"},"log":["Scripting: set edd to 2027-04-10 04:00:00 +0000","Scripting: edd is 2027-04-10 04:00:00 +0000"]}
