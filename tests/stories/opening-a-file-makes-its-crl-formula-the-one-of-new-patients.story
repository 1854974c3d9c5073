Opening a file makes its CRL formula the one of new patients

The dialog names the formula of the patient as soon as the window is there, by the same road on which a formula is chosen; so the
choice is remembered for patients to come. The growth standard and the weight formula of a file are not.

{"open":"$DATA/delivery-before-the-pregnancy.nascor"}
{"state":true}
=~ {"edited":false,"fields":{"crlStandardReference":"CRL Standard: Robinson (1975)"},"defaults":{"CRL Standard":2,"Standard":0,"Estimated Fetal Weight Standard":0}}
{"new":true}
{"state":true}
=~ {"document":{"crlStandard":2,"standard":0},"fields":{"crlStandardReference":"CRL Standard: Robinson (1975)"}}
{"open":"$DATA/six-fetuses.nascor"}
{"state":true}
=~ {"defaults":{"CRL Standard":-1,"Standard":0,"Estimated Fetal Weight Standard":0},"fields":{"crlStandardReference":"CRL Standard: Unspecified"}}
