What cannot be dated leaves the dialog open

No message comes and nothing changes: not for a day that is none, ...

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"save":"a.nascor"}
{"state":true}
{"answer":["Modify","Modify","Modify"]}
{"do":["doSetEDDfromLMP"]}
{"do":["okSetEDDfromLMP"]}
{"edit":["lmpWindowLMP","2/30/26"]}
{"do":["okSetEDDfromLMP"]}
{"edit":["lmpWindowLMP","last summer"]}
{"do":["okSetEDDfromLMP"]}
{"do":["doSetEDDfromCRL"]}
{"edit":["crlWindowCRL","45"]}
{"edit":["crlWindowDate","yesterday"]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"edited":false,"windows":{"lmpWindow":true,"crlWindow":true},"fields":{"birthDateField":"4/10/27","lmpWindowLMP":"last summer","crlWindowDate":"yesterday"},"document":{"eddISO":"2027-04-10T00:00:00"}}

... nor for a length outside the range of the formula, ...

{"edit":["crlWindowDate","11/21/26"]}
{"edit":["crlWindowCRL",""]}
{"do":["okSetEDDfromCRL"]}
{"edit":["crlWindowCRL","1.99"]}
{"do":["okSetEDDfromCRL"]}
{"edit":["crlWindowCRL","120.1"]}
{"do":["okSetEDDfromCRL"]}
{"menu":["Crown Rump Length",3]}
{"edit":["crlWindowCRL","87.1"]}
{"do":["okSetEDDfromCRL"]}
{"edit":["crlWindowCRL","-45"]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"edited":false,"windows":{"crlWindow":true},"fields":{"birthDateField":"4/10/27"}}

... nor without a formula, ...

{"do":["doSetCRLStandard",4]}
{"edit":["crlWindowCRL","45"]}
{"do":["okSetEDDfromCRL"]}
{"do":["doSetCRLStandard",-1]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"edited":false,"windows":{"crlWindow":true},"fields":{"birthDateField":"4/10/27","crlStandardReference":"CRL Standard: Unspecified"}}

... nor for a cycle and a luteal phase that end before the last period, or are beyond all numbers, ...

{"edit":["lmpWindowLMP","6/10/26"]}
{"edit":["lmpWindowCycleField","0"]}
{"edit":["lmpWindowLutealField","267"]}
{"do":["okSetEDDfromLMP"]}
{"edit":["lmpWindowCycleField","-9223372036854775808"]}
{"do":["okSetEDDfromLMP"]}
{"edit":["lmpWindowCycleField","9223372036854775807"]}
{"edit":["lmpWindowLutealField","14"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"edited":false,"windows":{"lmpWindow":true},"fields":{"birthDateField":"4/10/27"}}

... nor for a day behind the end of the calendar, where no text of a date reads back.

{"edit":["lmpWindowCycleField","28"]}
{"edit":["lmpWindowLMP","6/10/9999"]}
{"do":["okSetEDDfromLMP"]}
{"do":["doSetCRLStandard",0]}
{"edit":["crlWindowDate","12/1/9999"]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"edited":false,"alerts":["..."],"windows":{"lmpWindow":true,"crlWindow":true},"fields":{"birthDateField":"4/10/27"},"document":{"eddISO":"2027-04-10T00:00:00"}}

The bounds themselves are dated: 0 - 266 days are 0 seconds, 2 mm by Hadlock are 5.73 weeks, 87 mm by Westerway 13.77 weeks.

{"edit":["lmpWindowLMP","6/10/26"]}
{"edit":["lmpWindowCycleField","0"]}
{"edit":["lmpWindowLutealField","266"]}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"windows":{"lmpWindow":false},"fields":{"birthDateField":"6/10/26"}}
{"edit":["crlWindowDate","11/21/26"]}
{"edit":["crlWindowCRL","2"]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"windows":{"crlWindow":false},"fields":{"birthDateField":"7/18/27"}}
{"menu":["Crown Rump Length",3]}
{"edit":["crlWindowCRL","87"]}
{"do":["okSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"birthDateField":"5/23/27"}}
