import { constant, onlyOption, requireKind, requireOptions } from './arguments.mjs';
import { Call } from './Call.mjs';
import { GivenFiles } from './GivenFiles.mjs';
import * as kinds from './kinds.mjs';
import { QuorvaneError } from './QuorvaneError.mjs';
import { cellsOf, columnsOf, recordsOf } from './records.mjs';

// The constants of quorvane.h.
const anyLanguage = 0;
const languages = { description: 1, styleSheet: 2, rtf: 3 };
const names = { kept: 0, long: 1, short: 2 };
const tableOptions = { title: 0, page: 2, margin: 3, stripe: 4, border: 5, styleSheet: 6 };
const heading = 1;
const pageTexts = { header: 7, footer: 10 };
const pageTextPlaces = ['left', 'center', 'right'];
const rowsInOneCall = 4096;

const jobOptions = {
  styleSheet: kinds.text,
  data: kinds.anything,
  locale: kinds.string,
  partials: kinds.namedTexts,
  pictures: kinds.namedBytes,
  ignore: kinds.strings,
  enable: kinds.strings,
};
const tableOptionKinds = {
  records: kinds.anything,
  columns: kinds.anything,
  heading: kinds.boolean,
  ...Object.fromEntries(Object.keys(tableOptions).map((name) => [name, kinds.string])),
  ...Object.fromEntries(Object.keys(pageTexts).map((name) => [name, kinds.anything])),
};
const pageTextKinds = Object.fromEntries(pageTextPlaces.map((place) => [place, kinds.string]));

function jsonText(data) {
  const json = typeof data === 'string' ? data : JSON.stringify(data);
  if (json === undefined) {
    throw new TypeError(data === undefined
      ? 'data is undefined; leave the option out, or give the data.'
      : 'data is a value that JSON can hold, or a text in JSON.');
  }
  return json;
}

function inJob(options, work) {
  return Call.make('job', (job) => {
    job.takeFiles(new GivenFiles(options));
    for (const action of ['ignore', 'enable']) {
      for (const identifier of options[action] ?? []) {
        job.run(action, ...job.text(identifier));
      }
    }
    if (options.locale !== undefined) {
      job.run('set_locale', ...job.text(options.locale));
    }
    if ('data' in options) {
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
  requireOptions('render', options, {
    description: kinds.text, ...jobOptions, checks: kinds.boolean,
  });
  requireKind('render', 'description', options.description, kinds.text);
  return inJob(options, (job) => {
    setStyleSheet(job, options.styleSheet);
    job.run('set_checks', options.checks ? 1 : 0);
    const rtf = job.result();
    runWithText(job, 'render', options.description, ...rtf.places);
    return { rtf: rtf.bytes(), diagnostics: job.diagnostics() };
  });
}

export async function check(options) {
  requireOptions('check', options, {
    description: kinds.text, rtf: kinds.text, ...jobOptions,
  });
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
  requireOptions('format', options, {
    description: kinds.text, styleSheet: kinds.text, names: kinds.anything,
  });
  const [kind, text] = onlyOption('format', options, ['description', 'styleSheet']);
  const form = constant('format', 'form of names', options.names ?? 'kept', names);
  return inJob({}, (job) => {
    const formatted = job.result();
    runWithText(job, 'format', text, languages[kind] ?? anyLanguage, form, ...formatted.places);
    return typeof text === 'string' ? formatted.text() : formatted.bytes();
  });
}

function requireTableOptions(options) {
  requireOptions('table', options, tableOptionKinds);
  for (const name of Object.keys(pageTexts)) {
    if (options[name] !== undefined) {
      requireOptions(`${name} of table`, options[name], pageTextKinds);
    }
  }
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
  requireTableOptions(options);
  const records = recordsOf(options.records);
  const columns = columnsOf(options.columns, records);
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
