Choosing a weight formula

The weight chart hears of it through the other charts, as for a growth standard.

{"new":true}
{"menu":["Estimated Fetal Weight",0]}
=> {"enabled":true,"state":1}
{"state":true}
{"menu":["Estimated Fetal Weight",3]}
=> {"enabled":true,"state":0}
{"state":true}
=~ {"edited":false,"posted":[["UpdateStandards","NCDocument"],"..."],"document":{"standard":0,"fetalWeightStandard":3,"crlStandard":0},"defaults":{"Standard":0,"Estimated Fetal Weight Standard":3,"CRL Standard":0}}
{"do":["fetalWeightStandard"]}
=> {"result":3}
{"menu":["Estimated Fetal Weight",3]}
=> {"enabled":true,"state":1}
{"app":["doSetEFWStandard",7]}
{"new":true}
{"state":true}
=~ {"document":{"fetalWeightStandard":7}}
{"do":["doSetEFWStandard",-3]}
{"state":true}
=~ {"document":{"fetalWeightStandard":-3},"defaults":{"Estimated Fetal Weight Standard":-3}}
