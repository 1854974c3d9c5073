A script dates a new patient to the moment

The examination of a new patient is dated now, and is brought to its day when the first field is left. What a script wrote before is
not: it keeps the moment that the script gave.

{"new":true}
{"state":true}
=~ {"document":{"examinations":[{"examDateISO":"2026-11-21T10:00:00"}]}}
{"script":["set","edd","2027-04-10T12:00:00Z"]}
{"edit":["bpdField","50"]}
{"state":true}
=~ {"document":{"eddISO":"2027-04-10T12:00:00","examinations":[{"examDateISO":"2026-11-21T00:00:00"}]}}
{"script":["set","examDate","2026-11-20T15:00:00Z"]}
{"edit":["bpdField","51"]}
{"state":true}
=~ {"document":{"eddISO":"2027-04-10T12:00:00","examinations":[{"examDateISO":"2026-11-20T15:00:00"}]}}
{"new":true}
{"script":["set","examDate","2026-11-20T15:00:00Z"]}
{"edit":["bpdField","51"]}
{"state":true}
=~ {"document":{"examinations":[{"examDateISO":"2026-11-20T15:00:00"}]}}
