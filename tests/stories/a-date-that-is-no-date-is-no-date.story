A date that is no date is no date

Deliberately without a fallback: a date that cannot be read, or is emptied, is not known. No question is asked. The status line
says what was no date until the next change; the document is marked as edited, and nothing is lost while it is not saved.

{"new":true}
{"edit":["referenceIDField","A"]}
{"edit":["gravidaField","1"]}
{"edit":["birthDateField","4/10/27"]}
{"save":"a.nascor"}
{"edit":["examDateField","yesterday"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"edited":true,"alerts":[],"fields":{"examDateField":"","ageField":"-"},"document":{"examinations":[{"examDate":null,"examDateISO":null}]}}
{"status":true}
=> {"status":"The examination has no date now. This is no date: yesterday"}
{"visit":"bpdField"}
{"tab":1}
{"status":true}
=> {"status":"The examination has no date now. This is no date: yesterday"}
{"edit":["bpdField","50"]}
{"status":true}
=> {"status":""}
{"edit":["examDateField","2/30/27"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"fields":{"examDateField":""},"document":{"examinations":[{"examDate":null}]}}
{"answer":["Modify"]}
{"edit":["birthDateField",""]}
=> {"began":true,"ended":true}
{"status":true}
=> {"status":""}
{"state":true}
=~ {"edited":true,"fields":{"birthDateField":""},"document":{"edd":null,"eddISO":null}}

An EDD that is gone is asked about no more.

{"state":true}
{"edit":["birthDateField","in spring"]}
=> {"began":true,"ended":true}
{"state":true}
=~ {"alerts":[],"fields":{"birthDateField":""},"document":{"edd":null}}
{"status":true}
=> {"status":"The EDD is empty now. This is no date: in spring"}
{"edit":["birthDateField","  "]}
{"status":true}
=> {"status":""}

The file still has both dates.

{"close":"discard"}
=> {"closed":true}
{"open":"a.nascor"}
{"state":true}
=~ {"fields":{"birthDateField":"4/10/27","examDateField":"11/21/26"}}
