A click in the band shows that examination

Examinations at 20 and 24 weeks. On the page of the BPD, 800 units wide, week w stands at 60 + (w - 8) / 34 x 720 and v mm at
500 - (5 + v / 120 x 460): 47 mm at 20 weeks is 314, 315, and 60 mm at 24 weeks 399, 265. Both lie in the band.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","11/21/26"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","12/19/26"]}
{"click":[1,314,315,1]}
=> {}
{"state":true}
=~ {"tab":1,"currentExam":0,"fields":{"ageField":"20w 0d"}}
{"click":[1,399,265,1]}
{"state":true}
=~ {"currentExam":1,"fields":{"ageField":"24w 0d"}}

Beside the band a click is nobody's: above it, on the title, on the strip below.

{"click":[1,314,100,1]}
{"click":[1,314,15,1]}
{"click":[1,314,505,1]}
{"state":true}
=~ {"currentExam":1}

A double click is two presses: the first has chosen the examination, the second leads to the trends. Further ones do nothing.

{"click":[1,314,315,1]}
{"click":[1,314,315,2]}
{"state":true}
=~ {"tab":0,"currentExam":0}
{"click":[1,399,265,3]}
{"click":[1,399,265,4]}
{"state":true}
=~ {"tab":1,"currentExam":0}
{"click":[1,314,100,2]}
{"state":true}
=~ {"tab":1}

The report takes a click and does nothing with it.

{"click":["report",314,315,1]}
{"click":["report",314,315,2]}
{"state":true}
=~ {"tab":6,"currentExam":0}
{"click":[7,1,1,1]}
=~ {"error":"..."}
{"click":[1,1,1]}
=~ {"error":"..."}
