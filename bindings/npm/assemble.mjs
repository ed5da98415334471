// assemble.mjs MODULE FOLDER: puts the package together in a folder.
import { execFileSync } from 'node:child_process';
import { copyFileSync, mkdirSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

import { build } from 'esbuild';

const here = dirname(fileURLToPath(import.meta.url));
const decoder = join(dirname(createRequire(import.meta.url).resolve('lzma1/package.json')), 'lib');
const [, , moduleFile, folder] = process.argv;

/** Packs a file as no format does that browsers can read themselves: a fifth smaller than gzip. */
function packed(file) {
  const options = ['--format=lzma', '--lzma1=preset=9e,dict=1MiB,lc=4,pb=0', '--stdout', '--keep'];
  const target = resolve(folder, '..', 'quorvane.wasm.lzma');
  writeFileSync(target, execFileSync('xz', [...options, file], { maxBuffer: 2 ** 26 }));
  return target;
}

// With names, line breaks and comments as they are written: an error that nothing catches shows the
// line that it was thrown on.
const settings = {
  absWorkingDir: here,
  bundle: true,
  platform: 'neutral',
  target: 'es2022',
  legalComments: 'none',
};

mkdirSync(folder, { recursive: true });
await build({
  ...settings,
  entryPoints: [join(here, 'src/moduleBytes.mjs')],
  outfile: join(resolve(folder), 'moduleBytes.mjs'),
  minifyIdentifiers: true,
  minifySyntax: true,
  // The package of the decoder offers it only together with the encoder.
  alias: {
    'lzma1/decoder': join(decoder, 'decoder.js'),
    'lzma1/streams': join(decoder, 'streams.js'),
    'packed-module': packed(moduleFile),
  },
  loader: { '.lzma': 'binary' },
});
for (const [format, source, name] of [
  ['esm', 'quorvane', 'quorvane.mjs'],
  ['cjs', 'required', 'quorvane.cjs'],
]) {
  await build({
    ...settings,
    format,
    entryPoints: [join(here, `src/${source}.mjs`)],
    outfile: join(resolve(folder), name),
    // Apart, so that both forms share them and only a first call loads the module.
    external: ['./moduleBytes.mjs', './quorvane.mjs'],
  });
}

for (const name of ['quorvane.d.cts', 'package.json', 'README.md']) {
  copyFileSync(join(here, name), join(folder, name));
}
// ES modules can have the types of a CommonJS module, but not the other way round.
writeFileSync(join(folder, 'quorvane.d.ts'), "export * from './quorvane.cjs';\n");
