A script exports the page on show

It goes beside the document, or into the documents folder, and nobody is asked anything. A second export overwrites nothing. What is
typed and not yet left is on the page.

{"script":["command","make new document"]}
{"script":["set","identifier","AB-123"]}
{"script":["set","gravida",2]}
{"script":["set","tabViewIndex",1]}
{"edit":["bpdField","48"]}
{"state":true}
{"script":["command","export to file"]}
=> {"value":null}
{"script":["command","export to file"]}
=> {"value":null}
{"state":true}
=~ {"log":["export to file","export to file"],"alerts":[],"exports":["AB-123 (G2) - BPD.pdf","AB-123 (G2) - BPD (2).pdf"]}

Of two documents it is the one in front.

{"script":["command","make new document"]}
{"script":["set","identifier","CD-4"]}
{"use":0}
{"script":["command","export to file"]}
{"use":1}
{"script":["command","export to file"]}
{"state":true}
=~ {"exports":["AB-123 (G2) - BPD (3).pdf","CD-4 (G0) - Trends.pdf"]}

A field that refuses its text holds the export back.

{"edit":["bpdField","480"]}
=> {"began":true,"ended":false}
{"script":["command","export to file"]}
=> {"value":null}
{"state":true}
=~ {"exports":[],"alerts":[]}
