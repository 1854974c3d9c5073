A page's marks are read out

What a page shows is said to those who do not see it: measure, value, z-score, standard. At 20 weeks the Westerway standard has a BPD of
47.414 mm with a deviation of 1.9 mm, an AC of 154.374 and 8.75.

{"new":true}
{"do":["spokenPage",1]}
=> {"result":"Nascor Standard: Westerway (ASUM 2001)"}
{"edit":["birthDateField","4/10/27"]}
{"edit":["bpdField","50"]}
{"edit":["acField","150"]}
{"do":["spokenPage",1]}
=> {"result":"Biparietal Diameter (mm): 50.0 mm, z-score +1.36. Nascor Standard: Westerway (ASUM 2001)"}
{"do":["spokenPage",2]}
=> {"result":"Nascor Standard: Westerway (ASUM 2001)"}
{"do":["spokenPage",0]}
=> {"result":"Biparietal Diameter (mm): 50.0 mm, z-score +1.36. Abdo Circ (mm): 150.0 mm, z-score -0.50. Nascor Standard: Westerway (ASUM 2001)"}

Beyond the weeks of the standard its last one counts, and that is said: 41 weeks and a day under Westerway, whose BPD at 41 weeks is 98.379 mm
with a deviation of 4 mm.

{"answer":["Modify"]}
{"edit":["birthDateField","11/13/26"]}
{"edit":["bpdField","98.4"]}
{"do":["spokenPage",1]}
=> {"result":"Biparietal Diameter (mm): 98.4 mm, z-score +0.01, beyond the table. Nascor Standard: Westerway (ASUM 2001)"}
