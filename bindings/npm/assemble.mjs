// assemble.mjs MODULE FOLDER: puts the package together in a folder.
import { copyFileSync, mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const here = dirname(fileURLToPath(import.meta.url));
const [, , moduleFile, folder] = process.argv;

// In the order in which they use each other.
const parts = ['instantiate', 'Call', 'quorvane'];

/** The parts in one text, each without what it imports from the others. */
function joined() {
  return parts
    .map((part) => readFileSync(join(here, 'src', `${part}.mjs`), 'utf8'))
    .map((text) => text.replace(/^import .*\n/gm, '').trim())
    .join('\n\n');
}

function exportedNames(text) {
  const declared = [...text.matchAll(/^export (?:async )?(?:class|function) (\w+)/gm)];
  return declared.map(([, name]) => name);
}

const offered = exportedNames(readFileSync(join(here, 'src/quorvane.mjs'), 'utf8'));
const names = [...offered, 'QuorvaneError'].join(', ');
const code = joined()
  .replace(/^export \{.*\};?$/gm, '')
  .replace(/^export /gm, '')
  .trim();

mkdirSync(folder, { recursive: true });
const wasm = readFileSync(moduleFile).toString('base64');
writeFileSync(join(folder, 'moduleText.mjs'), `export const moduleText = '${wasm}';\n`);
writeFileSync(join(folder, 'quorvane.mjs'), `${code}\n\nexport { ${names} };\n`);
writeFileSync(join(folder, 'quorvane.cjs'), `'use strict';\n\n${code}\n\nmodule.exports = { ${names} };\n`);
for (const name of ['quorvane.d.ts', 'quorvane.d.cts']) {
  copyFileSync(join(here, 'quorvane.d.ts'), join(folder, name));
}
for (const name of ['package.json', 'README.md']) {
  copyFileSync(join(here, name), join(folder, name));
}
for (const name of ['LICENSE', 'THIRD-PARTY-NOTICES']) {
  copyFileSync(join(here, '../..', name), join(folder, name));
}
