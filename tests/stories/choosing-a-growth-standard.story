Choosing a growth standard

The choice is the document's; the last one chosen anywhere becomes the standard of new patients. Another open document keeps its
own, and its menu shows its own tick.

{"new":true}
{"menu":["Standards",0]}
=> {"enabled":true,"state":1}
{"menu":["Standards",2]}
=> {"enabled":true,"state":0}
{"menu":["Standards",2]}
=> {"enabled":true,"state":1}
{"menu":["Standards",0]}
=> {"enabled":true,"state":0}
{"menu":["Standards",2]}
{"state":true}
=~ {"edited":false,"document":{"standard":2},"defaults":{"Standard":2,"Estimated Fetal Weight Standard":0,"CRL Standard":0}}
{"do":["standard"]}
=> {"result":2}
{"new":true}
=> {"number":1}
{"state":true}
=~ {"document":{"standard":2}}
{"app":["doSetStandard",1]}
{"state":true}
=~ {"document":{"standard":1},"defaults":{"Standard":1}}
{"use":0}
{"state":true}
=~ {"document":{"standard":2}}
{"menu":["Standards",2]}
=> {"enabled":true,"state":1}
{"use":1}
{"menu":["Standards",1]}
=> {"enabled":true,"state":1}

The choice is told to all charts first, by the document itself.

{"state":true}
{"do":["doSetStandard",0]}
{"state":true}
=~ {"edited":false,"posted":[["UpdateStandards","NCDocument"],"..."],"defaults":{"Standard":0}}

A standard that nobody knows is stored and passed on.

{"do":["doSetStandard",17]}
{"state":true}
=~ {"document":{"standard":17},"defaults":{"Standard":17}}
{"new":true}
{"state":true}
=~ {"document":{"standard":17}}
