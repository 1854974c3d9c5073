The trends show all four at once

Two by two: a caption over each in the colour of its marks, a strip under each column. The legend of the twins stands in the first alone.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"do":["addFetus"]}
{"draw":0}
=~ {"draw":[["text","Black","AB-123 (G0) 2 of 2",50,10],["text","Orange","Biparietal Diameter (mm)",60,34],["text","Red","Head Circ (mm)",450,34],["text","Blue","Abdo Circ (mm)",60,268],["text","HeavyGreen","Femur Length (mm)",450,268],["view","BPDSummaryGraphView",[10,48,390,216]],["mark","HeavyGray","circle",75,156],["text",[0.1,0.1,0.1,0.75],"Twin 2",115,150],["mark","HeavyGray","cross",75,176],["text",[0.1,0.1,0.1,0.75],"Twin 1",115,170],"..."]}
{"draw":99}
=~ {"error":"..."}
