A known patient's document takes the place of the blank window

She was here before. The name that is looked for still says G0, because the gravidity just typed is not stored yet; her document
is found under any gravidity.

{"new":true}
{"edit":["referenceIDField","AB/123"]}
{"edit":["gravidaField","2"]}
{"edit":["bpdField","47.4"]}
{"save":"AB-123 (G2).nascor"}
{"close":"discard"}
{"state":true}

{"advance":86400}
{"new":true}
=> {"number":1}
{"edit":["referenceIDField","ab/123"]}
{"answer":["Open"]}
{"edit":["gravidaField","3"]}
{"state":true}
=~ {"number":2,"edited":false,"blank":false,"lookUpRequired":false,"fields":{"referenceIDField":"AB/123","gravidaField":"2","bpdField":"47.4"},"alerts":[["This patient has a document already.","AB-123 (G2).nascor\n11/21/26, ... bytes\n\nLast examination: 21 November 2026\nEDD: -","Open","Cancel"]]}

The blank window is gone.

{"use":1}
=~ {"error":"..."}
{"close":"cancel"}
=> {"closed":true}
{"close":"cancel"}
=~ {"error":"..."}
