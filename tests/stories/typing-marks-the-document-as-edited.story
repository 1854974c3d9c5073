Typing marks the document as edited

Nobody closes a window without a question after typing: the first change of any field counts, the note's too.

{"new":true}
{"visit":"bpdField"}
{"visit":"notesField"}
{"do":["updateDisplay"]}
{"state":true}
=~ {"edited":false}
{"edit":["bpdField","1"]}
{"state":true}
=~ {"edited":true}
{"save":"a.nascor"}
{"state":true}
=~ {"edited":false}
{"edit":["notesField","x"]}
{"state":true}
=~ {"edited":true}
{"save":true}
{"edit":["referenceIDField","x"]}
{"state":true}
=~ {"edited":true}
{"save":true}
{"edit":["birthDateField","4/10/27"]}
{"state":true}
=~ {"edited":true}
{"save":true}
{"edit":["examDateField","11/20/26"]}
{"state":true}
=~ {"edited":true}
{"save":true}
{"edit":["gravidaField","1"]}
{"state":true}
=~ {"edited":true}

Adding and deleting examinations and fetuses counts, and so does planning the delivery of a dated pregnancy.

{"save":true}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"edited":true}
{"save":true}
{"do":["deleteExaminationAction"]}
{"state":true}
=~ {"edited":true,"document":{"examinations":[{}]}}
{"save":true}
{"do":["addFetus"]}
{"state":true}
=~ {"edited":true}
{"save":true}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"edited":true}
{"save":true}
{"step":-3}
{"state":true}
=~ {"edited":true}

Looking around does not, nor does choosing a standard; nor does a question that was answered with "Cancel".

{"save":true}
{"do":["addExaminationAction"]}
{"do":["addFetus"]}
{"save":true}
{"do":["previousExamination"]}
{"do":["nextExamination"]}
{"choose":0}
{"tab":3}
{"do":["setCurrentRecordFromClick",20]}
{"menu":["Standards",2]}
{"menu":["Estimated Fetal Weight",1]}
{"menu":["Crown Rump Length",1]}
{"menu":["View","Show All"]}
{"do":["deleteFetus"]}
{"edit":["gravidaField","9"]}
=> {"began":false,"ended":false}
{"state":true}
=~ {"edited":false}
