// What the package must render to the bytes of the command: the golden cases, the examples, and
// documents that are put together from their parts at random.
import { existsSync, readFileSync, readdirSync } from 'node:fs';
import { basename, join } from 'node:path';

import { combined, SourcePool } from './combine.mjs';
import { randomData, RandomNumbers } from './random.mjs';

const randomCount = 500;
const seed = 20261122;
const everyTemplate = 10;

const bytesOf = (path) => (existsSync(path) ? readFileSync(path) : undefined);

function goldenCase(folder, name) {
  const file = (of) => join(folder, name, of);
  const pictures = readdirSync(join(folder, name)).filter((of) => /\.(png|jpg)$/.test(of));
  return {
    name: `golden-${name}`,
    description: readFileSync(file('description.rtfspec')),
    styleSheet: bytesOf(file('style.rtfss')),
    pictures: Object.fromEntries(pictures.map((picture) => [picture, readFileSync(file(picture))])),
    checks: JSON.parse(readFileSync(file('case.json'))).checked,
    hasErrors: readFileSync(file('expected.report'), 'utf8').includes('error'),
  };
}

function goldenCases(folder) {
  return readdirSync(folder)
    .filter((name) => existsSync(join(folder, name, 'case.json')))
    .map((name) => goldenCase(folder, name));
}

function exampleCases(folder) {
  const pictures = { 'parts-logo.png': readFileSync(join(folder, 'parts-logo.png')) };
  return ['', 'extended'].flatMap((under) =>
    readdirSync(join(folder, under))
      .filter((name) => name.endsWith('.rtfspec'))
      .map((name) => ({
        name: `example-${under}${basename(name, '.rtfspec')}`,
        description: readFileSync(join(folder, under, name)),
        styleSheet: bytesOf(join(folder, under, name.replace('.rtfspec', '.rtfss'))),
        pictures,
        checks: true,
      })));
}

function templateCases(folder) {
  const file = (name) => readFileSync(join(folder, name));
  const template = (name, data) => ({
    name: `template-${name}`,
    description: file(`${name}.rtfspec`),
    styleSheet: file(`${name}.rtfss`),
    partials: { heading: file('heading.rtfpart') },
    pictures: {},
    checks: true,
    data,
    locale: 'de-DE',
  });
  const [firstStatement] = file('statements.jsonl').toString().split('\n');
  return [
    template('invoice', JSON.parse(file('order.json'))),
    template('statement', JSON.parse(firstStatement)),
  ];
}

/** All cases of the project in this folder. */
export function allCases(project) {
  const originals = [
    ...goldenCases(join(project, 'tests/golden')),
    ...exampleCases(join(project, 'examples')),
  ];
  const templates = templateCases(join(project, 'examples/templates'));
  const random = new RandomNumbers(seed);
  const pool = new SourcePool(originals.filter(({ hasErrors }) => !hasErrors));
  const filled = (template) => ({ ...template, data: randomData(template.data, random) });
  const randomCase = (index) =>
    index % everyTemplate === 0 ? filled(random.of(templates)) : combined(pool, random);
  const all = [
    ...originals,
    ...templates,
    ...Array.from({ length: randomCount }, (_, index) => ({
      ...randomCase(index),
      name: `random-${index}`,
    })),
  ];
  return all.map(({ hasErrors, ...each }) => each);
}
