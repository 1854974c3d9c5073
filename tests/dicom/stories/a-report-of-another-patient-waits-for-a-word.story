A report of another patient waits for a word

The worst that an import can do is to put one patient's lengths into another's document.

{"new":true}
{"edit":["referenceIDField","AB-123"]}
{"import":["$REPORTS/other-patient.dcm"]}
=~ {"doubt":"The report is of another patient than the document.","obstacle":"Please say whether the report is of this patient."}
{"decide":"OK"}
=> {"stored":false}
{"state":true}
=~ {"fields":{"bpdField":"0.0"}}
{"decide":["patient",true]}
=~ {"obstacle":null}
{"decide":["patient",false]}
=~ {"obstacle":"Please say whether the report is of this patient."}
{"decide":["patient",true]}
{"decide":"OK"}
=> {"stored":true}
{"state":true}
=~ {"fields":{"referenceIDField":"AB-123","bpdField":"60.9"}}

The user must also confirm the patient where the report or the document has no reference ID.

{"import":["$REPORTS/no-patient.dcm"]}
=~ {"doubt":"The report does not say of which patient it is.","obstacle":"Please say whether the report is of this patient."}
{"decide":"Cancel"}
{"new":true}
{"edit":["bpdField","50"]}
{"import":["$REPORTS/plain.dcm"]}
=~ {"doubt":"The document does not say of which patient it is."}
{"decide":["patient",true]}
{"decide":"OK"}
{"state":true}
=~ {"fields":{"referenceIDField":"AB-123"},"document":{"examinations":[{"examDateISO":"2026-11-13T00:00:00","measurements":[{"bpd":60.9}]},{"measurements":[{"bpd":50}]}]}}

Reports of two patients are never imported together.

{"new":true}
{"import":["$REPORTS/plain.dcm","$REPORTS/other-patient.dcm"]}
=~ {"obstacle":"The reports are of several patients. Please import those of each patient alone."}
