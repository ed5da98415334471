/** Numbers that are the same in each run. */
export class RandomNumbers {
  #state;

  constructor(seed) {
    this.#state = seed;
  }

  /** A whole number from 0 that is less than this one. */
  below(end) {
    this.#state = (Math.imul(this.#state, 1664525) + 1013904223) >>> 0;
    return Math.floor((this.#state / 2 ** 32) * end);
  }

  of(all) {
    return all[this.below(all.length)];
  }
}

const texts = ['Vase', 'Dvořák & Söhne', 'Łódź – Żory', '½ l "Riesling"', '東京', '', 'a {b} \\c', '1e5'];
const numbers = [0, 1, -1, 0.5, 0.125, 19.99, 1e-7, 1234567.891, 999999999999, 1e21, 0.1 + 0.2, 2 / 3];

/** The same shape with other texts and numbers, and lists of other lengths. */
export function randomData(data, random) {
  if (Array.isArray(data)) {
    return data.length === 0
      ? []
      : Array.from({ length: random.below(6) }, () => randomData(random.of(data), random));
  }
  if (typeof data === 'object' && data !== null) {
    return Object.fromEntries(
      Object.entries(data).map(([name, value]) => [name, randomData(value, random)]));
  }
  if (typeof data === 'number') {
    return random.of(numbers);
  }
  // Dates and what looks like a number stay what filters can read.
  return typeof data === 'string' && !/^\d/.test(data) ? random.of(texts) : data;
}
