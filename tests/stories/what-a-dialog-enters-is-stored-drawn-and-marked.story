What a dialog enters is stored, drawn and marked

A dialog writes into the window's fields and then has everything stored, drawn anew and marked as edited. The fields are not read
back, and nothing is sorted.

{"new":true}
{"edit":["notesField","x"]}
{"save":"a.nascor"}
{"edit":["notesField","y"]}
{"state":true}
=~ {"displays":2,"document":{"examinations":[{"note":"x"}]}}
{"save":true}
{"do":["directUpdateDisplayAndSetDirty",false]}
{"state":true}
=~ {"edited":false,"displays":3,"document":{"examinations":[{"note":"y"}]}}
{"do":["directUpdateDisplayAndSetDirty",true]}
{"state":true}
=~ {"edited":true,"displays":4}
