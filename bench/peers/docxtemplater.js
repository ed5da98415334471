// A yardstick: docxtemplater.js DATA PATTERN FOLDER writes a DOCX file for each line of a JSON Lines
// file of invoices. PATTERN is a DOCX file of one invoice with one line, whose values are the names
// of the data between "@".

import fs from "node:fs";
import path from "node:path";
import Docxtemplater from "docxtemplater";
import PizZip from "pizzip";

const [dataFile, patternFile, folder] = process.argv.slice(2);

/** A price is a number in the pattern, too. */
const markOfPrice = "987.65";

/** The pattern with tags of docxtemplater, the row of the line being a section. */
function templateOf(pattern) {
  const zip = new PizZip(pattern);
  for (const name of Object.keys(zip.files).filter((name) => /^word.*[.]xml$/.test(name))) {
    zip.file(name, tagged(zip.file(name).asText()));
  }
  return zip.generate({ type: "nodebuffer", compression: "DEFLATE" });
}

function tagged(xml) {
  return xml
    .replace("@position@", "{#lines}@position@")
    .replace(markOfPrice, "{money}{/lines}")
    .replace(/@([a-z.]+)@/g, "{$1}");
}

/** Looks up names with points, and writes prices with two decimals. */
function parser(tag) {
  if (tag === "money") {
    return { get: (scope) => scope.price.toFixed(2) };
  }
  const names = tag.split(".");
  return { get: (scope) => names.reduce((value, name) => value?.[name], scope) };
}

const template = templateOf(fs.readFileSync(patternFile));
for (const line of fs.readFileSync(dataFile, "utf8").split("\n")) {
  if (line) {
    const invoice = JSON.parse(line);
    const document = new Docxtemplater(new PizZip(template), { parser });
    document.render(invoice);
    fs.writeFileSync(
      path.join(folder, `${invoice.number}.docx`),
      document.getZip().generate({ type: "nodebuffer", compression: "DEFLATE" }),
    );
  }
}
