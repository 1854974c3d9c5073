The delivery is planned only from an EDD

The days are counted from the EDD, so without one the window offers no plan.

{"new":true}
{"do":["canAdjustDelivery"]}
=> {"result":false}
{"edit":["birthDateField","4/10/27"]}
{"do":["canAdjustDelivery"]}
=> {"result":true}
{"answer":["Modify"]}
{"edit":["birthDateField",""]}
{"do":["canAdjustDelivery"]}
=> {"result":false}
