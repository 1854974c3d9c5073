A cancelled close keeps a refused text in edit

{"new":true}
{"edit":["hcField","150"]}
{"edit":["hcField","1500"]}
=> {"began":true,"ended":false}
{"close":"cancel"}
=> {"closed":false}

The field still refuses, and holds back the rest.

{"tab":1}
=> {"refused":"hcField"}
{"edit":["hcField","160"]}
=> {"began":true,"ended":true}
{"tab":1}
=> {}

Closing for good drops a refused text with the window.

{"edit":["hcField","1600"]}
{"save":"a.nascor"}
=> {"refused":"hcField"}
{"close":"discard"}
=> {"closed":true}
