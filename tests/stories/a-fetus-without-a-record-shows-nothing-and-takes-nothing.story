A fetus without a record shows nothing and takes nothing

The file says twins, but its examination holds one record. The second twin's fields are empty, and what is typed into them has no
place.

{"open":"$DATA/a-fetus-without-a-record.nascor"}
{"state":true}
=~ {"currentFetus":0,"fields":{"bpdField":"41.0"},"popup":{"titles":["Twin 1","Twin 2"]}}
{"choose":1}
{"state":true}
=~ {"currentFetus":1,"fields":{"bpdField":"","hcField":"","acField":"","flField":"","notesField":"one record"}}
{"edit":["bpdField","99"]}
=> {"began":true,"ended":true}
{"do":["lastMeasurementsRecordForCurrentFetus"]}
=> {"result":null}
{"choose":0}
{"state":true}
=~ {"fields":{"bpdField":"41.0"},"document":{"numberOfFetuses":2,"examinations":[{"measurements":[{"bpd":41,"hc":150,"ac":140,"fl":30}]}]}}
