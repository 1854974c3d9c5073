The fields of a dialog are the dialog's alone

What is typed there asks nothing, marks nothing as edited, looks nobody up, and reaches the patient by OK alone.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"edit":["birthDateField","4/10/27"]}
{"save":"a.nascor"}
{"answer":["Modify","Modify"]}
{"do":["doSetEDDfromCRL"]}
{"do":["doSetEDDfromLMP"]}
{"state":true}
{"edit":["crlWindowDate","8/20/26"]}
=> {"began":true,"ended":true}
{"edit":["crlWindowCRL","45.26"]}
=> {"began":true,"ended":true}
{"edit":["lmpWindowLMP","what she said"]}
=> {"began":true,"ended":true}
{"edit":["lmpWindowCycleField","30"]}
{"edit":["lmpWindowLutealField","+14"]}
{"state":true}
=~ {"edited":false,"alerts":[],"lookUpRequired":false,"fields":{"birthDateField":"4/10/27","crlWindowDate":"8/20/26","crlWindowCRL":"45.3","lmpWindowLMP":"what she said","lmpWindowCycleField":"30","lmpWindowLutealField":"14"}}

A number that is none is refused, and so is every action of the window, until it is good or given back.

{"edit":["crlWindowCRL","4 5"]}
=> {"began":true,"ended":false}
{"save":true}
=> {"refused":"crlWindowCRL"}
{"check":["measurementsWindowBPDCheck",false]}
=> {"refused":"crlWindowCRL"}
{"edit":["bpdField","47.5"]}
=> {"began":false,"ended":false}
{"cancel":"lmpWindow"}
{"edit":["lmpWindowCycleField","29"]}
=> {"began":false,"ended":false}

To close the dialog drops it, with the number that was there before: a field that nobody sees cannot hold up the work.

{"cancel":"crlWindow"}
=> {}
{"edit":["bpdField","47.5"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"checks":{"measurementsWindowBPDCheck":true},"windows":{"crlWindow":false,"lmpWindow":false},"fields":{"crlWindowCRL":"45.3","bpdField":"47.5","birthDateField":"4/10/27"}}

The other dialog's field does the same, and the question too.

{"answer":["Modify"]}
{"do":["doSetEDDfromLMP"]}
{"edit":["lmpWindowLutealField","2 weeks"]}
=> {"began":true,"ended":false}
{"answer":["Cancel"]}
{"do":["doSetEDDfromLMP"]}
{"save":true}
=> {"saved":true}
{"state":true}
=~ {"windows":{"lmpWindow":false},"fields":{"lmpWindowLutealField":"14"}}
