The patient's name makes the titles

Reference ID and gravidity, with every slash as a dash; no title without an ID; a gravidity of 0 is not left out.

{"new":true}
{"do":["preferredFileName",true]}
=> {"result":""}
{"edit":["gravidaField","2"]}
{"do":["addFetus"]}
{"do":["preferredFileName",true]}
=> {"result":""}
{"edit":["referenceIDField","AB/123"]}
{"do":["preferredFileName",false]}
=> {"result":"AB-123 (G2)"}
{"do":["preferredFileName",true]}
=> {"result":"AB-123 (G2) 2 of 2"}
{"choose":0}
{"do":["preferredFileName",true]}
=> {"result":"AB-123 (G2) 1 of 2"}
{"state":true}
=~ {"fields":{"headerSummaryField":"AB-123 (G2) 1 of 2","headerBPDField":"AB-123 (G2) 1 of 2","headerHCField":"AB-123 (G2) 1 of 2","headerACField":"AB-123 (G2) 1 of 2","headerFLField":"AB-123 (G2) 1 of 2","headerEFWField":"AB-123 (G2) 1 of 2"}}
{"do":["addFetus"]}
{"choose":0}
{"do":["preferredFileName",true]}
=> {"result":"AB-123 (G2) 1 of 3"}
{"do":["preferredFileName",false]}
=> {"result":"AB-123 (G2)"}

{"new":true}
{"edit":["referenceIDField","A/B/C"]}
{"do":["preferredFileName",true]}
=> {"result":"A-B-C (G0)"}

Only the slash is replaced; the record keeps the ID as it is.

{"edit":["referenceIDField","A\\B:C*//?"]}
{"do":["preferredFileName",true]}
=> {"result":"A\\B:C*--? (G0)"}
{"state":true}
=~ {"document":{"maternalIDString":"A\\B:C*//?"}}
