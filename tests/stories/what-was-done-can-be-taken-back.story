What was done can be taken back

A step is what the user did by one action, and it has a name. Examination and fetus on show return with it, wherever the user went
meanwhile.

{"open":"$DATA/../../resources/samples/twins.nascor"}
{"do":["undoName"]}
=> {"result":null}
{"do":["previousExamination"]}
{"choose":1}
{"edit":["bpdField","50"]}
{"do":["undoName"]}
=> {"result":"BPD"}
{"do":["redoName"]}
=> {"result":null}
{"do":["nextExamination"]}
{"do":["undo"]}
{"state":true}
=~ {"currentExam":4,"currentFetus":1,"fields":{"bpdField":"75.7"},"edited":false}
{"do":["redoName"]}
=> {"result":"BPD"}
{"do":["redo"]}
{"state":true}
=~ {"currentExam":4,"currentFetus":1,"fields":{"bpdField":"50.0"},"edited":true}

A fetus that was removed comes back with all her lengths, and an examination with its note. The document is unedited again where it is
as it was saved:

{"save":"twins.nascor"}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"do":["undoName"]}
=> {"result":"Remove Fetus"}
{"answer":["Remove"]}
{"do":["deleteExaminationAction"]}
{"do":["undoName"]}
=> {"result":"Delete Examination"}
{"state":true}
=~ {"edited":true,"popup":{"titles":["Singleton"]}}
{"do":["undo"]}
{"do":["undo"]}
{"state":true}
=~ {"edited":false,"currentExam":4,"currentFetus":1,"popup":{"titles":["Twin 1","Twin 2"],"selected":1},"fields":{"bpdField":"50.0"},"document":{"numberOfFetuses":2}}

Before it was saved it was another:

{"do":["undo"]}
{"state":true}
=~ {"edited":true,"fields":{"bpdField":"75.7"}}

The choice of a standard is taken back for new patients too, and a new step forgets what was undone:

{"new":true}
{"do":["standard"]}
=> {"result":0}
{"do":["doSetStandard",1]}
{"do":["undoName"]}
=> {"result":"Growth Standard"}
{"do":["undo"]}
{"do":["doSetEFWStandard",4]}
{"do":["undoName"]}
=> {"result":"Weight Formula"}
{"do":["redoName"]}
=> {"result":null}
{"do":["doSetCRLStandard",2]}
{"do":["undoName"]}
=> {"result":"Crown-Rump Formula"}
{"do":["undo"]}
{"do":["undo"]}
{"do":["redo"]}
{"new":true}
{"state":true}
=~ {"document":{"standard":0,"fetalWeightStandard":4,"crlStandard":3}}

A dialog's OK, the stepper and a script are one step each. What is typed is stored before anything is taken back:

{"edit":["gravidaField","1"]}
{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowLMP","5/1/26"]}
{"do":["okSetEDDfromLMP"]}
{"do":["undoName"]}
=> {"result":"EDD"}
{"step":-7}
{"do":["undoName"]}
=> {"result":"Planned Delivery"}
{"script":["set","fl",30]}
{"do":["undoName"]}
=> {"result":"FL"}
{"type":["acField","160"]}
{"do":["undo"]}
{"state":true}
=~ {"fields":{"acField":"0.0","flField":"30.0","adjustDeliverOnField":"1/29/27"}}
{"do":["undo"]}
{"do":["undo"]}
{"state":true}
=~ {"fields":{"flField":"0.0","adjustDeliverOnField":"2/5/27"}}
{"do":["undo"]}
{"do":["undoName"]}
=> {"result":"Gravidity"}
{"do":["undo"]}
{"state":true}
=~ {"edited":false,"fields":{"birthDateField":"","gravidaField":"0"}}
{"do":["undoName"]}
=> {"result":null}

What a field refuses holds back both:

{"edit":["gravidaField","1"]}
{"edit":["bpdField","201"]}
=> {"began":true,"ended":false}
{"do":["undo"]}
{"do":["undoName"]}
=> {"result":"Gravidity"}
