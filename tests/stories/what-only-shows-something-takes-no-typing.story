What only shows something takes no typing

The age, the titles and what the dialogs have found are no place for an answer; nobody can type there, in the window or in a story.

{"new":true}
{"edit":["ageField","20w 0d"]}
=~ {"error":"nobody can type into..."}
{"edit":["headerEFWField","A"]}
=~ {"error":"..."}
{"edit":["crlStandardReference","none"]}
=~ {"error":"..."}
{"edit":["measurementsWindowAvGestation","20w 0d"]}
=~ {"error":"..."}
{"edit":["adjustDeliverOnField","1/1/27"]}
=~ {"error":"..."}
{"state":true}
=~ {"edited":false,"fields":{"ageField":"-","headerEFWField":"","adjustDeliverOnField":""}}
