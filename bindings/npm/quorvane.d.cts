/** A text, or its bytes: in UTF-8, or in Windows-1252 where they are not UTF-8. */
export type Text = string | Uint8Array;

/** One problem in a text. */
export interface Diagnostic {
  severity: 'error' | 'warning';
  /** Names the kind of diagnostic, such as "wrong-color". */
  identifier: string;
  /** What is wrong. */
  message: string;
  /** What could be done about it. */
  hint?: string;
  /** What to put in this place instead, if that is certain. */
  fix?: string;
  /** "description", "stylesheet", "document", "data", or the name of a partial. */
  file: string;
  /** Line and column, from 1, and the characters from there on, on the same line. */
  line: number;
  column: number;
  length: number;
  /** The same in bytes of UTF-8, from the beginning of the text. */
  byteOffset: number;
  byteLength: number;
}

/** What Quorvane refuses: wrong descriptions, stylesheets, data and values. */
export class QuorvaneError extends Error {
  name: 'QuorvaneError';
  /** The kind of error, such as "wrong-color". */
  identifier: string;
  /** The number of the system's error; 0 if there is none. */
  number: number;
  /**
   * The text that the error is about, and the place in it, from 1. An error about no text, such as each
   * of `table`, has "" and 0.
   */
  file: string;
  line: number;
  column: number;
  /** Everything that is wrong, the error among it. Empty if the error is about no text. */
  diagnostics: Diagnostic[];
}

/** What descriptions are rendered and checked with. */
export interface JobOptions {
  styleSheet?: Text;
  /**
   * Makes the description a template that is filled with it. A string is a text in JSON; every other
   * value is one that `JSON.stringify` takes. Without data, tags such as {{name}} are texts.
   */
  data?: unknown;
  /** How templates write numbers: "de-DE", "de", or a sample such as "1.234,56". */
  locale?: string;
  /** The parts that templates name, by their names, with ".rtfpart" or without it. */
  partials?: Record<string, Text>;
  /** The pictures, PNG or JPEG, by the names that the description gives them. */
  pictures?: Record<string, Uint8Array | ArrayBuffer>;
  /** Diagnostics to leave out, by their identifiers. */
  ignore?: string[];
  /** Diagnostics to report that are off by default. */
  enable?: string[];
}

export interface RenderOptions extends JobOptions {
  description: Text;
  /**
   * Checks the description first: its warnings are then among the diagnostics, and one with errors is
   * not rendered. False by default.
   */
  checks?: boolean;
}

export interface Rendered {
  /** The bytes of the document. */
  rtf: Uint8Array;
  diagnostics: Diagnostic[];
}

/** Makes a document. Rejects with a `QuorvaneError` if a text is wrong. */
export function render(options: RenderOptions): Promise<Rendered>;

/** Either a description, with its stylesheet or without one, or a stylesheet, or a document. */
export interface CheckOptions extends JobOptions {
  description?: Text;
  rtf?: Text;
}

/**
 * Finds what is wrong in a text. Rejects with a `QuorvaneError` if the stylesheet of a description has
 * errors, which `check({ styleSheet })` finds, or if the data is not JSON.
 */
export function check(options: CheckOptions): Promise<Diagnostic[]>;

export interface FormatOptions<Kind extends Text> {
  /** One of the two. */
  description?: Kind;
  styleSheet?: Kind;
  /** The form of the names of nodes and keys; "kept" by default. */
  names?: 'kept' | 'long' | 'short';
}

/** A description or a stylesheet in its canonical form. Bytes stay bytes, in their encoding. */
export function format(options: FormatOptions<string>): Promise<string>;
export function format(options: FormatOptions<Uint8Array>): Promise<Uint8Array>;

export interface Column {
  /** The text in the heading row; the key if there is none. */
  heading?: string;
  /** The property of the records, which one of them must have; the heading if there is none. */
  key?: string;
  /** A percentage ("20%") or a length ("3cm"). Either all columns have a width or none has. */
  width?: string;
  align?: 'default' | 'left' | 'center' | 'right' | 'justified';
}

/**
 * Texts of a page header or footer, with {page} and {pages}. A part that is not given stays as it is:
 * the center of a footer is "{page} / {pages}".
 */
export interface PageTexts {
  left?: string;
  center?: string;
  right?: string;
}

export interface TableOptions {
  /**
   * Arrays of values, or objects. Null and undefined are empty cells; a Date is its time in UTC, without
   * the hours at midnight. Numbers are shown as `String` has them, and other objects are refused.
   */
  records: Iterable<readonly unknown[] | object>;
  /** By default the keys of the first object; it must have those of all others then. */
  columns?: (string | Column)[];
  /** A row above the heading, on every page. */
  title?: string;
  /** A heading row with the names of the columns, on every page; true by default. */
  heading?: boolean;
  /** A page such as "letter" or "a4-landscape"; "a4" by default. */
  page?: string;
  /** The four margins, a length; "2cm" by default. */
  margin?: string;
  /** The background of every second row, a color; "#f2f6fa" by default, "none" for none. */
  stripe?: string;
  /** The border around all cells; "none" by default. */
  border?: string;
  styleSheet?: string;
  header?: PageTexts;
  footer?: PageTexts;
}

/**
 * Makes a document of records. Rejects with a `QuorvaneError` without diagnostics if a value is wrong.
 */
export function table(options: TableOptions): Promise<Rendered>;

/** The version of the library, such as "1.0.0". */
export function version(): Promise<string>;
