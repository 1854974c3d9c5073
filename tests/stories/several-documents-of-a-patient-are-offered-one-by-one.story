Several documents of a patient are offered one by one

First the one with exactly the name that is looked for, then the others, the newest first. Documents of other patients are not
offered, however similar their names.

{"new":true}
{"edit":["referenceIDField","A/1"]}
{"save":"A-1 (G0).nascor"}
{"advance":60}
{"save":"A-1 (G1).nascor"}
{"advance":60}
{"save":"A-1 (G3).nascor"}
{"advance":60}
{"save":"A-1 (G2).nascor"}
{"save":"A-1.nascor"}
{"save":"A-11 (G1).nascor"}
{"save":"XA-1 (G1).nascor"}
{"save":"a-1 (G1).nascor"}
{"save":"A-1 (G1).txt"}
{"save":"A-1 (G1).nascor.bak"}
{"close":"discard"}
{"state":true}
{"new":true}
{"edit":["referenceIDField","A/1"]}
{"edit":["gravidaField","5"]}
{"state":true}
=~ {"number":1,"fields":{"gravidaField":"5"},"alerts":[["...","A-1 (G0).nascor\n...","Open","Cancel"],["...","A-1 (G2).nascor\n...","Open","Cancel"],["...","A-1 (G3).nascor\n...","Open","Cancel"],["...","A-1 (G1).nascor\n...","Open","Cancel"]]}

Agreeing to one ends the questions.

{"close":"discard"}
{"new":true}
{"edit":["referenceIDField","A/1"]}
{"answer":["Cancel","Cancel","Open"]}
{"edit":["gravidaField","5"]}
{"state":true}
=~ {"number":3,"alerts":[["...","A-1 (G0).nascor\n...","...","..."],["...","A-1 (G2).nascor\n...","...","..."],["...","A-1 (G3).nascor\n...","...","..."]]}
{"save":true}
=> {"saved":true}
