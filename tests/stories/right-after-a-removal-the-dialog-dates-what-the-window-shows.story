Right after a removal the dialog dates what the window shows

The lengths of the fetus that was removed stay in the fields, and the dialog reads the fields. As soon as the fetus that is left is
shown, the open dialog dates that one.

{"new":true}
{"edit":["acField","130"]}
{"do":["addFetus"]}
{"edit":["acField","154.5"]}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"check":["measurementsWindowBPDCheck",false]}
{"check":["measurementsWindowHCCheck",false]}
{"check":["measurementsWindowFLCheck",false]}
{"do":["doSetEDDfromMeasurements"]}
{"state":true}
=~ {"currentFetus":0,"fields":{"acField":"154.5","measurementsWindowAvGestation":"20w 0d"},"document":{"examinations":[{"measurements":[{"ac":130}]}]}}
{"choose":0}
{"state":true}
=~ {"fields":{"acField":"130.0","measurementsWindowAvGestation":"17w 6d"}}
