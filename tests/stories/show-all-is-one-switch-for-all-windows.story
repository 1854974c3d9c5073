"Show All" is one switch for all windows

All fetuses on the charts, or the chosen one alone. Every window draws anew each time; twice is as it was.

{"new":true}
{"new":true}
{"state":true}
=~ {"displays":2,"defaults":{"Show All":"YES"}}
{"menu":["View","Show All"]}
=> {"enabled":true,"state":1}
{"state":true}
=~ {"displays":3,"posted":[["UpdateShowAll","NCAppController"]],"defaults":{"Show All":false}}
{"use":0}
{"state":true}
=~ {"displays":3,"edited":false}
{"menu":["View","Show All"]}
=> {"enabled":true,"state":0}
{"state":true}
=~ {"displays":4,"posted":[["UpdateShowAll","NCAppController"]],"defaults":{"Show All":true}}

It works without a window too, and a closed window hears nothing of it.

{"close":"cancel"}
{"close":"cancel"}
{"app":["toggleShowAll"]}
=> {"result":null}
{"state":true}
=~ {"posted":[["UpdateShowAll","NCAppController"]],"defaults":{"Show All":false}}
{"menu":["View","Show All"]}
=> {"enabled":true,"state":0}
