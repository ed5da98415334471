// What the package must render to the bytes of the command: the golden cases, and descriptions that
// are made of their lines at random.
import { existsSync, readFileSync, readdirSync } from 'node:fs';
import { join } from 'node:path';

const randomCount = 500;
const mostChanges = 4;

/** Numbers that are the same in each run. */
function randomNumbers(seed) {
  let state = seed;
  return (end) => {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    return Math.floor((state / 2 ** 32) * end);
  };
}

function goldenCase(folder, name) {
  const file = (of) => readFileSync(join(folder, name, of));
  const pictures = readdirSync(join(folder, name)).filter((of) => /\.(png|jpg)$/.test(of));
  return {
    name,
    description: file('description.rtfspec'),
    styleSheet: existsSync(join(folder, name, 'style.rtfss')) ? file('style.rtfss') : undefined,
    pictures: Object.fromEntries(pictures.map((picture) => [picture, file(picture)])),
    checks: JSON.parse(file('case.json')).checked,
  };
}

export function goldenCases(folder) {
  return readdirSync(folder)
    .filter((name) => existsSync(join(folder, name, 'case.json')))
    .map((name) => goldenCase(folder, name));
}

/** A case with some lines left out, repeated, or taken from another one. */
function changed(original, other, random) {
  const lines = original.description.toString('latin1').split('\n');
  const others = other.description.toString('latin1').split('\n');
  for (let change = 0; change <= random(mostChanges); ++change) {
    const place = 1 + random(lines.length);
    const taken = [[], [lines[place - 1]], [others[random(others.length)]]][random(3)];
    lines.splice(place, taken.length === 0 ? 1 : 0, ...taken);
  }
  return { ...original, description: Buffer.from(lines.join('\n'), 'latin1') };
}

export function randomCases(golden) {
  const random = randomNumbers(20261122);
  return Array.from({ length: randomCount }, (_, index) => ({
    ...changed(golden[random(golden.length)], golden[random(golden.length)], random),
    name: `random-${index}`,
  }));
}
