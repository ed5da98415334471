// sameBytes.mjs COMMAND GOLDEN PACKAGE [BROWSER]: compares what the package renders, in Node or in a
// browser, with what the command renders.
import { execFile } from 'node:child_process';
import { existsSync, mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { pathToFileURL } from 'node:url';
import { promisify } from 'node:util';

import { goldenCases, randomCases } from './cases.mjs';
import { renderInBrowser } from './browser.mjs';

const [, , command, goldenFolder, packageFolder, browser] = process.argv;
const atOnce = 8;

/** The document as hexadecimal digits, or "refused". */
async function renderedByCommand(folder, { name, description, styleSheet, pictures, checks }) {
  const place = join(folder, name);
  mkdirSync(place);
  const inPlace = (file, content) => (writeFileSync(join(place, file), content), join(place, file));
  Object.entries(pictures).forEach(([file, content]) => inPlace(file, content));
  const options = checks ? ['--check'] : [];
  if (styleSheet) {
    options.push('-s', inPlace('style.rtfss', styleSheet));
  }
  const output = join(place, 'document.rtf');
  const file = inPlace('description.rtfspec', description);
  try {
    await promisify(execFile)(command, ['render', ...options, '-o', output, file]);
  } catch (error) {
    if (typeof error.code !== 'number') {
      throw error; // it crashed, or was not found
    }
    return 'refused';
  }
  return existsSync(output) ? readFileSync(output).toString('hex') : 'refused';
}

async function allByCommand(cases) {
  const folder = mkdtempSync(join(tmpdir(), 'quorvane-'));
  const results = [];
  try {
    for (let first = 0; first < cases.length; first += atOnce) {
      const some = cases.slice(first, first + atOnce);
      results.push(...(await Promise.all(some.map((each) => renderedByCommand(folder, each)))));
    }
  } finally {
    rmSync(folder, { recursive: true });
  }
  return results;
}

async function allInNode(cases) {
  const { render, QuorvaneError } = await import(pathToFileURL(resolve(packageFolder, 'quorvane.mjs')));
  const results = [];
  for (const { name, ...options } of cases) {
    try {
      results.push(Buffer.from((await render(options)).rtf).toString('hex'));
    } catch (error) {
      if (!(error instanceof QuorvaneError)) {
        throw error;
      }
      results.push('refused');
    }
  }
  return results;
}

const golden = goldenCases(goldenFolder);
const cases = [...golden, ...randomCases(golden)];
const expected = await allByCommand(cases);
const actual = browser ? await renderInBrowser(browser, packageFolder, cases) : await allInNode(cases);
const different = cases.filter((_, index) => actual[index] !== expected[index]);
const refused = expected.filter((result) => result === 'refused').length;
console.log(`${browser ? 'browser' : 'node'}: ${cases.length} cases, ${refused} of them refused, ` +
  `${different.length} different`);
for (const { name, description } of different.slice(0, 5)) {
  console.error(`${name}:\n${description.toString('latin1').slice(0, 2000)}`);
}
const isTelling = actual.length === cases.length && refused > 0 && refused < cases.length / 2;
process.exit(different.length === 0 && isTelling ? 0 : 1);
