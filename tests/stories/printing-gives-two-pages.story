Printing gives two pages

The page on show, then the weight page, each with the print panel or without.

{"new":true}
{"tab":2}
{"do":["printDocumentWithSettings",true]}
=> {"result":null}
{"state":true}
=~ {"prints":[[2,true],[5,true]],"alerts":[],"tab":2}
{"do":["printDocumentWithSettings",false]}
{"state":true}
=~ {"prints":[[2,false],[5,false]]}

Who prints the weight page gets it twice.

{"tab":5}
{"do":["printDocumentWithSettings",false]}
{"state":true}
=~ {"prints":[[5,false],[5,false]]}
{"state":true}
=~ {"prints":[]}
