A new document waits for its patient

The window opens with everything that a patient has from the start: one examination, dated now, of a single fetus that has
not been measured. Nothing is edited, and the patient is to be looked up as soon as we know who she is.

{"new":true}
=> {"number":0}
{"state":true}
=~ {"number":0,"blank":true,"edited":false,"lookUpRequired":true,"currentExam":0,"currentFetus":0,"tab":0}

Nothing measured shows as 0.0, and what is not known stays empty.

{"state":true}
=~ {"fields":{"referenceIDField":"","gravidaField":"0","birthDateField":"","examDateField":"11/21/26","ageField":"-","bpdField":"0.0","hcField":"0.0","acField":"0.0","flField":"0.0","notesField":""}}
{"state":true}
=~ {"document":{"maternalIDString":"","edd":null,"eddISO":null,"standard":0,"fetalWeightStandard":0,"numberOfFetuses":1,"extrapolatedGestation":40,"crlStandard":0,"gravida":0,"examinations":[{"note":"","examDateISO":"2026-11-21T10:00:00","measurements":[{"bpd":0,"hc":0,"ac":0,"fl":0}]}]}}
{"state":true}
=~ {"popup":{"titles":["Singleton"],"keys":[""],"selected":0},"stepper":{"value":0,"minimum":-280,"maximum":7,"increment":1},"marked":{}}

The six titles are empty while there is no reference ID, and the formula for the crown-rump length is named.

{"state":true}
=~ {"fields":{"headerSummaryField":"","headerBPDField":"","headerHCField":"","headerACField":"","headerFLField":"","headerEFWField":"","crlStandardReference":"CRL Standard: Hadlock (1992)"}}

The dialogs wait with the usual cycle, and the planned delivery shows nothing without a date to plan from.

{"state":true}
=~ {"fields":{"lmpWindowCycleField":"28","lmpWindowLutealField":"14","adjustEDDField":"","adjustDeliverOnField":"","adjustDeliverAtField":""},"windows":{"crlWindow":false,"lmpWindow":false,"measurementsWindow":false,"adjustDeliveryPanel":false},"checks":{"measurementsWindowBPDCheck":true,"measurementsWindowHCCheck":true,"measurementsWindowACCheck":true,"measurementsWindowFLCheck":true}}

The pages were asked to be drawn twice while the window loaded: when the choice of fetus was filled and when the fields were.

{"state":true}
=~ {"displays":2}
