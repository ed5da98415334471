// What an option can be: `is` says whether a value is that, `form` says it to people, and `each` is
// the kind of the values in an object.

const isString = (value) => typeof value === 'string';
const isObject = (value) => typeof value === 'object' && value !== null;

export const anything = { is: () => true };
export const string = { is: isString, form: 'a string' };
export const boolean = { is: (value) => typeof value === 'boolean', form: 'true or false' };
export const text = {
  is: (value) => isString(value) || value instanceof Uint8Array,
  form: 'a string or a Uint8Array',
};
export const bytes = {
  is: (value) => value instanceof Uint8Array || value instanceof ArrayBuffer,
  form: 'a Uint8Array or an ArrayBuffer',
};
export const array = { is: Array.isArray, form: 'an array' };
export const strings = {
  is: (value) => Array.isArray(value) && value.every(isString),
  form: 'an array of strings',
};
export const records = {
  is: (value) => isObject(value) && Symbol.iterator in value,
  form: 'an array of objects or of arrays',
};
/** An object whose properties have the names: no array, and no Map. */
export const named = {
  is: (value) => isObject(value) && !(Symbol.iterator in value),
  form: 'an object',
};
export const namedTexts = { ...named, form: 'an object with texts by their names', each: text };
export const namedBytes = { ...named, form: 'an object with files by their names', each: bytes };

/** What a value is, as the end of a sentence about what it should be. */
export function described(value) {
  if (value === null || value === undefined) {
    return String(value);
  }
  const name = Object.prototype.toString.call(value).slice('[object '.length, -1);
  const kind = ['Object', 'Array'].includes(name) ? name.toLowerCase() : name;
  const type = typeof value === 'object' ? kind : typeof value;
  return `${/^[aeio]/i.test(type) ? 'an' : 'a'} ${type}`;
}
