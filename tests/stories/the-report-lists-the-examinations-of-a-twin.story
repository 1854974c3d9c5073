The report lists the examinations of a twin

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["gravidaField","2"]}
{"edit":["birthDateField","4/10/27"]}
{"edit":["examDateField","11/21/26"]}
{"do":["addFetus"]}
{"edit":["bpdField","47.25"]}
{"edit":["hcField","174"]}
{"edit":["acField","154.4"]}
{"edit":["flField","32.1"]}
{"do":["addExaminationAction"]}
{"edit":["examDateField","12/5/26"]}

The weight of the second twin is 10 to the power of 1.326 - 0.0000326 x 154.4 x 32.1 + 0.00107 x 174 + 0.00438 x 154.4 + 0.0158 x 32.1, which is 342.

{"draw":"report"}
=> {"draw":[["view","NascorDataView",[0,0,800,560]],["text","Black","Fetal Weight Formula: Hadlock 1 (HC/AC/FL)",0,545],["text","Black","Identifier:\tAB-123",40,10,[100]],["text","Black","Gravida:\t2",40,34,[100]],["text","Black","Fetus:\tTwin 2",40,58,[100]],["text","Black","Date:\t12/5/26",320,10,[100]],["text","Black","EDD:\t4/10/27",320,34,[100]],["text","Black","Menstrual Age:\t22w 0d",320,58,[100]],["text","Black","",320,82],["text","Black","Exam Date",10,140],["text","Black","Menstrual Age",96,140],["text","Black","BPD (mm)",182,140],["text","Black","HC (mm)",268,140],["text","Black","AC (mm)",354,140],["text","Black","FL (mm)",440,140],["text","Black","EFW (g)",526,140],["text","Black","11/21/26",10,188],["text","Black","20w 0d",96,188],["text","Black","47.2",182,188],["text","Black","174.0",268,188],["text","Black","154.4",354,188],["text","Black","32.1",440,188],["text","Black","342",526,188],["text","Black","12/5/26",10,212],["text","Black","22w 0d",96,212],["text","Black","0.0",182,212],["text","Black","0.0",268,212],["text","Black","0.0",354,212],["text","Black","0.0",440,212],["text","Black","-",526,212],["strokeRect","Gray",[0,124,800,128]]]}

The first twin has no measurements yet; its report says so, and where the list is drawn changes nothing of the document.

{"choose":0}
{"draw":["report",600,189]}
=> {"draw":[["view","NascorDataView",[0,0,600,189]],["text","Black","Fetal Weight Formula: Hadlock 1 (HC/AC/FL)",0,174],["text","Black","Identifier:\tAB-123",40,10,[100]],["text","Black","Gravida:\t2",40,34,[100]],["text","Black","Fetus:\tTwin 1",40,58,[100]],["text","Black","Date:\t12/5/26",320,10,[100]],["text","Black","EDD:\t4/10/27",320,34,[100]],["text","Black","Menstrual Age:\t22w 0d",320,58,[100]],["text","Black","",320,82],["text","Black","Exam Date",10,140],["text","Black","Menstrual Age",96,140],["text","Black","BPD (mm)",182,140],["text","Black","HC (mm)",268,140],["text","Black","AC (mm)",354,140],["text","Black","FL (mm)",440,140],["text","Black","EFW (g)",526,140],["text","Black","12/5/26",10,188],["text","Black","22w 0d",96,188],["text","Black","0.0",182,188],["text","Black","0.0",268,188],["text","Black","0.0",354,188],["text","Black","0.0",440,188],["text","Black","-",526,188],["strokeRect","Gray",[0,124,600,104]]]}
{"state":true}
=~ {"tab":0,"currentExam":1}
