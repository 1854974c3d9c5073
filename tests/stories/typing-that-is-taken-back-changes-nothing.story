Typing that is taken back changes nothing

A key pressed by mistake and taken back by Escape is no change: the window then closes without a question. What was
typed and left before stays a change.

{"new":true}
{"edit":["bpdField","201"]}
=> {"began":true,"ended":false}
{"state":true}
=~ {"edited":true}
{"revert":"bpdField"}
{"state":true}
=~ {"edited":false,"fields":{"bpdField":"0.0"},"document":{"examinations":[{"measurements":[{"bpd":0}]}]}}

{"edit":["bpdField","48"]}
{"edit":["hcField","501"]}
=> {"began":true,"ended":false}
{"revert":"hcField"}
{"state":true}
=~ {"edited":true,"fields":{"bpdField":"48.0","hcField":"0.0"}}
{"close":"cancel"}
=> {"closed":false}

After a save it begins anew.

{"save":"a.nascor"}
{"edit":["hcField","501"]}
{"revert":"hcField"}
{"close":"cancel"}
=> {"closed":true}
