Without a window the menus do nothing

Items of standards cannot be chosen; those of the first standard show a tick all the same, because no document reads as standard 0.

{"menu":["Standards",0]}
=> {"enabled":false,"state":1}
{"menu":["Standards",2]}
=> {"enabled":false,"state":0}
{"menu":["Estimated Fetal Weight",0]}
=> {"enabled":false,"state":1}
{"menu":["Crown Rump Length",0]}
=> {"enabled":false,"state":1}
{"menu":["Crown Rump Length",1]}
=> {"enabled":false,"state":0}
{"app":["doSetStandard",2]}
=> {"result":null}
{"app":["doSetEFWStandard",2]}
{"app":["doSetCRLStandard",2]}
{"app":["doAdjustDeliveryDate"]}
{"state":true}
=> {"defaults":{"DataFile Extension":"nascor","Show All":"YES","Standard":0,"Estimated Fetal Weight Standard":0,"CRL Standard":0},"posted":[],"alerts":[],"log":[],"exports":[],"prints":[],"opened":[],"effects":[]}
