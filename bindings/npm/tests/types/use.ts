import { check, Diagnostic, format, QuorvaneError, render, table, version } from 'quorvane';

const description = '(doc\ndoc)\n';

export async function use(bytes: Uint8Array): Promise<number> {
  const { rtf, diagnostics } = await render({
    description,
    styleSheet: bytes,
    data: { lines: [{ price: 1.5 }] },
    locale: 'de-DE',
    partials: { heading: '(row\nrow)' },
    pictures: { 'logo.png': bytes },
    checks: true,
    ignore: ['empty-row'],
  });
  const found: Diagnostic[] = [...diagnostics, ...(await check({ styleSheet: '' }))];
  const text: string = await format({ description, names: 'long' });
  const formatted: Uint8Array = await format({ styleSheet: bytes });
  const list = await table({
    records: [{ name: 'Oak desk' }],
    columns: ['number', { key: 'name', width: '50%', align: 'right' }],
    footer: { right: '{page}' },
  });
  const numbers: number[] = found.map(({ line, column, length }) => line + column + length);
  return rtf.length + numbers.length + text.length + formatted.length + list.rtf.length;
}

export function placeOf(error: unknown): string {
  return error instanceof QuorvaneError
    ? `${error.file}:${error.line} ${error.identifier} ${error.diagnostics[0]?.hint ?? ''}`
    : '';
}

export function lineBelow(error: QuorvaneError): number {
  return error.line + 1;
}

export const wrong = [
  // @ts-expect-error A description is required.
  () => render({ styleSheet: '' }),
  // @ts-expect-error The option is styleSheet.
  () => render({ description, stylesheet: '' }),
  // @ts-expect-error There is no such alignment.
  () => table({ records: [], columns: [{ key: 'name', align: 'middle' }] }),
  // @ts-expect-error A column has a width.
  () => table({ records: [], columns: [{ key: 'name', widht: '50%' }] }),
  // @ts-expect-error There is no such part of a page footer.
  () => table({ records: [], footer: { middle: '' } }),
  // @ts-expect-error The texts of a page footer have places.
  () => table({ records: [], footer: '{page}' }),
  // @ts-expect-error A picture is its bytes.
  () => render({ description, pictures: { 'logo.png': 'logo.png' } }),
  // @ts-expect-error A text is formatted to a text.
  async (): Promise<Uint8Array> => format({ description }),
  // @ts-expect-error The version is a text.
  async (): Promise<number> => version(),
];
