The reference ID is written in capitals until the patient is known

Labels and letters use capitals, so the ID of a new patient is turned into them, whatever the language of the letters.

{"new":true}
{"edit":["referenceIDField","straße-é7/x"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"blank":true,"fields":{"referenceIDField":"STRASSE-É7/X"},"document":{"maternalIDString":"STRASSE-É7/X"}}

Leaving the ID alone starts no look-up; that waits for the gravidity.

{"state":true}
=~ {"alerts":[],"lookUpRequired":false}

Once the patient is known the ID is left as it is typed.

{"edit":["gravidaField","1"]}
{"edit":["referenceIDField","lower case"]}
{"state":true}
=~ {"blank":false,"fields":{"referenceIDField":"lower case"}}
