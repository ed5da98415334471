// sameBytes.mjs PROJECT COMMAND PACKAGE BROWSER: compares what the package renders, in Node and in a
// browser, with what the command renders.
import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { availableParallelism, tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { pathToFileURL } from 'node:url';
import { promisify } from 'node:util';

import { renderedInBrowser } from './browser.mjs';
import { allCases } from './cases.mjs';
import { renderedInTurn } from './renderedInTurn.mjs';

const [, , project, command, packageFolder, browser] = process.argv;

/** The files of a case, and the arguments for them. */
function argumentsFor(place, { description, styleSheet, pictures, partials = {}, checks, data, locale }) {
  const save = (name, content) => (writeFileSync(join(place, name), content), join(place, name));
  Object.entries(pictures).forEach(([name, content]) => save(name, content));
  Object.entries(partials).forEach(([name, content]) => save(`${name}.rtfpart`, content));
  return [
    save('description.rtfspec', description),
    ...(checks ? ['--check'] : []),
    ...(styleSheet ? ['-s', save('style.rtfss', styleSheet)] : []),
    ...(data ? ['--data', save('data.json', JSON.stringify(data))] : []),
    ...(locale ? ['--locale', locale] : []),
  ];
}

async function renderedByCommand(folder, each) {
  const place = join(folder, each.name);
  mkdirSync(place);
  const output = join(place, 'document.rtf');
  const options = ['render', '-o', output];
  try {
    await promisify(execFile)(command, [...options, ...argumentsFor(place, each)]);
    return readFileSync(output).toString('hex');
  } catch (error) {
    assert.equal(error.code, 1, `${each.name}: ${error}`); // Otherwise it crashed.
    return 'refused';
  }
}

async function allByCommand(cases) {
  const folder = mkdtempSync(join(tmpdir(), 'quorvane-'));
  const results = [];
  const waiting = cases.entries();
  const work = async () => {
    for (const [index, each] of waiting) {
      results[index] = await renderedByCommand(folder, each);
    }
  };
  try {
    await Promise.all(Array.from({ length: availableParallelism() }, work));
  } finally {
    rmSync(folder, { recursive: true });
  }
  return results;
}

const base64Of = (files = {}) =>
  Object.fromEntries(Object.entries(files).map(([name, bytes]) => [name, bytes.toString('base64')]));

/** The cases with bytes in Base64, which a browser can be given. */
function inBase64(cases) {
  return cases.map((each) => ({
    ...each,
    description: each.description.toString('base64'),
    styleSheet: each.styleSheet?.toString('base64'),
    pictures: base64Of(each.pictures),
    partials: base64Of(each.partials),
  }));
}

function compare(where, cases, actual, expected) {
  const different = cases.flatMap(({ name, description }, index) =>
    actual[index] === expected[index] ? [] : [{ name, description, index }]);
  for (const { name, description, index } of different.slice(0, 5)) {
    const short = (result) => (result ?? 'nothing').slice(0, 300);
    console.error(`${where}, ${name}:\n${description.toString().slice(0, 2000)}\n` +
      `command: ${short(expected[index])}\npackage: ${short(actual[index])}`);
  }
  console.log(`${where}: ${cases.length} cases, ${different.length} different`);
  return different.length === 0;
}

const cases = allCases(project);
const expected = await allByCommand(cases);
const documents = expected.filter((result) => result !== 'refused');
const refused = cases.length - documents.length;
console.log(`${new Set(documents).size} different documents, ${refused} descriptions with errors`);
assert.ok(refused > 20 && refused < cases.length / 3, 'too many or too few cases are refused');
assert.ok(new Set(documents).size > cases.length / 2, 'too many cases are alike');

const encoded = inBase64(cases);
const quorvane = await import(pathToFileURL(resolve(packageFolder, 'quorvane.mjs')));
const same = [
  compare('Node', cases, await renderedInTurn(quorvane, encoded), expected),
  compare('Chromium', cases, await renderedInBrowser(browser, packageFolder, encoded), expected),
];
process.exit(same.every(Boolean) ? 0 : 1);
