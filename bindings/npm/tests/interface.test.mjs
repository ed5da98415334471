import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { test } from 'node:test';

import { check, format, QuorvaneError, render, table, version } from '../../package/quorvane.mjs';

const packageFile = (name) => new URL(`../../package/${name}`, import.meta.url);

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

test('takes partials by their names with and without an extension', async () => {
  const part = lines('(row', '(cell', '(para', '(pt=From a part)', 'para)', 'cell)', 'row)');
  for (const tag of ['a', 'a.rtfpart']) {
    for (const name of ['a', 'a.rtfpart']) {
      const description = lines('; quorvane 2', '(doc', `{{> ${tag}}}`, 'doc)');
      const rendered = await render({ description, data: {}, partials: { [name]: part } });
      assert.match(textOf(rendered), /From a part/, `{{> ${tag}}} and ${name}`);
    }
  }
});

test('names the partials that there are where one is missing', async () => {
  const description = lines('; quorvane 2', '(doc', '{{> heading}}', 'doc)');
  const error = await refusal(render({ description, data: {}, partials: { head: '', foot: '' } }));
  assert.equal(error.message,
    'heading.rtfpart: File not found. (the option partials has "head", "foot")');
  assert.equal(error.diagnostics[0].hint, 'the option partials has "head", "foot"');
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

test('refuses pictures and partials that are not what they should be', async () => {
  const description = extended('(picture=logo.png)');
  const refused = (options, message) => assert.rejects(
    render({ description, ...options }), { name: 'TypeError', message });
  await refused({ pictures: { 'logo.png': 'logo.png' } },
    'render takes pictures["logo.png"] as a Uint8Array or an ArrayBuffer, not a string.');
  await refused({ pictures: { 'logo.png': Promise.resolve() } },
    'render takes pictures["logo.png"] as a Uint8Array or an ArrayBuffer, not a Promise.');
  await refused({ pictures: new Map() },
    'render takes pictures as an object with files by their names, not a Map.');
  await refused({ partials: { heading: undefined } },
    'render takes partials["heading"] as a string or a Uint8Array, not undefined.');
});

test('leaves out the diagnostics that are ignored', async () => {
  const description = cell('(pt=a|b)', '(pt=c)');
  const found = await check({ description });
  assert.notDeepEqual(found, []);
  const ignore = found.map(({ identifier }) => identifier);
  assert.deepEqual(await check({ description, ignore }), []);
});

test('reports the styles that are not used if that is enabled', async () => {
  const description = extended('(pt=Hello)');
  const styleSheet = lines('; quorvane 2', '{ name: normal; style-def: paragraph }',
    '{ name: sum; style-def: paragraph; bold }');
  assert.deepEqual(await check({ description, styleSheet }), []);
  const [found, ...others] = await check({ description, styleSheet, enable: ['unused-style'] });
  assert.deepEqual(others, []);
  assert.deepEqual([found.identifier, found.file, found.line], ['unused-style', 'stylesheet', 3]);
});

test('takes identifiers of diagnostics to report, and refuses others', async () => {
  const description = cell('(pt=Hello)');
  assert.deepEqual(await check({ description, enable: ['unused-style'] }), []);
  for (const option of ['enable', 'ignore']) {
    const error = await refusal(check({ description, [option]: ['nonsense'] }));
    assert.equal(error.message, '"nonsense" is not the name of a diagnostic.');
    await assert.rejects(check({ description, [option]: 'unused-style' }),
      { name: 'TypeError', message: `check takes ${option} as an array of strings, not a string.` });
  }
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

test('names the pictures that there are where one is missing', async () => {
  const description = extended('(picture=constructor)');
  const hint = async (pictures) => (await check({ description, pictures }))[0].hint;
  assert.equal(await hint({}), 'the option pictures has no files');
  assert.equal(await hint({ 'a.png': new Uint8Array() }), 'the option pictures has "a.png"');
  const many = Array.from({ length: 12 }, (_, index) => [index, new Uint8Array()]);
  assert.equal(await hint(Object.fromEntries(many)),
    'the option pictures has "0", "1", "2", "3", "4", "5", "6", "7", "8", "9" and 2 more');
});

test('works after an error', async () => {
  await refusal(render({ description: '(doc' + '\n' }));
  assert.match(textOf(await render({ description: cell('(pt=Hello)') })), /Hello/);
});

test('works after the module could not be loaded', async () => {
  const { version: loaded } = await import(packageFile('quorvane.mjs?loadedTwice'));
  const { compile } = WebAssembly;
  WebAssembly.compile = () => Promise.reject(new RangeError('There is no memory.'));
  try {
    await assert.rejects(loaded(), /There is no memory/);
  } finally {
    WebAssembly.compile = compile;
  }
  assert.equal(await loaded(), await version());
});

test('has one class of errors for import and for require', async () => {
  const required = createRequire(import.meta.url)('../../package/quorvane.cjs');
  assert.equal(required.QuorvaneError, QuorvaneError);
  assert.equal(await required.version(), await version());
  await refusal(required.render({ description: '(doc\n' }));
  assert.match(textOf(await required.table({ records: [{ Name: 'Desk' }] })), /Desk/);
  assert.deepEqual(await required.check({ description: cell('(pt=Hello)') }), []);
  assert.equal(await required.format({ description: '(doc\ndoc)' }), lines('(doc', 'doc)'));
});

test('shows an error that nothing catches in few lines', () => {
  const calls = [
    `import { render } from '${packageFile('quorvane.mjs')}'; render({ description: '(doc' });`,
    `import quorvane from '${packageFile('quorvane.cjs')}'; quorvane.table({ records: [1] });`,
  ];
  for (const call of calls) {
    const { status, stderr } = spawnSync(process.execPath, ['--input-type=module', '--eval', call],
      { encoding: 'utf8' });
    assert.equal(status, 1);
    assert.match(stderr, /^QuorvaneError: /m);
    assert.ok(stderr.split('\n').every((line) => line.length < 300), stderr.slice(0, 2000));
  }
});

test('refuses data that is undefined, and shows tags without data', async () => {
  const description = extended('(pt={{name}})');
  await assert.rejects(render({ description, data: undefined }), {
    name: 'TypeError', message: 'data is undefined; leave the option out, or give the data.',
  });
  assert.match(textOf(await render({ description })), /\\{\\{name\\}\\}/);
});

test('refuses texts that are no texts', async () => {
  await assert.rejects(render({ description: 5 }), {
    name: 'TypeError',
    message: 'render takes description as a string or a Uint8Array, not a number.',
  });
  await assert.rejects(render({ description: cell(), styleSheet: {} }), {
    name: 'TypeError',
    message: 'render takes styleSheet as a string or a Uint8Array, not an object.',
  });
});

test('names the options that there are', async () => {
  await assert.rejects(render({ description: cell(), stylesheet: '' }), /no option "stylesheet".*styleSheet/);
});

test('checks a description and a stylesheet', async () => {
  assert.deepEqual(await check({ description: cell('(pt=Hello)') }), []);
  const [diagnostic] = await check({ styleSheet: '{ name: a; style-def: x; format: \\b }\n' });
  assert.equal(diagnostic.file, 'stylesheet');
});

test('does not check a description with a wrong stylesheet or with data that is not JSON', async () => {
  const description = extended('(pt=Hello)');
  const styleSheet = '{ name: a; style-def: x; format: \\b }\n';
  assert.equal((await refusal(check({ description, styleSheet }))).file, 'stylesheet');
  assert.equal((await refusal(check({ description, data: '{' }))).file, 'data');
});

test('formats a description', async () => {
  const description = '; Note\n(doc\n(r\n   (rb=red)\nr)\ndoc)';
  assert.equal(await format({ description }),
    lines('; Note', '(doc', '  (r', '    (rb=red)', '  r)', 'doc)'));
  assert.equal(await format({ description, names: 'long' }),
    lines('; Note', '(doc', '  (row', '    (row-backcolor=red)', '  row)', 'doc)'));
});

test('formats bytes to bytes', async () => {
  const formatted = await format({ description: new TextEncoder().encode('(doc\n  doc)') });
  assert.ok(formatted instanceof Uint8Array);
  assert.equal(new TextDecoder().decode(formatted), lines('(doc', 'doc)'));
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

const wrongTable = (options, message) => assert.rejects(table(options), { name: 'TypeError', message });

test('refuses values of a table that are wrong', async () => {
  const error = await refusal(table({ records: [['a']], columns: ['A'], stripe: 'lightyellow' }));
  assert.match(error.message, /lightyellow/);
  assert.deepEqual([error.file, error.line, error.diagnostics], ['', 0, []]);
  await assert.rejects(table({ records: [['a', 'b']], columns: ['A'] }), /Record 1 has 2 values/);
});

test('refuses records that are none', async () => {
  const form = 'table takes records as an array of objects or of arrays';
  await wrongTable({}, `${form}, not undefined.`);
  await wrongTable({ records: 'Desk' }, `${form}, not a string.`);
  await wrongTable({ records: { Name: 'Desk' } }, `${form}, not an object.`);
  await wrongTable({ records: [] }, 'table takes columns where the first record does not name them.');
  for (const [record, what] of [['Desk', 'a string'], [null, 'null'], [new Map(), 'a Map']]) {
    const error = await refusal(table({ records: [['a'], record], columns: ['A'] }));
    assert.equal(error.message,
      `Record 2 is ${what}; write an array of values, or an object with properties.`);
  }
});

test('refuses a record with a key that no column shows', async () => {
  const records = [{ a: 1 }, { a: 2, b: 3 }];
  const error = await refusal(table({ records }));
  assert.equal(error.message,
    'Record 2 has "b", which the first record does not have; name the columns.');
  assert.match(textOf(await table({ records, columns: ['a', 'b'] })), /3/);
  assert.match(textOf(await table({ records: [{ a: 1, b: 2 }, { a: 3 }] })), /3/);
});

test('refuses a column that no record has', async () => {
  const records = [{ name: 'Desk', price: 1 }, { name: 'Chair' }];
  const refused = async (key) => (await refusal(table({ records, columns: ['name', key] }))).message;
  assert.equal(await refused('prise'), 'No record has "prise"; the first one has "name", "price".');
  assert.equal(await refused('toString'),
    'No record has "toString"; the first one has "name", "price".');
  assert.match(textOf(await table({ records: [], columns: ['prise'] })), /prise/);
});

test('takes the values of a record from its class', async () => {
  class Article {
    get name() {
      return 'Desk';
    }
  }
  assert.match(textOf(await table({ records: [new Article()], columns: ['name'] })), /Desk/);
});

test('refuses options of a table that are wrong', async () => {
  const records = [['a']];
  const columns = ['A'];
  await wrongTable({ records, columns: 'A' }, 'table takes columns as an array, not a string.');
  await wrongTable({ records, columns: [{ heading: 'A', widht: '3cm' }] },
    'columns[0] of table has no option "widht". Its options are heading, key, width, align.');
  await wrongTable({ records, columns: [1] },
    'columns[0] of table takes an object with heading, key, width, align, not a number.');
  await wrongTable({ records, columns: [{ align: 'middle' }] },
    'table has no alignment "middle". There are default, center, left, right, justified.');
  await wrongTable({ records, columns, footer: '{page}' },
    'footer of table takes an object with left, center, right, not a string.');
  await wrongTable({ records, columns, header: { middle: 'A' } },
    'header of table has no option "middle". Its options are left, center, right.');
  await wrongTable({ records, columns, header: { left: 1 } },
    'header of table takes left as a string, not a number.');
  await wrongTable({ records, columns, styleSheet: new Uint8Array() },
    'table takes styleSheet as a string, not a Uint8Array.');
  await wrongTable({ records, columns, heading: 'no' },
    'table takes heading as true or false, not a string.');
});

test('shows dates in UTC', async () => {
  const records = [[new Date('2026-11-20')], [new Date('2026-11-21T17:05:30Z')]];
  const text = textOf(await table({ records, columns: ['Date'] }));
  assert.match(text, /2026-11-20[^T]/);
  assert.match(text, /2026-11-21T17:05:30\.000Z/);
});

test('refuses values that are no texts', async () => {
  const refused = async (value, heading) =>
    (await refusal(table({ records: [[1], [value]], columns: [{ heading }] }))).message;
  const form = 'write a text, a number, true, false or a Date.';
  assert.equal(await refused({}, 'Price'), `Record 2, "Price": the value is an object; ${form}`);
  assert.equal(await refused([1]), `Record 2, column 1: the value is an array; ${form}`);
  assert.equal(await refused(Symbol('a'), 'A'), `Record 2, "A": the value is a symbol; ${form}`);
  assert.equal(await refused(new Date(NaN), 'A'), 'Record 2, "A": the Date is invalid.');
  assert.equal(await refused('\0', 'A'), 'Record 2, "A": no document can show a zero character.');
});

test('shows the number of the page unless the center of the footer has another text', async () => {
  const hasNumber = async (footer) =>
    /NUMPAGES/.test(textOf(await table({ records: [['a']], columns: ['A'], footer })));
  assert.equal(await hasNumber(undefined), true);
  assert.equal(await hasNumber({ right: 'Articles' }), true);
  assert.equal(await hasNumber({ center: '' }), false);
});

/** The first cells of the rows of a table in the manual, and the second ones. */
function rowsOfManual(heading) {
  const manual = readFileSync(packageFile('README.md'), 'utf8');
  const [, below] = manual.split(`${heading}\n|---`);
  const rows = below.slice(0, below.indexOf('\n\n')).split('\n').slice(1);
  const codes = (text) => [...text.matchAll(/`([^`]+)`/g)].map(([, code]) => code);
  return rows.map((row) => row.split(' | ').map(codes));
}

test('has the keys of the manual in the nodes that it names', async () => {
  const nodes = { doc: 1, row: 2, cell: 3, para: 4 };
  const pairs = rowsOfManual('| Key | Stands in | Value |').flatMap(([keys, places]) =>
    keys.flatMap((key) => places
      .filter((place) => places.length === 1 || keys.length === 1 || key.startsWith(place))
      .map((place) => [key, place])));
  assert.ok(pairs.length > 25, String(pairs));
  for (const [key, place] of pairs) {
    const description = ['; quorvane 2', '(doc', '(row', '(cell', '(para', 'para)', 'cell)', 'row)', 'doc)'];
    description.splice(nodes[place] + 1, 0, `(${key}=wrong)`);
    const found = await check({ description: lines(...description) });
    assert.ok(!found.some(({ identifier }) => /keyword|place$/.test(identifier)),
      `${key} in ${place}: ${JSON.stringify(found)}`);
  }
});

test('has the filters of the manual', async () => {
  const data = {
    money: 1234.5678, number: 1234.5678, date: '2026-11-20', upper: 'a', lower: 'B', count: [1, 2],
  };
  const shown = async (filter) => {
    const name = filter.split(':')[0];
    const rendered = await render({ description: extended(`(pt=[{{${name}|${filter}}}])`), data });
    return /\[(.*)\]/.exec(textOf(rendered))[1];
  };
  const filters = rowsOfManual('| Filter | Shows |').flatMap(([names]) => names);
  assert.deepEqual(await Promise.all(filters.map(async (filter) => [filter, await shown(filter)])), [
    ['money', '1,234.57'],
    ['money:3', '1,234.568'],
    ['number', '1234.5678'],
    ['number:2', '1234.57'],
    ['date:dd.MM.yyyy', '20.11.2026'],
    ['upper', 'A'],
    ['lower', 'b'],
    ['default:none', 'none'],
    ['count', '2'],
  ]);
});
