A damaged file opens no window

The reason is said and no window opens, so that no blank patient can be saved over the damaged file.

{"open":"$DATA/a-letter.nascor"}
=~ {"error":"$DATA/a-letter.nascor: ..."}
{"open":"$DATA/cut-short.nascor"}
=~ {"error":"$DATA/cut-short.nascor: ..."}
{"open":"$DATA"}
=~ {"error":"$DATA: ..."}
{"open":"nowhere.nascor"}
=~ {"error":"nowhere.nascor: No such file or directory"}
{"save":true}
=~ {"error":"..."}

No number was used up, and the next window works.

{"new":true}
=> {"number":0}
{"open":"$DATA/cut-short.nascor"}
=~ {"error":"..."}
{"state":true}
=~ {"number":0,"blank":true}
