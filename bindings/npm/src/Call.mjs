import { instantiate } from './instantiate.mjs';
import { QuorvaneError } from './QuorvaneError.mjs';

const readsUtf8 = 0;
const readsEither = 2;
const severities = ['error', 'warning'];
const pointerSize = 4;

const encoder = new TextEncoder();
const decoder = new TextDecoder();

let loading;
// The call that is being made, and its files; all of its work is done before another begins.
let current;

/** The functions of the module, which is made with the first call, or the next one if that fails. */
function load() {
  loading ??= instantiate({ readFile }).catch((error) => {
    loading = undefined;
    throw error;
  });
  return loading;
}

/** Hands a file to the module, in memory that it can use until the call ends. */
function readFile(kind, name, nameLength, lengthPlace) {
  const { call, files } = current;
  const content = files.find(kind, call.textAt(name, nameLength));
  if (content === undefined) {
    return 0;
  }
  const [bytes, length] = call.text(content);
  call.view().setUint32(lengthPlace, length, true);
  return bytes;
}

/** One handle of the library for C, and the memory that is used while it lives. */
export class Call {
  #exports;
  #kind;
  #handle = 0;
  #memory = [];

  constructor(exports, kind) {
    this.#exports = exports;
    this.#kind = kind;
  }

  /** Runs work with a new handle of a kind. */
  static async make(kind, work) {
    const exports = await load();
    const call = new Call(exports, kind);
    try {
      return call.scope(() => call.#use(work));
    } catch (error) {
      if (error instanceof WebAssembly.RuntimeError || error instanceof WebAssembly.Exception) {
        loading = undefined; // what the module left unfinished goes with it
      }
      throw error;
    }
  }

  static async version() {
    const exports = await load();
    return new Call(exports, '').#textFrom(exports.quorvane_version());
  }

  #use(work) {
    const place = this.#allocate(pointerSize);
    this.#require(this.#function('new')(place));
    this.#handle = this.#pointerAt(place);
    try {
      return work(this);
    } finally {
      current = undefined;
      this.#function('free')(this.#handle);
    }
  }

  /** Runs a function of the handle. */
  run(name, ...values) {
    this.#require(this.#function(name)(this.#handle, ...values));
  }

  /** Releases, after the work, the memory that was allocated for it. */
  scope(work) {
    const before = this.#memory.length;
    try {
      return work();
    } finally {
      for (const memory of this.#memory.splice(before)) {
        this.#exports.free(memory);
      }
    }
  }

  /** A text or bytes as two arguments. */
  text(value) {
    const bytes = value instanceof Uint8Array ? value : encoder.encode(String(value));
    const memory = this.#allocate(bytes.length + 1);
    new Uint8Array(this.#exports.memory.buffer).set(bytes, memory);
    return [memory, bytes.length];
  }

  encodingOf(text) {
    return typeof text === 'string' ? readsUtf8 : readsEither;
  }

  /** Where a function returns bytes: the arguments for it, and what is there after it. */
  result() {
    const place = this.#allocate(2 * pointerSize);
    const take = (read) => {
      const [start, length] = [this.#pointerAt(place), this.#pointerAt(place + pointerSize)];
      const taken = read(start, length);
      this.#exports.quorvane_free(start);
      return taken;
    };
    return {
      places: [place, place + pointerSize],
      bytes: () => take((start, length) => this.#bytesAt(start, length).slice()),
      text: () => take((start, length) => this.textAt(start, length)),
    };
  }

  /** Takes pictures and partials from these files. */
  takeFiles(files) {
    current = { call: this, files };
    this.#require(this.#exports.quorvaneTakeFiles(this.#handle));
  }

  diagnostics() {
    const count = this.#function('diagnostic_count')(this.#handle);
    return Array.from({ length: count }, (_, index) =>
      this.#diagnosticAt(this.#function('diagnostic')(this.#handle, index)));
  }

  view() {
    return new DataView(this.#exports.memory.buffer);
  }

  textAt(start, length) {
    return decoder.decode(this.#bytesAt(start, length));
  }

  #function(name) {
    return this.#exports[`quorvane_${this.#kind}_${name}`];
  }

  #allocate(size) {
    const memory = this.#exports.malloc(size);
    if (memory === 0) {
      throw new RangeError('Quorvane is out of memory.');
    }
    this.#memory.push(memory);
    return memory;
  }

  #require(status) {
    if (status !== 0) {
      throw this.#error();
    }
  }

  #error() {
    const [, number, identifier, message, file, line, column] =
      this.#words(this.#function('error')(this.#handle), 7);
    const said = { identifier: this.#textFrom(identifier), message: this.#textFrom(message) };
    const names = current?.files.hintFor(said);
    return new QuorvaneError(names ? `${said.message} (${names})` : said.message, {
      identifier: said.identifier,
      number: number | 0,
      file: this.#textFrom(file),
      line,
      column,
      diagnostics: this.#kind === 'job' ? this.diagnostics() : [],
    });
  }

  #diagnosticAt(place) {
    const [severity, identifier, message, hint, file, line, column, length, byteOffset, byteLength,
      fix] = this.#words(place, 11);
    const diagnostic = {
      severity: severities[severity],
      identifier: this.#textFrom(identifier),
      message: this.#textFrom(message),
      file: this.#textFrom(file),
      line,
      column,
      length,
      byteOffset,
      byteLength,
    };
    const said = this.#textFrom(hint) || current?.files.hintFor(diagnostic);
    if (said) {
      diagnostic.hint = said;
    }
    if (fix !== 0) {
      diagnostic.fix = this.#textFrom(fix);
    }
    return diagnostic;
  }

  /** The fields of a structure, all of which take one word. */
  #words(place, count) {
    const view = this.view();
    return Array.from({ length: count }, (_, index) =>
      view.getUint32(place + index * pointerSize, true));
  }

  #pointerAt(place) {
    return this.view().getUint32(place, true);
  }

  #bytesAt(start, length) {
    return new Uint8Array(this.#exports.memory.buffer, start, length);
  }

  /** A text that ends with a zero byte. */
  #textFrom(start) {
    const all = new Uint8Array(this.#exports.memory.buffer);
    return this.textAt(start, all.indexOf(0, start) - start);
  }
}
