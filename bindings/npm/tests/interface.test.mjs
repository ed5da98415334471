import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';

import { check, format, QuorvaneError, render, table, version } from '../../package/quorvane.mjs';

const lines = (...all) => `${all.join('\n')}\n`;
const cell = (...within) => lines('(doc', '(r', '(c', '(p', ...within, 'p)', 'c)', 'r)', 'doc)');
const extended = (...within) => `; quorvane 2\n${cell(...within)}`;
const textOf = ({ rtf }) => new TextDecoder('latin1').decode(rtf);
const refusal = async (promise) => {
  const error = await promise.then(() => assert.fail('It was not refused.'), (caught) => caught);
  assert.ok(error instanceof QuorvaneError, String(error));
  return error;
};

test('has the version of the library', async () => {
  assert.match(await version(), /^\d+\.\d+\.\d+$/);
});

test('renders a description to bytes', async () => {
  const { rtf, diagnostics } = await render({ description: cell('(pt=Hello)') });
  assert.ok(rtf instanceof Uint8Array);
  assert.match(textOf({ rtf }), /^\{\\rtf1.*Hello.*\}/s);
  assert.deepEqual(diagnostics, []);
});

test('renders with a stylesheet', async () => {
  const styleSheet = '; quorvane 2\n{ name: big; style-def: paragraph; size: 31pt }\n';
  const description = extended('(ps=big)', '(pt=Hello)');
  assert.match(textOf(await render({ description, styleSheet })), /\\fs62/);
});

test('fills a template with data in a locale', async () => {
  const description = extended('(pt={{name}}: {{price|money}})');
  const data = { name: 'Desk', price: 1234.5 };
  assert.match(textOf(await render({ description, data, locale: 'de-DE' })), /Desk: 1\.234,50/);
});

test('takes data as a text in JSON', async () => {
  const description = extended('(pt={{name}})');
  assert.match(textOf(await render({ description, data: '{"name": "Desk"}' })), /Desk/);
});

test('takes partials by the names in their tags', async () => {
  const description = lines('; quorvane 2', '(doc', '{{> heading}}', 'doc)');
  const heading = lines('(row', '(cell', '(para', '(pt=For {{name}})', 'para)', 'cell)', 'row)');
  const rendered = await render({ description, data: { name: 'Anna' }, partials: { heading } });
  assert.match(textOf(rendered), /For Anna/);
});

test('refuses a partial that was not given', async () => {
  const description = lines('; quorvane 2', '(doc', '{{> heading}}', 'doc)');
  const error = await refusal(render({ description, data: {}, partials: {} }));
  assert.match(error.message, /heading/);
  assert.equal(error.line, 3);
});

test('shows the pictures that were given', async () => {
  const picture = readFileSync(new URL('../../../../examples/parts-logo.png', import.meta.url));
  const description = extended('(picture=logo.png)');
  for (const bytes of [picture, Uint8Array.from(picture).buffer]) {
    const rendered = await render({ description, pictures: { 'logo.png': bytes } });
    assert.match(textOf(rendered), /pngblip/);
  }
});

test('reports the diagnostics that are enabled and leaves out those that are ignored', async () => {
  const description = cell('(pt=a|b)', '(pt=c)');
  const found = await check({ description });
  assert.notDeepEqual(found, []);
  const ignore = found.map(({ identifier }) => identifier);
  assert.deepEqual(await check({ description, ignore }), []);
});

test('runs calls that are made at once', async () => {
  const texts = ['first', 'second', 'third'];
  const all = await Promise.all(texts.map((text) => render({ description: cell(`(pt=${text})`) })));
  assert.deepEqual(all.map((each) => /first|second|third/.exec(textOf(each))[0]), texts);
});

test('reports the place of a mistake', async () => {
  const error = await refusal(render({ description: lines('(doc', '(r', '(rb=lightyellow)', '(c', 'c)', 'r)', 'doc)') }));
  assert.equal(error.identifier, 'wrong-color');
  assert.equal(error.line, 3);
  assert.equal(error.diagnostics[0].severity, 'error');
  assert.match(error.diagnostics[0].hint, /light-yellow/);
});

test('refuses a picture that was not given', async () => {
  const error = await refusal(render({ description: extended('(picture=logo.png)') }));
  assert.match(error.message, /logo\.png/);
});

test('works after an error', async () => {
  await refusal(render({ description: '(doc' + '\n' }));
  assert.match(textOf(await render({ description: cell('(pt=Hello)') })), /Hello/);
});

test('names the options that there are', async () => {
  await assert.rejects(render({ description: cell(), stylesheet: '' }), /no option "stylesheet".*styleSheet/);
});

test('checks a description and a stylesheet', async () => {
  assert.deepEqual(await check({ description: cell('(pt=Hello)') }), []);
  const [diagnostic] = await check({ styleSheet: '{ name: a; style-def: x; format: \\b }\n' });
  assert.equal(diagnostic.file, 'stylesheet');
});

test('formats a description', async () => {
  assert.equal(await format({ description: '(doc\n  (r\nr)\ndoc)' }), await format({ description: '(doc\n(r\n   r)\ndoc)' }));
});

test('makes a table of objects and of arrays', async () => {
  const ofObjects = await table({ records: [{ Name: 'Oak {desk}', Price: 12 }, { Name: null }] });
  const ofArrays = await table({ records: [['Oak {desk}', 12], []], columns: ['Name', 'Price'] });
  assert.match(textOf(ofObjects), /Oak \\\{desk\\\}/);
  assert.deepEqual(ofObjects.rtf, ofArrays.rtf);
});

test('makes a table of more rows than it hands over at once', async () => {
  const records = Array.from({ length: 10000 }, (_, index) => [`row-${index}-end`]);
  const text = textOf(await table({ records, columns: ['Row'] }));
  assert.equal(text.match(/row-\d+-end/g).length, 10000);
});

test('refuses options of a table that are wrong', async () => {
  const error = await refusal(table({ records: [['a']], columns: ['A'], stripe: 'lightyellow' }));
  assert.match(error.message, /lightyellow/);
  await assert.rejects(table({ records: [['a', 'b']], columns: ['A'] }), /Record 1 has 2 values/);
});
