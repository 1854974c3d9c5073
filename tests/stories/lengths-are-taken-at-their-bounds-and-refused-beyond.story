Lengths are taken at their bounds and refused beyond

A slip of the decimal point must not become a measurement: each length has a range, whose ends belong to it.

{"new":true}
{"edit":["bpdField","200"]}
=> {"began":true,"ended":true}
{"edit":["hcField","500"]}
=> {"began":true,"ended":true}
{"edit":["acField","600"]}
=> {"began":true,"ended":true}
{"edit":["flField","200"]}
=> {"began":true,"ended":true}

Beyond it the field keeps the text and will not be left. No message is shown; the old number stays in force.

{"edit":["bpdField","200.1"]}
=> {"began":true,"ended":false}
{"state":true}
=~ {"alerts":[],"fields":{"bpdField":"200.0"},"document":{"examinations":[{"measurements":[{"bpd":200,"hc":500,"ac":600,"fl":200}]}]}}

The bounds hold for the number as it was typed, not as it would be shown: 200.04 would show as 200.0.

{"edit":["bpdField","200.04"]}
=> {"began":true,"ended":false}
{"edit":["bpdField","-0.1"]}
=> {"began":true,"ended":false}
{"edit":["bpdField","0"]}
=> {"began":true,"ended":true}
{"edit":["hcField","500.1"]}
=> {"began":true,"ended":false}
{"edit":["hcField","-1"]}
=> {"began":true,"ended":false}
{"edit":["hcField","499.9"]}
=> {"began":true,"ended":true}
{"edit":["acField","600.01"]}
=> {"began":true,"ended":false}
{"edit":["acField","-600"]}
=> {"began":true,"ended":false}
{"edit":["acField","300"]}
=> {"began":true,"ended":true}
{"edit":["flField","201"]}
=> {"began":true,"ended":false}
{"edit":["flField","-0.001"]}
=> {"began":true,"ended":false}
{"edit":["flField","70"]}
=> {"began":true,"ended":true}

The gravidity is a count: not negative, and without an upper bound.

{"edit":["gravidaField","-1"]}
=> {"began":true,"ended":false}
{"edit":["gravidaField","0"]}
=> {"began":true,"ended":true}
{"edit":["gravidaField","40"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"document":{"gravida":40,"examinations":[{"measurements":[{"bpd":0,"hc":499.9,"ac":300,"fl":70}]}]}}
