Time alone changes nothing

The window has no clock of its own: a document that was left open over the weekend is as it was.

{"new":true}
{"edit":["birthDateField","4/10/27"]}
{"save":"a.nascor"}
{"state":true}
{"advance":259200}
{"state":true}
=~ {"edited":false,"posted":[],"alerts":[],"displays":3,"fields":{"examDateField":"11/21/26","ageField":"20w 0d"},"document":{"examinations":[{"examDateISO":"2026-11-21T00:00:00"}]}}
{"do":["addExaminationAction"]}
{"state":true}
=~ {"fields":{"examDateField":"11/24/26","ageField":"20w 3d"}}
