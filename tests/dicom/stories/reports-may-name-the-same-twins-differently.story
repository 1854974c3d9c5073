Reports may name the same twins differently

One machine calls them 1 and 2, the other A and B. Two of one report cannot be the same fetus; two of different reports can.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"do":["addFetus"]}
{"import":["$REPORTS/means.dcm","$REPORTS/groups.dcm"]}
=~ {"fetuses":{"Fetus 1":"Twin 1","Fetus 2":"Twin 2","Fetus A":null,"Fetus B":null},"obstacle":"Please choose for each fetus which one it is."}
{"decide":["fetus","A",1]}
{"decide":["fetus","B",1]}
=~ {"obstacle":"Two fetuses of the report cannot be the same one."}
{"decide":["fetus","B",2]}
=~ {"obstacle":null}
{"decide":"OK"}
=> {"stored":true}
{"state":true}
=~ {"document":{"examinations":[{"measurements":[{"bpd":60.9,"ac":202.8},{"bpd":58.3,"ac":188.7}]}]}}
