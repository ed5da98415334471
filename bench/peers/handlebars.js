// A yardstick: handlebars.js DATA PATTERN FOLDER writes a document for each line of a JSON Lines
// file of invoices, as "quorvane render --each" does, by a template in Handlebars. PATTERN is the
// document of one invoice with one line, whose values are the names of the data between "@". It
// escapes values and formats prices with what Node has.

import fs from "node:fs";
import path from "node:path";
import Handlebars from "handlebars";

/** A price is a number in the pattern, too. */
const markOfPrice = "987.65";

const [dataFile, patternFile, folder] = process.argv.slice(2);

/** The pattern with tags of Handlebars, the row of the line being a section. */
function templateOf(pattern) {
  const endOfRow = "\\row}";
  const article = pattern.indexOf("@article@");
  const begin = pattern.lastIndexOf(endOfRow, article) + endOfRow.length;
  const end = pattern.indexOf(endOfRow, article) + endOfRow.length;
  return (
    tagged(pattern.slice(0, begin)) +
    "{{#each lines}}" +
    tagged(pattern.slice(begin, end)) +
    "{{/each}}" +
    tagged(pattern.slice(end))
  );
}

/** Braces of RTF beside a tag, or two together, are values. */
function tagged(text) {
  return text
    .replace(/\{(?=[{@])/g, "{{{open}}}")
    .replace(/^\}|(?<=@)\}/g, "{{{close}}}")
    .replace(/@([a-z.]+)@/g, "{{$1}}")
    .replaceAll(markOfPrice, "{{money price}}");
}

/** A value as text of RTF, with all that could break the document. */
function escaped(value) {
  return String(value).replace(/[\\{}\n]|[^\0-\x7f]/g, (character) => {
    const code = character.charCodeAt(0);
    if (character === "\n") {
      return "\\line ";
    }
    return code < 0x80 ? `\\${character}` : `{\\uc1\\u${code}?}`;
  });
}

const money = new Intl.NumberFormat("en-US", { minimumFractionDigits: 2, maximumFractionDigits: 2 });
const encoding = "latin1";
Handlebars.Utils.escapeExpression = escaped;
Handlebars.registerHelper("money", (number) => money.format(number));
Handlebars.registerHelper("open", () => "{");
Handlebars.registerHelper("close", () => "}");

const render = Handlebars.compile(templateOf(fs.readFileSync(patternFile, encoding)));
for (const line of fs.readFileSync(dataFile, "utf8").split("\n")) {
  if (line) {
    const invoice = JSON.parse(line);
    fs.writeFileSync(path.join(folder, `${invoice.number}.rtf`), render(invoice), encoding);
  }
}
