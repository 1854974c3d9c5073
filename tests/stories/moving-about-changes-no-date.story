Moving about changes no date

The dates of this patient are no beginnings of days in Tokyo. From 17 September to 4 March are 168 days, so she was 16 weeks at the
first examination; she still is when everything has been looked at.

{"zone":"Asia/Tokyo"}
{"open":"$DATA/../../resources/samples/twins.nascor"}
{"do":["menstrualAgeStringForRecord",0]}
=> {"result":"16w 0d"}
{"choose":1}
{"do":["menstrualAgeStringForRecord",0]}
=> {"result":"16w 0d"}
{"choose":0}
{"do":["previousExamination"]}
{"do":["setCurrentRecordFromClick",16]}
{"visit":"birthDateField"}
{"visit":"examDateField"}
{"do":["doSetEDDfromMeasurements"]}
{"cancel":"measurementsWindow"}
{"locale":"de_DE"}
{"do":["nextExamination"]}
{"do":["previousExamination"]}
{"do":["menstrualAgeStringForRecord",0]}
=> {"result":"16w 0d"}
{"state":true}
=~ {"edited":false,"currentExam":0,"fields":{"ageField":"16w 0d"},"document":{"eddISO":"2027-03-04T19:00:00","examinations":[{"examDateISO":"2026-09-17T19:00:00"},{"examDateISO":"2026-10-15T19:00:00"},{"examDateISO":"2026-11-13T19:00:00"},{"examDateISO":"2026-12-10T19:00:00"},{"examDateISO":"2026-12-31T19:00:00"},{"examDateISO":"2027-01-17T19:00:00"}]}}
