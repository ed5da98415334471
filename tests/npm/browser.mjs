import { spawn } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { createServer } from 'node:http';
import { tmpdir } from 'node:os';
import { basename, join } from 'node:path';

const page = `<!doctype html>
<script type="module">
  import { render, QuorvaneError } from './quorvane.mjs';
  const bytesOf = (text) => text === undefined ? undefined
    : Uint8Array.from(atob(text), (character) => character.charCodeAt(0));
  const hex = (bytes) => Array.from(bytes, (byte) => byte.toString(16).padStart(2, '0')).join('');
  async function rendered({ description, styleSheet, pictures, checks }) {
    const files = Object.entries(pictures).map(([name, text]) => [name, bytesOf(text)]);
    try {
      return hex((await render({ description: bytesOf(description), styleSheet: bytesOf(styleSheet),
                                 pictures: Object.fromEntries(files), checks })).rtf);
    } catch (error) {
      return error instanceof QuorvaneError ? 'refused' : String(error);
    }
  }
  const results = [];
  try {
    for (const each of await (await fetch('cases.json')).json()) {
      results.push(await rendered(each));
    }
  } catch (error) {
    results.push(String(error));
  }
  await fetch('results', { method: 'POST', body: JSON.stringify(results) });
</script>`;

const patience = 120_000;

/** The cases as JSON, with bytes in Base64. */
function jsonOf(cases) {
  const text = (bytes) => bytes?.toString('base64');
  return JSON.stringify(cases.map(({ description, styleSheet, pictures, checks }) => ({
    description: text(description),
    styleSheet: text(styleSheet),
    pictures: Object.fromEntries(Object.entries(pictures).map(([name, of]) => [name, text(of)])),
    checks,
  })));
}

async function bodyOf(request) {
  const parts = [];
  for await (const part of request) {
    parts.push(part);
  }
  return Buffer.concat(parts).toString();
}

/** Serves the page until it has sent its results. */
function serve(packageFolder, cases, takeResults) {
  return createServer(async (request, response) => {
    const name = basename(request.url);
    if (request.method === 'POST') {
      response.end();
      takeResults(JSON.parse(await bodyOf(request)));
    } else if (name.endsWith('.mjs')) {
      response.setHeader('Content-Type', 'text/javascript');
      response.end(readFileSync(join(packageFolder, name)));
    } else if (name === 'cases.json') {
      response.end(jsonOf(cases));
    } else {
      response.setHeader('Content-Type', 'text/html');
      response.end(page);
    }
  });
}

/** What the package renders in a browser: documents as hexadecimal digits, or "refused". */
export async function renderInBrowser(browser, packageFolder, cases) {
  const profile = mkdtempSync(join(tmpdir(), 'quorvane-browser-'));
  let program;
  let server;
  try {
    return await new Promise((takeResults, fail) => {
      server = serve(packageFolder, cases, takeResults);
      server.listen(0, '127.0.0.1', () => {
        const address = `http://127.0.0.1:${server.address().port}/`;
        program = spawn(browser, ['--headless', '--no-sandbox', '--disable-gpu',
          `--user-data-dir=${profile}`, address], { stdio: 'ignore' });
        program.on('error', fail);
      });
      setTimeout(() => fail(new Error('The browser sent no results.')), patience).unref();
    });
  } finally {
    if (program?.exitCode === null) {
      const ended = new Promise((resolve) => program.on('exit', resolve));
      program.kill();
      await ended;
    }
    server.closeAllConnections?.();
    server.close();
    rmSync(profile, { recursive: true, force: true, maxRetries: 5 });
  }
}
