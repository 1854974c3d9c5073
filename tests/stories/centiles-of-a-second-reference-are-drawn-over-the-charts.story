Centiles of a second reference are drawn over the charts

They are a choice of the window: off at first, no part of the patient, on the screen and in exports, and never printed. 60 mm at 25 weeks
lie in the middle of the chart: at 410, 235.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","12/26/26"]}
{"edit":["bpdField","60"]}
{"save":"ab.nascor"}
{"over":1}
=> {"over":[]}
{"do":["setOverlay","who-2017",false]}
{"over":1}
=> {"over":[["centile lines",5],["text","Centiles: WHO (2017)"]]}
{"state":true}
=~ {"edited":false,"defaults":{"Overlay":"who-2017","Joined Marks":"NO"}}

The trends have a chart for each length, and each says whose lines these are; the report has none.

{"over":0}
=> {"over":[["centile lines",5],["text","Centiles: WHO (2017)"],["centile lines",5],["text","Centiles: WHO (2017)"],["centile lines",5],["text","Centiles: WHO (2017)"],["centile lines",5],["text","Centiles: WHO (2017)"]]}
{"over":6}
=> {"over":[]}
{"do":["spokenPage",1]}
=> {"result":"Biparietal Diameter (mm): 60.0 mm, z-score -1.05. Nascor Standard: Westerway (ASUM 2001). Centiles: WHO (2017)."}

They stay over another examination and another fetus. Lines lead from mark to mark of each fetus; the second has one mark alone.

{"do":["addExaminationAction"]}
{"edit":["examDateField","1/30/27"]}
{"edit":["bpdField","72"]}
{"do":["addFetus"]}
{"edit":["bpdField","70"]}
{"do":["setOverlay","who-2017",true]}
{"over":1}
=> {"over":[["centile lines",5],["text","Centiles: WHO (2017)"],["line","ModerateOrange",[[410,235],[515.8823529411766,281]]]]}
{"choose":0}
{"over":1}
=> {"over":[["centile lines",5],["text","Centiles: WHO (2017)"],["line","Orange",[[410,235],[515.8823529411766,281]]]]}
{"do":["spokenPage",6]}
=> {"result":"Nascor Standard: Westerway (ASUM 2001)"}

Print has nothing of them, neither on the page on show nor on the weight page behind it. What is exported has what is on show.

{"tab":1}
{"do":["printDocumentWithSettings",false]}
{"overPaper":true}
=> {"overPaper":[[],[]]}
{"do":["doExport"]}
{"overPaper":true}
=> {"overPaper":[[["centile lines",5],["text","Centiles: WHO (2017)"],["line","Orange",[[410,235],[515.8823529411766,281]]]]]}

What a reference does not know is said, and not drawn; so is a formula that does not fit.

{"do":["setOverlay","hadlock-1991",false]}
{"over":1}
=> {"over":[["text","Hadlock (1991) has no centiles of this measure"]]}
{"over":5}
=> {"over":[["centile lines",5],["text","Centiles: Hadlock (1991)"]]}
{"do":["setOverlay","intergrowth-2020",false]}
{"do":["doSetEFWStandard",3]}
{"over":5}
=> {"over":[["centile lines",5],["text","Centiles: INTERGROWTH-21st (2020), which fits weights by another formula alone: Hadlock 1 (HC/AC/FL)"]]}
{"do":["doSetEFWStandard",0]}
{"over":5}
=> {"over":[["centile lines",5],["text","Centiles: INTERGROWTH-21st (2020)"]]}

A window that is opened later begins with that choice, also for a patient without EDD, who has no marks; from then on each has its own.

{"new":true}
{"over":5}
=> {"over":[["centile lines",5],["text","Centiles: INTERGROWTH-21st (2020)"]]}
{"do":["setOverlay","",false]}
{"over":5}
=> {"over":[]}
{"do":["spokenPage",5]}
=> {"result":"Nascor Standard: Westerway (ASUM 2001). Fetal Weight Formula: Hadlock 1 (HC/AC/FL)"}
{"use":0}
{"over":5}
=> {"over":[["centile lines",5],["text","Centiles: INTERGROWTH-21st (2020)"]]}
{"do":["setOverlay","",false]}
{"over":1}
=> {"over":[]}
