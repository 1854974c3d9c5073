The dialog of the crown-rump length opens with today's date

A patient without an EDD is asked nothing. It is the evening of 20 November in New York when a new day has begun in Paris: the day is
the user's.

{"zone":"America/New_York"}
{"advance":-28800}
{"new":true}
{"state":true}
=~ {"windows":{"crlWindow":false,"lmpWindow":false,"measurementsWindow":false,"adjustDeliveryPanel":false},"fields":{"crlWindowDate":"","crlWindowCRL":"","lmpWindowLMP":"","lmpWindowCycleField":"28","lmpWindowLutealField":"14"},"checks":{"measurementsWindowBPDCheck":true,"measurementsWindowHCCheck":true,"measurementsWindowACCheck":true,"measurementsWindowFLCheck":true}}
{"do":["doSetEDDfromCRL"]}
{"state":true}
=~ {"edited":false,"alerts":[],"windows":{"crlWindow":true,"lmpWindow":false,"measurementsWindow":false},"fields":{"crlWindowDate":"11/20/26"}}

Opened again it keeps the date that was last typed, a word that is no date too.

{"edit":["crlWindowDate","8/20/26"]}
{"cancel":"crlWindow"}
=> {}
{"state":true}
=~ {"windows":{"crlWindow":false},"fields":{"crlWindowDate":"8/20/26","birthDateField":""},"edited":false}
{"do":["doSetEDDfromCRL"]}
{"state":true}
=~ {"windows":{"crlWindow":true},"fields":{"crlWindowDate":"8/20/26"}}
{"edit":["crlWindowDate","soon"]}
{"do":["doSetEDDfromCRL"]}
{"state":true}
=~ {"fields":{"crlWindowDate":"soon"}}

Emptied, it is filled anew. The dialog of the last period is never filled.

{"edit":["crlWindowDate",""]}
{"advance":86400}
{"do":["doSetEDDfromCRL"]}
{"do":["doSetEDDfromLMP"]}
{"state":true}
=~ {"windows":{"crlWindow":true,"lmpWindow":true},"fields":{"crlWindowDate":"11/21/26","lmpWindowLMP":""},"alerts":[]}
