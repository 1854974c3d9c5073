Help shows the user guide

With a document or without one, in the viewer that the user has.

{"app":["doHelp"]}
=> {"result":null}
{"state":true}
=~ {"opened":["file:///usr/share/nascor/Nascor%20User%20Guide.pdf"]}
{"new":true}
{"app":["doHelp"]}
{"app":["doHelp"]}
{"state":true}
=~ {"opened":["file:///usr/share/nascor/Nascor%20User%20Guide.pdf","file:///usr/share/nascor/Nascor%20User%20Guide.pdf"],"edited":false}
