// withMustache.js FILE: prints what mustache.js makes of the templates of a JSON file, as a JSON array.
// Values are not escaped.

const fs = require("fs");
const Mustache = require("mustache");

Mustache.escape = (text) => text;
const cases = JSON.parse(fs.readFileSync(process.argv[2], "utf8"));
console.log(JSON.stringify(cases.map((each) => Mustache.render(each.content, each.record))));
