What is improbable is said and taken

Nothing that may be typed is refused because it is improbable; beside the field stands a sentence. At 20 weeks the Westerway standard has a
BPD of 47.414 mm with a deviation of 1.9 mm.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"edit":["bpdField","39.9"]}
{"beside":true}
=~ {"beside":{"bpdRemark":""}}
{"edit":["bpdField","39.8"]}
=> {"began":true,"ended":true}
{"beside":true}
=~ {"beside":{"bpdZ":"-4.01","bpdRemark":"More than 4 SD below the growth standard."}}
{"edit":["bpdField","55.1"]}
{"beside":true}
=~ {"beside":{"bpdRemark":"More than 4 SD above the growth standard."}}
{"state":true}
=~ {"fields":{"bpdField":"55.1"},"edited":true}

An HC below nine tenths of pi times the BPD, which is 141.4 mm for one of 50 mm:

{"edit":["bpdField","50"]}
{"edit":["hcField","141.3"]}
{"beside":true}
=~ {"beside":{"bpdRemark":"","hcRemark":"Too small for the BPD."}}
{"edit":["hcField","141.4"]}
{"beside":true}
=~ {"beside":{"hcRemark":""}}

What the field refuses is said beside it too:

{"edit":["bpdField","201"]}
=> {"began":true,"ended":false}
{"beside":true}
=~ {"beside":{"bpdRemark":"Outside 0 to 200 mm."}}
{"revert":"bpdField"}

A script may store what the window refuses. It is told all the same:

{"script":["set","fl",-3]}
{"beside":true}
=~ {"beside":{"flRemark":"Outside 0 to 200 mm."}}
{"script":["set","fl",0]}

Before the last period, and long past term:

{"answer":["Modify"]}
{"edit":["birthDateField","8/29/27"]}
{"do":["menstrualAgeStringForRecord",0]}
=> {"result":"0w -1d"}
{"beside":true}
=~ {"beside":{"ageRemark":"The examination is before the last period. The growth standard begins at 11 weeks, which count."}}
{"answer":["Modify"]}
{"edit":["birthDateField","10/16/26"]}
{"do":["menstrualAgeStringForRecord",0]}
=> {"result":"45w 1d"}
{"beside":true}
=~ {"beside":{"ageRemark":"The age is above 45 weeks. The growth standard ends at 41 weeks, which count."}}
{"answer":["Modify"]}
{"edit":["birthDateField","10/18/26"]}
{"beside":true}
=~ {"beside":{"ageRemark":"The growth standard ends at 41 weeks, which count."}}

Lengths of an early scan are not compared with weeks that the standard does not have: 10 weeks are told, and no length is far.

{"answer":["Modify"]}
{"edit":["birthDateField","6/19/27"]}
{"do":["menstrualAgeStringForRecord",0]}
=> {"result":"10w 0d"}
{"edit":["hcField","0"]}
{"edit":["bpdField","12"]}
{"beside":true}
=~ {"beside":{"ageRemark":"The growth standard begins at 11 weeks, which count.","bpdRemark":""}}

Without an age a length in centimetres is told by its size.

{"answer":["Modify"]}
{"edit":["birthDateField",""]}
{"edit":["bpdField","9"]}
{"beside":true}
=~ {"beside":{"bpdZ":"-","ageRemark":"","bpdRemark":"Shorter than any growth standard begins. Lengths are in mm."}}

What a fetus leaves in the fields when it is removed belongs to none, and nothing is said of it:

{"edit":["bpdField","500"]}
=> {"began":true,"ended":false}
{"revert":"bpdField"}
{"do":["addFetus"]}
{"edit":["bpdField","8"]}
{"answer":["Remove"]}
{"do":["deleteFetus"]}
{"state":true}
=~ {"fields":{"bpdField":"8.0"}}
{"beside":true}
=~ {"beside":{"bpdRemark":""}}
