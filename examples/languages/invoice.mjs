// Writes an invoice: node invoice.mjs [FILE]

import { readFile, writeFile } from 'node:fs/promises';
import { render } from 'quorvane';

const data = {
  number: '2027-0042',
  date: '2027-03-01',
  customer: 'Dvořák & Søn',
  lines: [
    { article: 'Espresso machine', quantity: 1, amount: 649.0 },
    { article: 'Café crème, 1 kg', quantity: 12, amount: 226.8 },
    { article: 'Mug {large}', quantity: 6, amount: 57.0 },
  ],
  total: 932.8,
};

try {
  const { rtf } = await render({
    description: await readFile('invoice.rtfspec'),
    styleSheet: await readFile('invoice.rtfss'),
    data,
    pictures: { 'logo.png': await readFile('logo.png') },
  });
  await writeFile(process.argv[2] ?? 'invoice.rtf', rtf);
} catch (error) {
  console.error(error.line ? `${error.file}:${error.line}: ${error.message}` : error.message);
  process.exitCode = 1;
}
