A first report offers its crown-rump length

No document stores one. Where it is wanted it stands in the panel that dates by it, with the day of the scan.

{"new":true}
{"import":["$REPORTS/early.dcm"]}
=~ {"rows":[["","EDD","4 June 2027","","is added",true],["Fetus 1","CRL","45.2 mm","","is not stored; can be entered in EDD from CRL",false],["Fetus 1","BPD","","","is not taken: the report holds no value",null],"..."]}
{"decide":["row","","EDD",false]}
=~ {"obstacle":"There is nothing to be added.","rows":[["","EDD","4 June 2027","","is left out",false],"..."]}
{"decide":["row","Fetus 1","CRL",true]}
=~ {"obstacle":null,"rows":[["","EDD","4 June 2027","","is left out",false],["Fetus 1","CRL","45.2 mm","","is entered in EDD from CRL",true],"..."]}
{"decide":"OK"}
=> {"stored":true}
{"state":true}
=~ {"windows":{"crlWindow":true},"fields":{"referenceIDField":"MÜLLER-1","crlWindowDate":"11/13/26","crlWindowCRL":"45.2","birthDateField":""},"document":{"edd":null,"examinations":[{"measurements":[{"bpd":0,"hc":0,"ac":0,"fl":0}]}]}}
