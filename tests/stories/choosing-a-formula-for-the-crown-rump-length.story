Choosing a formula for the crown-rump length

Its name stands in the dialog. No chart depends on it, so nothing is told to anybody.

{"new":true}
{"menu":["Crown Rump Length",0]}
=> {"enabled":true,"state":1}
{"state":true}
{"menu":["Crown Rump Length",3]}
=> {"enabled":true,"state":0}
{"state":true}
=~ {"edited":false,"posted":[],"fields":{"crlStandardReference":"CRL Standard: Westerway (2000)"},"document":{"crlStandard":3},"defaults":{"CRL Standard":3,"Standard":0}}
{"menu":["Crown Rump Length","Nelson (1981)"]}
=> {"enabled":true,"state":0}
{"state":true}
=~ {"posted":[],"fields":{"crlStandardReference":"CRL Standard: Nelson (1981)"},"document":{"crlStandard":1}}
{"app":["doSetCRLStandard",2]}
{"state":true}
=~ {"fields":{"crlStandardReference":"CRL Standard: Robinson (1975)"},"defaults":{"CRL Standard":2}}
{"do":["doSetCRLStandard",4]}
{"state":true}
=~ {"fields":{"crlStandardReference":"CRL Standard: Unspecified"},"document":{"crlStandard":4},"defaults":{"CRL Standard":4}}
