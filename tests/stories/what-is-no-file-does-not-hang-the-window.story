What is no file does not hang the window

A pipe that nobody writes into, a device and a folder may bear the name of a document. Opening one of them is refused at once,
with its name, and other documents open as ever.

{"outside":["pipe","pipe.nascor"]}
{"open":"pipe.nascor"}
=~ {"error":"...pipe.nascor: Not a regular file"}
{"outside":["folder","folder.nascor"]}
{"open":"folder.nascor"}
=~ {"error":"...folder.nascor: Is a directory"}
{"open":"/dev/zero"}
=~ {"error":"/dev/zero: Not a regular file"}
{"open":"$DATA/six-fetuses.nascor"}
=> {"number":0}

Nor does saving into it destroy it or wait for a reader.

{"save":"pipe.nascor"}
=~ {"error":"...pipe.nascor: Not a regular file"}
