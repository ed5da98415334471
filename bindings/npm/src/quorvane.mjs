import { Call, QuorvaneError } from './Call.mjs';

// The constants of quorvane.h.
const anyLanguage = 0;
const languages = { description: 1, styleSheet: 2, rtf: 3 };
const names = { kept: 0, long: 1, short: 2 };
const alignments = { default: 0, center: 1, left: 2, right: 3, justified: 4 };
const tableOptions = { title: 0, page: 2, margin: 3, stripe: 4, border: 5, styleSheet: 6 };
const heading = 1;
const pageTexts = { header: 7, footer: 10 };
const pageTextPlaces = ['left', 'center', 'right'];
const rowsInOneCall = 4096;

const jobOptions = [
  'styleSheet', 'data', 'locale', 'partials', 'pictures', 'ignore', 'enable',
];

function requireOptions(functionName, options, known) {
  if (typeof options !== 'object' || options === null) {
    throw new TypeError(`${functionName} takes an object with options.`);
  }
  for (const name of Object.keys(options)) {
    if (!known.includes(name)) {
      throw new TypeError(
        `${functionName} has no option "${name}". Its options are ${known.join(', ')}.`);
    }
  }
}

function requireText(functionName, name, value) {
  if (typeof value !== 'string' && !(value instanceof Uint8Array)) {
    throw new TypeError(`${functionName} takes ${name} as a string or a Uint8Array.`);
  }
}

/** The one of these options that is given, with its text. */
function onlyOption(functionName, options, known) {
  const given = known.filter((name) => options[name] !== undefined);
  if (given.length !== 1) {
    throw new TypeError(`${functionName} takes one of ${known.join(', ')}.`);
  }
  requireText(functionName, given[0], options[given[0]]);
  return [given[0], options[given[0]]];
}

function constant(functionName, option, value, constants) {
  if (!Object.hasOwn(constants, value)) {
    throw new TypeError(`${functionName} has no ${option} "${value}". ` +
      `There are ${Object.keys(constants).join(', ')}.`);
  }
  return constants[value];
}

function jsonText(data) {
  const text = typeof data === 'string' ? data : JSON.stringify(data);
  if (text === undefined) {
    throw new TypeError('data is a value that JSON can hold, or a text in JSON.');
  }
  return text;
}

function inJob(options, work) {
  return Call.make('job', (job) => {
    job.takeFiles({ pictures: options.pictures ?? {}, partials: options.partials ?? {} });
    for (const action of ['ignore', 'enable']) {
      for (const identifier of options[action] ?? []) {
        job.run(action, ...job.text(identifier));
      }
    }
    if (options.locale !== undefined) {
      job.run('set_locale', ...job.text(options.locale));
    }
    if (options.data !== undefined) {
      job.run('set_data', ...job.text(jsonText(options.data)), 0, 0);
    }
    return work(job);
  });
}

function setStyleSheet(job, styleSheet) {
  if (styleSheet !== undefined) {
    job.run('set_encoding', job.encodingOf(styleSheet));
    job.run('set_stylesheet', ...job.text(styleSheet), 0, 0);
  }
}

/** Gives a text to a function of a job, read in its encoding. */
function runWithText(job, functionName, text, ...more) {
  job.run('set_encoding', job.encodingOf(text));
  job.run(functionName, ...job.text(text), ...more);
}

export async function render(options) {
  requireOptions('render', options, ['description', ...jobOptions, 'checks']);
  requireText('render', 'description', options.description);
  return inJob(options, (job) => {
    setStyleSheet(job, options.styleSheet);
    job.run('set_checks', options.checks ? 1 : 0);
    const rtf = job.result();
    runWithText(job, 'render', options.description, ...rtf.places);
    return { rtf: rtf.bytes(), diagnostics: job.diagnostics() };
  });
}

