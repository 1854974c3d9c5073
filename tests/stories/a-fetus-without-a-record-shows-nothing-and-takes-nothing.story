A fetus without a record shows nothing and takes nothing

The file says twins, but its examination holds one record. The second twin's fields are empty, and nobody can type into them:
there is no place for it, and a number that vanishes when one looks away would be believed to be stored. Date and note are the
examination's and can be typed.

{"open":"$DATA/a-fetus-without-a-record.nascor"}
{"state":true}
=~ {"currentFetus":0,"fields":{"bpdField":"41.0"},"popup":{"titles":["Twin 1","Twin 2"]}}
{"choose":1}
{"state":true}
=~ {"currentFetus":1,"fields":{"bpdField":"","hcField":"","acField":"","flField":"","notesField":"one record"}}
{"edit":["bpdField","99"]}
=> {"began":false,"ended":false}
{"state":true}
=~ {"edited":false,"fields":{"bpdField":""}}
{"edit":["examDateField","11/20/26"]}
=> {"began":true,"ended":true}
{"edit":["notesField","one twin was not seen"]}
=> {"began":true,"ended":true}
{"do":["lastMeasurementsRecordForCurrentFetus"]}
=> {"result":null}
{"choose":0}
{"state":true}
=~ {"fields":{"bpdField":"41.0"},"document":{"numberOfFetuses":2,"examinations":[{"note":"one twin was not seen","measurements":[{"bpd":41,"hc":150,"ac":140,"fl":30}]}]}}

The first twin's fields take numbers still, and so do the second's at a new examination.

{"edit":["bpdField","42"]}
=> {"began":true,"ended":true}
{"do":["addExaminationAction"]}
{"choose":1}
{"edit":["bpdField","43"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"document":{"examinations":[{"measurements":[{"bpd":42}]},{"measurements":[{"bpd":0},{"bpd":43}]}]}}
