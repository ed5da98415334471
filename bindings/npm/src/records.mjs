import { constant, requireKind, requireOptions } from './arguments.mjs';
import * as kinds from './kinds.mjs';
import { wrongValue } from './QuorvaneError.mjs';

const alignments = { default: 0, center: 1, left: 2, right: 3, justified: 4 };
const columnOptions = {
  heading: kinds.string, key: kinds.string, width: kinds.string, align: kinds.anything,
};

/** Whether a record has a property of its own or from its class. */
function has(record, key) {
  return Object.hasOwn(record, key) || (key in record && !(key in Object.prototype));
}

function requireRecord(record, row) {
  if (!Array.isArray(record) && !kinds.named.is(record)) {
    throw wrongValue(`Record ${row + 1} is ${kinds.described(record)}; write an array of values, ` +
      'or an object with properties.');
  }
}

/** The records of a table as an array. */
export function recordsOf(given) {
  requireKind('table', 'records', given, kinds.records);
  const records = Array.from(given);
  records.forEach(requireRecord);
  return records;
}

function columnOf(column, index) {
  const options = typeof column === 'string' ? { heading: column } : column;
  requireOptions(`columns[${index}] of table`, options, columnOptions);
  const { heading, key, width, align } = options;
  return {
    heading: heading ?? key ?? '',
    key: key ?? heading ?? '',
    width: width ?? '',
    align: constant('table', 'alignment', align ?? 'default', alignments),
  };
}

function namesOf(record) {
  return Object.keys(record).map((key) => `"${key}"`).join(', ') || 'no properties';
}

/** Refuses a column that would be empty because its key is wrong. */
function requireKeys(columns, records) {
  if (records.length === 0 || records.some(Array.isArray)) {
    return;
  }
  for (const { key } of columns) {
    if (!records.some((record) => has(record, key))) {
      throw wrongValue(`No record has "${key}"; the first one has ${namesOf(records[0])}.`);
    }
  }
}

/** Refuses a value that no column would show. */
function requireKnown(keys, records) {
  records.forEach((record, row) => {
    const unknown = Array.isArray(record) ? undefined : Object.keys(record).find((key) => !keys.has(key));
    if (unknown !== undefined) {
      throw wrongValue(`Record ${row + 1} has "${unknown}", which the first record does not have; ` +
        'name the columns.');
    }
  });
}

function columnsOfFirst(records) {
  const [first] = records;
  const keys = first === undefined || Array.isArray(first) ? [] : Object.keys(first);
  if (keys.length === 0) {
    throw new TypeError('table takes columns where the first record does not name them.');
  }
  requireKnown(new Set(keys), records);
  return keys.map(columnOf);
}

/** The columns that are given, or those that the first record names. */
export function columnsOf(given, records) {
  if (given === undefined) {
    return columnsOfFirst(records);
  }
  requireKind('table', 'columns', given, kinds.array);
  const columns = given.map(columnOf);
  requireKeys(columns, records);
  return columns;
}

function dateText(date, place) {
  if (Number.isNaN(date.getTime())) {
    throw wrongValue(`${place}: the Date is invalid.`);
  }
  return date.toISOString().replace('T00:00:00.000Z', '');
}

function textOf(value, place) {
  if (value === undefined || value === null) {
    return '';
  }
  if (value instanceof Date) {
    return dateText(value, place);
  }
  if (['object', 'function', 'symbol'].includes(typeof value)) {
    throw wrongValue(`${place}: the value is ${kinds.described(value)}; write a text, a number, true, ` +
      'false or a Date.');
  }
  return String(value);
}

function cellText(value, row, column, index) {
  const place = `Record ${row + 1}, ${column.heading === '' ? `column ${index + 1}` : `"${column.heading}"`}`;
  const text = textOf(value, place);
  if (text.includes('\0')) {
    throw wrongValue(`${place}: no document can show a zero character.`);
  }
  return text;
}

function valueOf(record, column, index) {
  if (Array.isArray(record)) {
    return record[index];
  }
  return has(record, column.key) ? record[column.key] : undefined;
}

/** The texts of a record, one for each column. */
export function cellsOf(record, row, columns) {
  if (Array.isArray(record) && record.length > columns.length) {
    throw wrongValue(`Record ${row + 1} has ${record.length} values for ${columns.length} columns.`);
  }
  return columns.map((column, index) =>
    cellText(valueOf(record, column, index), row, column, index));
}
