// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Holds a bill of materials against the published schema of CycloneDX 1.5, and sees that the schema refuses planted faults.
//
// usage: node validate.mjs MODULES BILL
//   MODULES  the folder in which `npm ci` has installed package.json

import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { dirname, join, resolve } from 'node:path';

const [modules, bill] = process.argv.slice(2);
const require = createRequire(resolve(modules, 'package.json'));
const Ajv = require('ajv').default;
const addFormats = require('ajv-formats').default;

const folder = join(resolve(modules), 'node_modules/@cyclonedx/cyclonedx-library/res/schema');
const schema = (name) => JSON.parse(readFileSync(join(folder, `${name}.SNAPSHOT.schema.json`)));
const ajv = new Ajv({ strict: false, allErrors: true });
addFormats(ajv);
// Of two formats that the schema names only these readers know nothing.
for (const format of ['iri-reference', 'idn-email']) ajv.addFormat(format, true);
// They stand beside it, by the names of their files.
for (const name of ['spdx', 'jsf-0.82']) ajv.addSchema({ ...schema(name), $id: `http://cyclonedx.org/schema/${name}.SNAPSHOT.schema.json` });
const validate = ajv.compile(schema('bom-1.5'));

const read = () => JSON.parse(readFileSync(bill));
let wrong = 0;
if (!validate(read())) {
  for (const error of validate.errors) console.error(`${bill}: ${error.instancePath} ${error.message}`);
  wrong += validate.errors.length;
}

const faults = {
  'a part without a name': (document) => delete document.components[0].name,
  'a part of no known kind': (document) => { document.components[0].type = 'book'; },
  'a licence that SPDX does not know': (document) => { document.components[0].licenses = [{ license: { id: 'Expat' } }]; },
  'a number that is no UUID': (document) => { document.serialNumber = 'urn:uuid:1'; },
  'a part twice': (document) => { document.components.push(document.components[0]); },
  'a time without a zone': (document) => { document.metadata.timestamp = '2026-11-23'; },
};
for (const [name, plant] of Object.entries(faults)) {
  const document = read();
  plant(document);
  if (validate(document)) {
    console.error(`The schema does not refuse ${name}.`);
    ++wrong;
  }
}
console.log(`${read().components.length} parts and ${Object.keys(faults).length} planted faults, ${wrong} wrong`);
process.exit(wrong ? 1 : 0);