export async function check(options) {
  requireOptions('check', options, ['description', 'rtf', ...jobOptions]);
  const isStyleSheet = options.description === undefined && options.rtf === undefined;
  const [kind, text] = onlyOption(
    'check', options, isStyleSheet ? Object.keys(languages) : ['description', 'rtf']);
  return inJob(options, (job) => {
    if (!isStyleSheet) {
      setStyleSheet(job, options.styleSheet);
    }
    runWithText(job, 'check', text, languages[kind]);
    return job.diagnostics();
  });
}

export async function format(options) {
  requireOptions('format', options, ['description', 'styleSheet', 'names']);
  const [kind, text] = onlyOption('format', options, ['description', 'styleSheet']);
  const form = constant('format', 'form of names', options.names ?? 'kept', names);
  return inJob({}, (job) => {
    const formatted = job.result();
    runWithText(job, 'format', text, languages[kind] ?? anyLanguage, form, ...formatted.places);
    return typeof text === 'string' ? formatted.text() : formatted.bytes();
  });
}

function columnOf(column) {
  const { heading: text, key, width, align } = typeof column === 'string' ? { heading: column } : column;
  return {
    heading: text ?? key ?? '',
    key: key ?? text,
    width: width ?? '',
    align: constant('table', 'alignment', align ?? 'default', alignments),
  };
}

function columnsOf({ columns, records }) {
  if (columns !== undefined) {
    return columns.map(columnOf);
  }
  const [first] = records;
  if (first === undefined || Array.isArray(first)) {
    throw new TypeError('table takes columns where the first record does not name them.');
  }
  return Object.keys(first).map(columnOf);
}

function cellText(value, row, column) {
  const text = value === undefined || value === null ? '' : String(value);
  if (text.includes('\0')) {
    throw new QuorvaneError(
      `Record ${row + 1}, "${column.heading}": no document can show a zero character.`,
      { identifier: 'wrong-value', diagnostics: [] });
  }
  return text;
}

/** The texts of a record, one for each column. */
function cellsOf(record, row, columns) {
  if (Array.isArray(record) && record.length > columns.length) {
    throw new QuorvaneError(
      `Record ${row + 1} has ${record.length} values for ${columns.length} columns.`,
      { identifier: 'wrong-value', diagnostics: [] });
  }
  return columns.map((column, index) =>
    cellText(record[Array.isArray(record) ? index : column.key], row, column));
}

function setTableOptions(table, options) {
  for (const [name, number] of Object.entries(tableOptions)) {
    if (options[name] !== undefined) {
      table.run('set', number, ...table.text(options[name]));
    }
  }
  if (options.heading !== undefined) {
    table.run('set', heading, ...table.text(options.heading ? 'yes' : 'no'));
  }
  for (const [name, number] of Object.entries(pageTexts)) {
    pageTextPlaces.forEach((place, index) => {
      const text = options[name]?.[place];
      if (text !== undefined) {
        table.run('set', number + index, ...table.text(text));
      }
    });
  }
}

function addRecords(table, records, columns) {
  for (let first = 0; first < records.length; first += rowsInOneCall) {
    const some = records.slice(first, first + rowsInOneCall);
    const texts = some.flatMap((record, index) => cellsOf(record, first + index, columns));
    const text = texts.map((cell) => `${cell}\0`).join('');
    table.scope(() => {
      table.run('add_rows', ...table.text(text), columns.length, some.length, 0);
    });
  }
}

export async function table(options) {
  requireOptions('table', options, [
    'records', 'columns', 'heading', ...Object.keys(tableOptions), ...Object.keys(pageTexts),
  ]);
  const records = Array.from(options.records ?? []);
  const columns = columnsOf({ columns: options.columns, records });
  return Call.make('table', (call) => {
    setTableOptions(call, options);
    for (const { heading: text, width, align } of columns) {
      call.run('add_column', ...call.text(text), ...call.text(width), align);
    }
    call.run('begin');
    addRecords(call, records, columns);
    call.run('finish');
    const rtf = call.result();
    call.run('take', ...rtf.places);
    return { rtf: rtf.bytes(), diagnostics: [] };
  });
}

export async function version() {
  return Call.version();
}

export { QuorvaneError };
