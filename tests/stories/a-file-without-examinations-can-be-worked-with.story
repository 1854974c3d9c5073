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
{"edit":["bpdField","44"]}
{"state":true}
=~ {"fields":{"bpdField":""},"document":{"examinations":[]}}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"currentExam":0,"edited":true,"fields":{"examDateField":"11/21/26","ageField":"20w 0d","bpdField":"0.0"},"document":{"examinations":[{"measurements":[{"bpd":0},{"bpd":0}]}]}}
