import { described, named } from './kinds.mjs';

/** Refuses a value that is not of a kind. */
export function requireKind(subject, name, value, kind) {
  if (!kind.is(value)) {
    throw new TypeError(`${subject} takes ${name} as ${kind.form}, not ${described(value)}.`);
  }
  for (const [key, each] of kind.each ? Object.entries(value) : []) {
    requireKind(subject, `${name}["${key}"]`, each, kind.each);
  }
}

/** Refuses options that are not among the known ones, and values that are not of their kinds. */
export function requireOptions(subject, options, known) {
  const names = Object.keys(known).join(', ');
  if (!named.is(options)) {
    throw new TypeError(`${subject} takes an object with ${names}, not ${described(options)}.`);
  }
  for (const [name, value] of Object.entries(options)) {
    if (!Object.hasOwn(known, name)) {
      throw new TypeError(`${subject} has no option "${name}". Its options are ${names}.`);
    }
    if (value !== undefined) {
      requireKind(subject, name, value, known[name]);
    }
  }
}

/** The one of these options that is given, with its text. */
export function onlyOption(subject, options, known) {
  const given = known.filter((name) => options[name] !== undefined);
  if (given.length !== 1) {
    throw new TypeError(`${subject} takes one of ${known.join(', ')}.`);
  }
  return [given[0], options[given[0]]];
}

/** The number of a value that has a name. */
export function constant(subject, option, value, constants) {
  if (!Object.hasOwn(constants, value)) {
    throw new TypeError(`${subject} has no ${option} "${String(value)}". ` +
      `There are ${Object.keys(constants).join(', ')}.`);
  }
  return constants[value];
}
