// In the order of quorvane_file_kind.
const kinds = [
  { option: 'pictures', identifier: 'wrong-picture' },
  { option: 'partials', identifier: 'wrong-partial' },
];
const extension = '.rtfpart';
const mostNames = 10;

function listed(option, names) {
  if (names.length === 0) {
    return `the option ${option} has no files`;
  }
  const shown = names.slice(0, mostNames).map((name) => `"${name}"`).join(', ');
  const more = names.length - mostNames;
  return `the option ${option} has ${shown}${more > 0 ? ` and ${more} more` : ''}`;
}

/** The pictures and the partials of a call, by the names that they were given with. */
export class GivenFiles {
  #files;
  #missing = kinds.map(() => new Set());

  constructor({ pictures = {}, partials = {} }) {
    this.#files = { pictures, partials };
  }

  /** The content of a file that the module asks for; undefined if there is none. */
  find(kind, name) {
    const files = this.#files[kinds[kind].option];
    const known = this.#namesFor(kind, name).find((each) => Object.hasOwn(files, each));
    if (known === undefined) {
      this.#missing[kind].add(name);
      return undefined;
    }
    return files[known] instanceof ArrayBuffer ? new Uint8Array(files[known]) : files[known];
  }

  /** For a diagnostic about a file that is missing, the names that there are. */
  hintFor({ identifier, message }) {
    const kind = kinds.findIndex((each) => each.identifier === identifier);
    const missing = [...(this.#missing[kind] ?? [])];
    return missing.some((name) => message.startsWith(`${name}: `))
      ? listed(kinds[kind].option, Object.keys(this.#files[kinds[kind].option]))
      : '';
  }

  // The module asks for partials with the extension of their files, whether tags have it or not.
  #namesFor(kind, name) {
    return kinds[kind].option === 'partials' && name.endsWith(extension)
      ? [name.slice(0, -extension.length), name]
      : [name];
  }
}
