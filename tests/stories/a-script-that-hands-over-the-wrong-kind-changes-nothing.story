A script that hands over the wrong kind changes nothing

The error names the property, what it takes, and its unit. Nothing is logged, and the document is not edited.

{"new":true}
{"script":["set","identifier",123]}
=> {"error":"identifier: expected a text"}
{"script":["set","identifier",null]}
=~ {"error":"..."}
{"script":["set","gravida","2"]}
=~ {"error":"gravida..."}
{"script":["set","gravida",true]}
=~ {"error":"gravida..."}
{"script":["set","edd",20270410]}
=~ {"error":"edd..."}
{"script":["set","edd","10.04.2027"]}
=~ {"error":"edd..."}
{"script":["set","edd","2027-02-29"]}
=~ {"error":"edd..."}
{"script":["set","examDate",false]}
=~ {"error":"examDate..."}
{"script":["set","bpd","45.3"]}
=> {"error":"bpd: expected a number (mm)"}
{"script":["set","hc",null]}
=~ {"error":"hc...mm..."}
{"script":["set","ac",true]}
=~ {"error":"ac...mm..."}
{"script":["set","fl",""]}
=~ {"error":"fl...mm..."}
{"script":["set","tabViewIndex","2"]}
=~ {"error":"tabViewIndex...pages..."}
{"state":true}
=~ {"edited":false,"tab":0,"log":[]}
