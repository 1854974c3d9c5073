An examination without a date dates nothing

The dialog of the measurements stays open.

{"new":true}
{"edit":["examDateField",""]}
{"edit":["bpdField","47.5"]}
{"do":["doSetEDDfromMeasurements"]}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"windows":{"measurementsWindow":true},"fields":{"birthDateField":""},"document":{"edd":null}}

Nor does one whose day lies too near the end of the calendar, nor a document without examinations.

{"edit":["examDateField","12/1/9999"]}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"windows":{"measurementsWindow":true},"document":{"edd":null}}
{"open":"$DATA/without-examinations.nascor"}
{"answer":["Modify"]}
{"do":["doSetEDDfromMeasurements"]}
{"do":["okSetEDDfromMeasurements"]}
{"state":true}
=~ {"edited":false,"windows":{"measurementsWindow":true}}
