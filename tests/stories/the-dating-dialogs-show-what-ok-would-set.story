The dating dialogs show what OK would set

1 May 2026 and 280 days are 5 February 2027; 21 November lies 204 days after that 1 May, which are 29 weeks and a day.

{"new":true}
{"do":["doSetEDDfromLMP"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"Type the date."}}
{"type":["lmpWindowLMP","5/1"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"This is no date: 5/1"}}
{"type":["lmpWindowLMP","5/1/26"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 5 February 2027\nAge today: 29w 1d"}}

Nothing is set before OK, and a longer cycle is a later day:

{"state":true}
=~ {"fields":{"birthDateField":""}}
{"edit":["lmpWindowLMP","5/1/26"]}
{"type":["lmpWindowCycleField","30"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 7 February 2027\nAge today: 28w 6d"}}
{"type":["lmpWindowCycleField","-300"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"There is no such cycle."}}
What the field would refuse dates nothing, and what is outside the usual is said. Nothing typed are 0 days, which is four weeks less:

{"type":["lmpWindowCycleField","28.5"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"Type whole days."}}
{"type":["lmpWindowCycleField",""]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 8 January 2027\nAge today: 33w 1d\nAn empty number of days counts as 0."}}
{"type":["lmpWindowCycleField","39"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 16 February 2027\nAge today: 27w 4d\nUsually a cycle has 24 to 38 days, its luteal phase 11 to 17."}}
{"type":["lmpWindowCycleField","38"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 15 February 2027\nAge today: 27w 5d"}}
{"revert":"lmpWindowCycleField"}
{"do":["okSetEDDfromLMP"]}
{"state":true}
=~ {"fields":{"birthDateField":"2/5/27"},"windows":{"lmpWindow":false}}

With an EDD that stands the difference is said, and what would become of the examinations:

{"answer":["Modify"]}
{"do":["doSetEDDfromLMP"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 5 February 2027\nAge today: 29w 1d\nThe same day as the current EDD."}}
{"type":["lmpWindowLMP","5/2/26"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 6 February 2027\nAge today: 29w 0d\nOne day later than the current EDD."}}
{"type":["lmpWindowLMP","4/29/26"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 3 February 2027\nAge today: 29w 3d\n2 days earlier than the current EDD."}}
{"type":["lmpWindowLMP","11/22/26"]}
{"beside":true}
=~ {"beside":{"lmpWindowProposal":"EDD: 29 August 2027\nAge today: 0w -1d\n205 days later than the current EDD.\nAn examination would be before the last period."}}
{"cancel":"lmpWindow"}

The crown-rump length has a date of its own, which need not be that of the examination on show. 45 mm by the first formula are 11.3275 weeks: 21 November 2026 and 200.7 days.

{"answer":["Modify"]}
{"do":["doSetEDDfromCRL"]}
{"beside":true}
=~ {"beside":{"crlWindowExamination":"Examination 1 of 1: 21 November 2026","crlWindowProposal":"Type the crown-rump length."}}
{"type":["crlWindowCRL","45"]}
{"beside":true}
=~ {"beside":{"crlWindowProposal":"EDD: 9 June 2027\nAge today: 11w 3d\n124 days later than the current EDD."}}
{"type":["crlWindowCRL","121"]}
{"beside":true}
=~ {"beside":{"crlWindowProposal":"The formula dates these lengths, in mm: 2–120"}}
{"do":["doSetCRLStandard",1]}
{"beside":true}
=~ {"beside":{"crlWindowProposal":"The formula dates these lengths, in mm: 6.7–82.4"}}
{"do":["doSetCRLStandard",7]}
{"beside":true}
=~ {"beside":{"crlWindowProposal":"No formula is chosen."}}
{"revert":"crlWindowCRL"}
{"cancel":"crlWindow"}

Three lengths of 20 weeks, and one beyond all weeks. What lies beyond the table is dated by its end, and the dialog says so.

{"edit":["bpdField","47.414"]}
{"edit":["hcField","174.01"]}
{"edit":["acField","154.374"]}
{"edit":["flField","90"]}
{"answer":["Modify"]}
{"do":["doSetEDDfromMeasurements"]}
{"beside":true}
=~ {"beside":{"bpdDatingRemark":"","acDatingRemark":"","flDatingRemark":"beyond the table"}}
{"check":["measurementsWindowFLCheck",false]}
{"beside":true}
=~ {"beside":{"measurementsWindowProposal":"EDD: 11 April 2027\nAge today: 19w 6d\n65 days later than the current EDD."}}
