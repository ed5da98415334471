// One class for what imports the package and for what requires it in the same program, so that
// `instanceof` is true in both.
const shared = Symbol.for('quorvane.QuorvaneError');

/** What Quorvane refuses. */
export const QuorvaneError = globalThis[shared] ??= class extends Error {
  static name = 'QuorvaneError';

  constructor(message, details) {
    super(message);
    Object.assign(this, details);
  }

  // On the class, because a stack trace begins with the name that an error is made with.
  get name() {
    return 'QuorvaneError';
  }
};

/** A value that is about no place in a text. */
export function wrongValue(message) {
  return new QuorvaneError(message, {
    identifier: 'wrong-value', number: 0, file: '', line: 0, column: 0, diagnostics: [],
  });
}
