A delivery planned long before is not moved by opening the file

The file says that delivery is planned 294 days before the EDD. The stepper usually ends at 280 days: were it held there, opening
the file would change the patient.

{"open":"$DATA/delivery-before-the-pregnancy.nascor"}
{"state":true}
=~ {"edited":false,"stepper":{"value":-294,"minimum":-294,"maximum":7},"document":{"extrapolatedGestation":-2}}

Another document keeps the usual limits.

{"new":true}
{"state":true}
=~ {"stepper":{"value":0,"minimum":-280,"maximum":7}}
{"step":-400}
=> {"value":-280}
{"step":8}
=> {"value":7}
