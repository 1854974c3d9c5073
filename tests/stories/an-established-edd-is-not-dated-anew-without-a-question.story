An established EDD is not dated anew without a question

Whichever dialog is opened, the question comes with it. "Modify" leaves it open for input.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"save":"a.nascor"}
{"state":true}
{"answer":["Modify"]}
{"do":["doSetEDDfromCRL"]}
{"state":true}
=~ {"alerts":[["EDD is already specified","Are you sure you want to modify the established EDD?","Modify","Cancel"]],"windows":{"crlWindow":true},"edited":false}
{"answer":["Modify"]}
{"do":["doSetEDDfromLMP"]}
{"state":true}
=~ {"alerts":[["EDD is already specified","Are you sure you want to modify the established EDD?","Modify","Cancel"]],"windows":{"lmpWindow":true}}
{"answer":["Modify"]}
{"do":["doSetEDDfromMeasurements"]}
{"state":true}
=~ {"alerts":[["EDD is already specified","Are you sure you want to modify the established EDD?","Modify","Cancel"]],"windows":{"crlWindow":true,"lmpWindow":true,"measurementsWindow":true},"fields":{"birthDateField":"4/10/27"},"edited":false}

"Cancel" closes it, and nothing else has changed.

{"answer":["Cancel"]}
{"do":["doSetEDDfromCRL"]}
{"answer":["Cancel"]}
{"do":["doSetEDDfromLMP"]}
{"answer":["Cancel"]}
{"do":["doSetEDDfromMeasurements"]}
{"state":true}
=~ {"windows":{"crlWindow":false,"lmpWindow":false,"measurementsWindow":false},"fields":{"birthDateField":"4/10/27"},"edited":false}

The plan of the delivery asks nothing; nor does a dialog for a patient whose EDD was taken away.

{"do":["doAdjustDeliveryDate"]}
{"state":true}
=~ {"alerts":[],"windows":{"adjustDeliveryPanel":true}}
{"answer":["Modify"]}
{"edit":["birthDateField",""]}
{"state":true}
{"do":["doSetEDDfromLMP"]}
{"state":true}
=~ {"alerts":[],"windows":{"lmpWindow":true,"adjustDeliveryPanel":true}}

What the answer does can be told apart from the question.

{"do":["checkOverwriteEDD","lmpWindow"]}
{"do":["checkOverwriteEDDAlertDidEnd",1,"crlWindow"]}
{"state":true}
=~ {"alerts":[],"windows":{"crlWindow":true,"lmpWindow":true}}
{"do":["checkOverwriteEDDAlertDidEnd",0,"crlWindow"]}
{"state":true}
=~ {"windows":{"crlWindow":false,"lmpWindow":true}}
