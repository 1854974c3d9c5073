The report projects late in pregnancy

Delivery is due on 4 April 2027; 24 January 2027 is the first day of the 31st week. With nothing measured the projection is the standard's
mean at the planned delivery: Westerway at 40 weeks and, three days earlier, between 39 and 40.

{"new":true}
{"edit":["birthDateField","4/4/27"]}
{"edit":["examDateField","1/23/27"]}
{"draw":"report"}
=~ {"draw":[["view","NascorDataView",[0,0,800,560]],["text","Black","Fetal Weight Formula: Hadlock 1 (HC/AC/FL)",0,545],["text","Black","Identifier:\t",40,10,[100]],["text","Black","Gravida:\t0",40,34,[100]],["text","Black","Fetus:\tSingleton",40,58,[100]],["text","Black","Date:\t1/23/27",320,10,[100]],["text","Black","EDD:\t4/4/27",320,34,[100]],["text","Black","Menstrual Age:\t29w 6d",320,58,[100]],["text","Black","",320,82],"..."]}
{"edit":["examDateField","1/24/27"]}
{"draw":"report"}
=~ {"draw":[["view","NascorDataView",[0,0,800,560]],["text","Black","Fetal Weight Formula: Hadlock 1 (HC/AC/FL)",0,545],["text","Black","Identifier:\t",40,10,[100]],["text","Black","Gravida:\t0",40,34,[100]],["text","Black","Fetus:\tSingleton",40,58,[100]],["text","Black","Date:\t1/24/27",320,10,[100]],["text","Black","EDD:\t4/4/27",320,34,[100]],["text","Black","Menstrual Age:\t30w 0d",320,58,[100]],["text","Black","Days to Go:\t0",320,82,[100]],"..."]}
{"step":-3}
=> {"value":-3}
{"draw":["report",800,189]}
=~ {"draw":[["view","NascorDataView",[0,0,800,189]],["text","Black","Fetal Weight Formula: Hadlock 1 (HC/AC/FL)",0,174],["text","Black","Identifier:\t",40,10,[100]],["text","Black","Gravida:\t0",40,34,[100]],["text","Black","Fetus:\tSingleton",40,58,[100]],["text","Black","Date:\t1/24/27",320,10,[100]],["text","Black","EDD:\t4/4/27",320,34,[100]],["text","Black","Menstrual Age:\t30w 0d",320,58,[100]],["text","Black","Days to Go:\t0 (-3)",320,82,[100]],["text","Black","Exam Date",10,140],["text","Black","Menstrual Age",96,140],["text","Black","BPD (mm)",182,140],["text","Black","HC (mm)",268,140],["text","Black","AC (mm)",354,140],["text","Black","FL (mm)",440,140],["text","Black","EFW (g)",526,140],["text","DarkGray","Projected",10,188],["text","DarkGray","39w 4d",96,188],"..."]}

There is no room for both rows then, and the projected one stays. One unit lower still, the count of rows wraps around and every examination is listed.

{"draw":["report",800,188]}
=~ {"draw":[["view","NascorDataView",[0,0,800,188]],"..."]}
