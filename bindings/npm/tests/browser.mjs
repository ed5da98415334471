import { readFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { basename, dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

import { chromium } from 'playwright-core';

const here = dirname(fileURLToPath(import.meta.url));
const page = `<!doctype html>
<script type="module">
  import * as quorvane from './quorvane.mjs';
  import { renderedInTurn } from './renderedInTurn.mjs';
  window.renderAll = (cases) => renderedInTurn(quorvane, cases);
</script>`;

/** Serves the page and the modules, which is all that it loads. */
function serve(folders) {
  return createServer((request, response) => {
    const name = basename(request.url);
    const isModule = name.endsWith('.mjs');
    response.setHeader('Content-Type', isModule ? 'text/javascript' : 'text/html');
    response.end(isModule ? readFileSync(join(folders[name] ?? folders.all, name)) : page);
  });
}

/** What the package in a folder renders in a browser. */
export async function renderedInBrowser(executablePath, packageFolder, cases) {
  const server = serve({ all: packageFolder, 'renderedInTurn.mjs': here });
  await new Promise((listening) => server.listen(0, '127.0.0.1', listening));
  const browser = await chromium.launch({ executablePath, args: ['--no-sandbox'] });
  try {
    const tab = await browser.newPage();
    await tab.goto(`http://127.0.0.1:${server.address().port}/`);
    await tab.waitForFunction('window.renderAll');
    return await tab.evaluate((all) => window.renderAll(all), cases);
  } finally {
    await browser.close();
    server.close();
  }
}
