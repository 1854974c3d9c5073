A patient's data go to a spreadsheet

The table is made of the records, what is in edit among them, and has no reference ID.

{"new":true}
{"edit":["referenceIDField","ab-123"]}
{"edit":["gravidaField","2"]}
{"edit":["birthDateField","4/10/27"]}
{"edit":["bpdField","50.5"]}
{"do":["dataFileName",".csv"]}
=> {"result":"AB-123 (G2) - Data.csv"}
{"do":["exportData","data.csv"]}
=> {"result":null}
{"do":["dataAsCsv"]}
=~ {"result":"file,exam,fetus,exam_date,edd,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm,...\n0,0,0,2026-11-21,2027-04-10,20,50.5,..."}
{"outside":["copy","data.csv","copy.csv"]}

All of it goes into JSON.

{"do":["exportData","data.json"]}
=> {"result":null}
{"do":["dataAsJson"]}
=~ {"result":"...\"maternalIDString\":\"AB-123\"..."}
{"outside":["copy","data.json","copy.json"]}

A text that a field refuses holds it back.

{"edit":["bpdField","201"]}
=> {"began":true,"ended":false}
{"do":["exportData","refused.csv"]}
{"outside":["copy","refused.csv","copy.csv"]}
=~ {"error":"..."}
