A double click on a trend opens its chart

At 20 weeks the means are 47 mm (BPD), 174 (HC), 154 (AC) and 32 (FL). Each trend is 390 wide, its plotting area 330; 20 weeks
are 116.5 to the right of its left edge.

{"new":true}
{"click":[0,176.5,170,2]}
{"state":true}
=~ {"tab":1}
{"click":[0,566.5,169,2]}
{"state":true}
=~ {"tab":2}
{"click":[0,176.5,422.5,2]}
{"state":true}
=~ {"tab":3}
{"click":[0,566.5,427,2]}
{"state":true}
=~ {"tab":4}

From the chart of a measurement and from that of the weight it leads back. 20 weeks and the weight of the means, 337 g, on an axis up to 5500.

{"click":[5,314,467,2]}
{"state":true}
=~ {"tab":0}
{"click":[2,314,295,2]}
{"state":true}
=~ {"tab":0}

Weight formulas without an error of their own have a band without width, which nobody can hit.

{"do":["doSetEFWStandard",4]}
{"click":[5,314,467,2]}
{"state":true}
=~ {"tab":5}
