// Runs in Node and in browsers.
const bytesOf = (text) =>
  text === undefined ? undefined : Uint8Array.from(atob(text), (character) => character.charCodeAt(0));
const bytesOfAll = (texts = {}) =>
  Object.fromEntries(Object.entries(texts).map(([name, text]) => [name, bytesOf(text)]));
const hexadecimal = (bytes) =>
  Array.from(bytes, (byte) => byte.toString(16).padStart(2, '0')).join('');

async function rendered({ render, QuorvaneError }, { name, ...options }) {
  try {
    const { rtf } = await render({
      ...options,
      description: bytesOf(options.description),
      styleSheet: bytesOf(options.styleSheet),
      pictures: bytesOfAll(options.pictures),
      partials: bytesOfAll(options.partials),
    });
    return hexadecimal(rtf);
  } catch (error) {
    return error instanceof QuorvaneError ? 'refused' : `${name}: ${error.stack ?? error}`;
  }
}

/** For each case the document in hexadecimal digits, or "refused". Bytes are in Base64. */
export async function renderedInTurn(quorvane, cases) {
  const results = [];
  for (const each of cases) {
    results.push(await rendered(quorvane, each));
  }
  return results;
}
