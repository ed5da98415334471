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

const settings = {
  bundle: true,
  minify: true,
  platform: 'neutral',
  target: 'es2022',
  legalComments: 'none',
};

mkdirSync(folder, { recursive: true });
await build({
  ...settings,
  entryPoints: [join(here, 'src/moduleBytes.mjs')],
  outfile: join(folder, 'moduleBytes.mjs'),
  // The package of the decoder offers it only together with the encoder.
  alias: {
    'lzma1/decoder': join(decoder, 'decoder.js'),
    'lzma1/streams': join(decoder, 'streams.js'),
    'packed-module': packed(moduleFile),
  },
  loader: { '.lzma': 'binary' },
});
for (const [format, suffix] of [['esm', 'mjs'], ['cjs', 'cjs']]) {
  await build({
    ...settings,
    format,
    entryPoints: [join(here, 'src/quorvane.mjs')],
    outfile: join(folder, `quorvane.${suffix}`),
    // Apart, so that both forms share it and only a first call loads it.
    external: ['./moduleBytes.mjs'],
  });
}

for (const name of ['quorvane.d.cts', 'package.json', 'README.md']) {
  copyFileSync(join(here, name), join(folder, name));
}
// ES modules can have the types of a CommonJS module, but not the other way round.
writeFileSync(join(folder, 'quorvane.d.ts'), "export * from './quorvane.cjs';\n");
