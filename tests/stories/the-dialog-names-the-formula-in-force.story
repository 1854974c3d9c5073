The dialog names the formula in force

From the first moment, of a new patient and of one that is opened.

{"new":true}
{"state":true}
=~ {"fields":{"crlStandardReference":"CRL Standard: Hadlock (1992)"}}
{"menu":["Crown Rump Length",2]}
{"save":"a.nascor"}
{"do":["doSetEDDfromCRL"]}
{"state":true}
=~ {"windows":{"crlWindow":true},"fields":{"crlStandardReference":"CRL Standard: Robinson (1975)"}}

Chosen while the dialog is open it is named at once.

{"menu":["Crown Rump Length",1]}
{"state":true}
=~ {"windows":{"crlWindow":true},"fields":{"crlStandardReference":"CRL Standard: Nelson (1981)"}}
{"close":"discard"}
{"open":"a.nascor"}
{"state":true}
=~ {"fields":{"crlStandardReference":"CRL Standard: Robinson (1975)"}}
