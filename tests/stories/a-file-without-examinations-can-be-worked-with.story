A file without examinations can be worked with

None is invented when it is opened. The fields of the examination are empty, and adding one works.

{"open":"$DATA/without-examinations.nascor"}
{"state":true}
=~ {"edited":false,"currentExam":0,"fields":{"referenceIDField":"NONE","birthDateField":"4/10/27","examDateField":"","ageField":"-","bpdField":"","hcField":"","acField":"","flField":"","notesField":""},"document":{"examinations":[]}}
{"do":["lastExam"]}
=> {"result":0}
{"do":["deleteExaminationAction"]}
{"do":["nextExamination"]}
{"do":["setCurrentRecordFromClick",20]}
{"edit":["gravidaField","2"]}
{"answer":["Modify"]}
{"edit":["gravidaField","2"]}
{"choose":1}
{"state":true}
=~ {"currentExam":0,"currentFetus":1,"document":{"gravida":2,"examinations":[]}}

What belongs to an examination cannot be typed before there is one; it would be lost.

{"edit":["bpdField","44"]}
=> {"began":false,"ended":false}
{"edit":["examDateField","11/20/26"]}
=> {"began":false,"ended":false}
{"edit":["notesField","lost"]}
=> {"began":false,"ended":false}
{"state":true}
=~ {"fields":{"bpdField":"","examDateField":"","notesField":""},"document":{"examinations":[]}}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"currentExam":0,"edited":true,"fields":{"examDateField":"11/21/26","ageField":"20w 0d","bpdField":"0.0"},"document":{"examinations":[{"measurements":[{"bpd":0},{"bpd":0}]}]}}
{"edit":["bpdField","44"]}
=> {"began":true,"ended":true}
{"edit":["notesField","kept"]}
=> {"began":true,"ended":true}
