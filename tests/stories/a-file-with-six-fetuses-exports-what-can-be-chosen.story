A file with six fetuses exports what can be chosen

Nobody can choose a fetus there, so there is nothing to export for each.

{"open":"$DATA/six-fetuses.nascor"}
{"do":["autoExport"]}
=> {"result":null}
{"state":true}
=~ {"exports":[]}
