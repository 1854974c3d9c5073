The comparison follows what is on show

Each length stands beside every reference, each weight beside every formula; what is stored counts, not what is being typed. At 20 weeks the
Westerway standard has a BPD of 47.414 mm with a deviation of 1.9 mm: 50 mm lie 1.361 deviations above, where 91.32 % lie below.

{"new":true}
{"do":["comparisonHeading"]}
=> {"result":"Singleton  ·  Examination 1 of 1: 21 November 2026  ·  -"}
{"edit":["referenceIDField","ab-123"]}
{"edit":["birthDateField","4/10/27"]}
{"edit":["bpdField","50"]}
{"do":["comparison","lengths"]}
=~ {"result":[["BPD","50.0","Westerway (ASUM 2001)","47.4","1.90","47.4","+1.36","91.3","20w 5d",""],"..."]}
{"do":["comparisonHeading"]}
=> {"result":"AB-123 (G0)  ·  Singleton  ·  Examination 1 of 1: 21 November 2026  ·  20w 0d"}

A second fetus has numbers of its own, and the fetuses stand side by side.

{"do":["addFetus"]}
{"do":["comparison","lengths"]}
=~ {"result":[["BPD","-","Westerway (ASUM 2001)","47.4","1.90","47.4","-","-","-",""],"..."]}
{"edit":["acField","154.4"]}
{"do":["comparison","fetuses"]}
=> {"result":[["Twin 1","50.0","-","-","-","-","-"],["Twin 2","-","-","154.4","-","-","-"]]}

By the formula that needs the AC alone it has a weight, which says so.

{"do":["doSetEFWStandard",4]}
{"do":["comparison","weights"]}
=~ {"result":[["Hadlock 1 (HC/AC/FL)","-","-","-","-","-",""],["Hadlock 2 (AC/FL)","-","-","-","-","-",""],["Hadlock 3 (BPD/AC/FL)","-","-","-","-","-",""],["Hadlock 4 (BPD/HC/AC/FL)","-","-","-","-","-",""],["Campbell (AC)","368","+0","93.9","80.2","82.9","From one length alone. INTERGROWTH-21st (2020) fits weights by another formula alone: Hadlock 1 (HC/AC/FL)."],"..."]}

An added examination has nothing to compare.

{"do":["addExaminationAction"]}
{"do":["comparison","growth"]}
=> {"result":[]}
{"do":["comparison","nothing"]}
=> {"result":null}
