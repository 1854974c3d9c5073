A file that is open already is not opened twice

Two windows on one file would overwrite each other.

{"new":true}
{"edit":["referenceIDField","A"]}
{"save":"a.nascor"}
{"new":true}
=> {"number":1}
{"open":"a.nascor"}
=> {"number":0}
{"state":true}
=~ {"number":0,"fields":{"referenceIDField":"A"}}
{"use":1}
{"open":"./a.nascor"}
=> {"number":0}
