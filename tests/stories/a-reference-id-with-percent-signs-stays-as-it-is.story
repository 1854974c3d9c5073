A reference ID with percent signs stays as it is

The title is put together from the ID and numbers; an ID that looks like a place holder must not swallow them.

{"new":true}
{"edit":["referenceIDField","A%2B %LD %1"]}
{"edit":["gravidaField","7"]}
{"do":["addFetus"]}
{"state":true}
=~ {"fields":{"referenceIDField":"A%2B %LD %1","headerSummaryField":"A%2B %LD %1 (G7) 2 of 2"}}
{"edit":["referenceIDField","%ld %1 %s"]}
{"state":true}
=~ {"fields":{"headerSummaryField":"%ld %1 %s (G7) 2 of 2"},"document":{"maternalIDString":"%ld %1 %s"}}
{"save":"%1 %ld.nascor"}
{"close":"discard"}
{"open":"%1 %ld.nascor"}
{"state":true}
=~ {"fields":{"referenceIDField":"%ld %1 %s"}}
