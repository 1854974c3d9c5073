A page without marks says what is missing

In a new document nothing can be drawn yet. The window says so over each page, and where the missing thing is entered.

{"new":true}
{"advice":0}
=> {"advice":["No EDD, so no marks. Patient > EDD from ...","No lengths, so no marks. Type BPD, HC, AC or FL beside the page."]}
{"advice":1}
=> {"advice":["No EDD, so no marks. Patient > EDD from ...","No BPD, so no marks. Type it beside the page."]}
{"advice":"report"}
=> {"advice":["No EDD, so no ages. Patient > EDD from ...","No lengths. Type BPD, HC, AC or FL beside the page."]}

One length is enough for the trends and its own page, and for the report; a weight needs those of its formula.

{"edit":["bpdField","48"]}
{"edit":["birthDateField","4/10/27"]}
{"advice":0}
=> {"advice":[]}
{"advice":1}
=> {"advice":[]}
{"advice":2}
=> {"advice":["No HC, so no marks. Type it beside the page."]}
{"advice":3}
=> {"advice":["No AC, so no marks. Type it beside the page."]}
{"advice":4}
=> {"advice":["No FL, so no marks. Type it beside the page."]}
{"advice":5}
=> {"advice":["No weight, so no marks. Type the lengths that the formula needs."]}
{"advice":"report"}
=> {"advice":[]}
{"do":["doSetEFWStandard",4]}
{"edit":["acField","150"]}
{"advice":5}
=> {"advice":[]}

Another fetus is plotted beside this one as long as all are shown; her report is her own.

{"do":["addFetus"]}
{"choose":1}
{"advice":1}
=> {"advice":[]}
{"advice":"report"}
=> {"advice":["No lengths. Type BPD, HC, AC or FL beside the page."]}
{"app":["toggleShowAll"]}
{"advice":1}
=> {"advice":["No BPD, so no marks. Type it beside the page."]}
{"choose":0}
{"advice":1}
=> {"advice":[]}

Without the examination's date there is no age either.

{"edit":["examDateField",""]}
{"advice":0}
=> {"advice":["No date, so no marks. Type it beside the page."]}
{"advice":"report"}
=> {"advice":["No date, so no ages. Type it beside the page."]}

A file may name a standard and a formula that this program does not know.

{"do":["doSetStandard",9]}
{"do":["doSetEFWStandard",9]}
{"edit":["examDateField","11/21/26"]}
{"advice":1}
=> {"advice":["No known growth standard, so no curves. Choose from Standards."]}
{"advice":5}
=> {"advice":["No known growth standard, so no curves. Choose from Standards.","No known weight formula, so no weights. Choose from Estimated Fetal Weight."]}
{"advice":"report"}
=> {"advice":["No known growth standard, so no projection. Choose from Standards.","No known weight formula, so no weights. Choose from Estimated Fetal Weight."]}

Nor need there be an examination.

{"open":"$DATA/without-examinations.nascor"}
{"advice":0}
=> {"advice":["No examination. Patient > Add Examination"]}
{"advice":7}
=> {"advice":[]}
