A first visit is entered, saved and found again

The mother comes for her first scan, 140 days before her date: she is in week 20.

{"new":true}
{"edit":["referenceIDField","ab/123"]}
=> {"began":true,"ended":true}
{"edit":["gravidaField","2"]}
=> {"began":true,"ended":true}
{"edit":["birthDateField","4/10/27"]}
=> {"began":true,"ended":true}
{"edit":["bpdField","47.4"]}
=> {"began":true,"ended":true}
{"edit":["hcField","175.2"]}
{"edit":["acField","152"]}
{"edit":["flField","32.5"]}
{"edit":["notesField","Anterior placenta."]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"edited":true,"blank":false,"lookUpRequired":false,"fields":{"referenceIDField":"AB/123","gravidaField":"2","birthDateField":"4/10/27","examDateField":"11/21/26","ageField":"20w 0d","bpdField":"47.4","hcField":"175.2","acField":"152.0","flField":"32.5","notesField":"Anterior placenta."}}

Every page bears her name, in which the slash is a dash so that it can be a file's name too.

{"state":true}
=~ {"fields":{"headerSummaryField":"AB-123 (G2)","headerBPDField":"AB-123 (G2)","headerHCField":"AB-123 (G2)","headerACField":"AB-123 (G2)","headerFLField":"AB-123 (G2)","headerEFWField":"AB-123 (G2)"}}

{"save":"AB-123 (G2).nascor"}
=> {"saved":true}
{"state":true}
=~ {"edited":false}
{"close":"cancel"}
=> {"closed":true}

The next day the document is opened: nothing is asked, nothing is looked up, nothing is edited, and all is there.

{"open":"AB-123 (G2).nascor"}
=> {"number":1}
{"state":true}
=~ {"edited":false,"blank":false,"lookUpRequired":false,"alerts":[],"fields":{"referenceIDField":"AB/123","gravidaField":"2","birthDateField":"4/10/27","examDateField":"11/21/26","ageField":"20w 0d","bpdField":"47.4","hcField":"175.2","acField":"152.0","flField":"32.5","notesField":"Anterior placenta."}}
{"state":true}
=~ {"document":{"maternalIDString":"AB/123","eddISO":"2027-04-10T00:00:00","gravida":2,"numberOfFetuses":1,"examinations":[{"note":"Anterior placenta.","examDateISO":"2026-11-21T00:00:00","measurements":[{"ac":152,"fl":32.5}]}]}}
