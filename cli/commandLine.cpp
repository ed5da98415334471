#include "cli/commandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <map>
#include <sstream>
#include <system_error>

#include "cli/UsageError.h"
#include "cli/licenses.h"
#include "cli/styleSheetName.h"
#include "data/encodingNames.h"
#include "data/tableOptionTexts.h"
#include "quorvane/diagnostics/engine/nearestWord.h"

namespace quorvane::cli {

namespace {

constexpr const char* versionText = "quorvane " QUORVANE_VERSION;

constexpr const char* renderFooter =
    R"(A description (.rtfspec) is a text file in UTF-8 or Windows-1252; - is standard
input. Unless --encoding says which, a file that begins with a byte order mark
of UTF-8, or that is UTF-8 and not plain ASCII, is in UTF-8. So it is for the
stylesheet. If the first line is "; quorvane 2", the file is in the extended
language, and in UTF-8.

Unless --output or --output-dir is given, a document is written next to its
description, with the extension rtf. The document of standard input goes to
standard output, or to the file stdin.rtf in the folder of --output-dir;
--output - names standard output too.

Nothing is written for a description with errors unless --keep-going is given.
A document appears whole or not at all, and never replaces a description or a
stylesheet.

With --data, the descriptions are templates: {{name}} stands for a value of the
JSON file, or of standard input for -, and {{#lines}} ... {{/lines}} for what is
repeated for each item of a list. With --each, the data is a JSON array, JSON
Lines or a CSV file, and each record gets a document; --output is a template
then, such as 'out/{{number}}.rtf'. With --join, all records get one document,
each on a new page. A record that fails is reported, and the others go on.

Errors are reported on standard error as "quorvane check" reports them. With
--check, texts that would corrupt the document are errors too.

Exit status:
  0  success
  1  a description or the stylesheet has errors
  2  wrong usage, or a file that cannot be read or written)";

constexpr const char* checkFooter =
    R"(The content of a file shows whether it is a description, a stylesheet or an RTF
file; if it does not, the extension decides. - is standard input. A folder
stands for all .rtfspec, .rtfss and .rtf files in it and its subfolders. The
report goes to standard output:

  letter.rtfspec:3:5: error: crimson isn't a recognized color. [wrong-color]
      (rb=crimson)
          ^~~~~~~
      hint: did you mean dark-red?

The name in brackets is the identifier for --explain, --ignore and --enable. A
comment leaves a diagnostic out of the report for the next line:

  ; quorvane: ignore wrong-color

Unless --encoding says which, a description or a stylesheet that begins with a
byte order mark of UTF-8, or that is UTF-8 and not plain ASCII, is in UTF-8; any
other is in Windows-1252. Columns count characters.

With --data, descriptions are templates, and what is reported is wrong for this
JSON file. Without it, a template is checked as far as that is possible.

With --diff, the diff goes to standard output and the report to standard error.
So do the fixed text of standard input and its report with --fix. On a terminal
the report is colored unless the environment variable NO_COLOR is set.

Exit status, after fixing:
  0  no errors and no warnings
  1  errors
  2  wrong usage, or a file that cannot be read or written
  3  warnings but no errors
With --fail-on=error, warnings do not count. With --fail-on=never, the status
is 0 or 2.)";

const std::map<std::string, ReportForm>& reportForms() {
    static const std::map<std::string, ReportForm> forms = {
        {"text", ReportForm::Text},
        {"json", ReportForm::Json},
        {"sarif", ReportForm::Sarif},
    };
    return forms;
}

constexpr const char* formatFooter =
    R"(The content of a file shows whether it is a description or a stylesheet; if it
does not, the extension decides. Any other file is an error. - is standard
input, whose canonical form goes to standard output. A folder stands for all
.rtfspec and .rtfss files in it and its subfolders. A file that is already in
canonical form is not touched.

Each file stays in its encoding. Unless --encoding says which that is, a file
that begins with a byte order mark of UTF-8, or that is UTF-8 and not plain
ASCII, is in UTF-8; any other is in Windows-1252.

The canonical form renders to the same document. The messages of errors may
differ, because they repeat lines of the description.

With --upgrade, the canonical form is in the extended language and in UTF-8, and
looks the same. The stylesheet of a description is upgraded with it: that of
--stylesheet, or else the one of the same name beside it. A file that cannot be
upgraded stays as it is, and so does the other file of the pair; the reason is
reported.

--diff writes a unified diff for "patch -p1" or "git apply".

Exit status:
  0  success
  1  with --check or --diff: a file is not in canonical form
  2  wrong usage, or a file that cannot be read, formatted or written)";

const std::map<std::string, EncodingChoice>& encodingChoices() {
    static const std::map<std::string, EncodingChoice> choices = [] {
        std::map<std::string, EncodingChoice> byName;
        for (const data::NamedEncoding& named : data::encodingNames) {
            byName.emplace(named.name, named.choice);
        }
        return byName;
    }();
    return choices;
}

const std::map<std::string, NameForm>& nameForms() {
    static const std::map<std::string, NameForm> forms = {
        {"keep", NameForm::Kept},
        {"long", NameForm::Long},
        {"short", NameForm::Short},
    };
    return forms;
}

constexpr const char* escapeFooter =
    R"(Each line is escaped as a text of its own: what it holds is shown in the document
exactly, whatever characters it has. The result is ASCII, so that it suits files
in any encoding. Files are read as UTF-8; without FILE, and for -, standard
input is read.

  for description   a value in a description, such as (pt=...)
  for model         the text of a paragraph in the object model

A control character other than a tab cannot be shown. It is an error, and so are
bytes that are not UTF-8; then nothing is written to standard output.

Exit status:
  0  success
  1  a line holds what cannot be shown
  2  wrong usage, or a file that cannot be read or written)";

const std::map<std::string, EscapeUse>& escapeUses() {
    static const std::map<std::string, EscapeUse> uses = {
        {"description", EscapeUse::Description},
        {"model", EscapeUse::Model},
    };
    return uses;
}

constexpr const char* tableFooter =
    R"(FILE is a file with delimiters (CSV), whose first row holds the names of the
columns, or a JSON array of objects, or JSON Lines; - is standard input. The
delimiter is a comma, a semicolon, a tab or a |, whichever the first rows show.
The file is in UTF-8, UTF-16 with a byte order mark, or Windows-1252. Unless
--output is given, the document is written next to it, with the extension rtf.

Columns are as wide as their contents ask for, numbers stand at the right, and
the heading is on every page. For other columns, name them in their order:

  --columns 'sku:12%,name:Article:auto,price:20%:right:money:2'

After the name of a field come its heading, its width (in percent of the text
area, as a length such as 3cm, or auto), its alignment (left, right, center or
justified), and filters: number:2, money:2, date:dd.MM.yyyy, upper, lower,
default:text. Quotation marks around a name or a heading let it hold : and , too; a
heading that is one word in small letters needs them.

--sort orders the rows: numbers and dates by their value, texts without regard to
case and accents, empty values last. It keeps all rows in memory. The rows of a
group stay together.

A row that cannot be read is an error, and nothing is written. With --keep-going
such rows are reported and left out.

Exit status:
  0  success
  1  the data or the stylesheet has errors
  2  wrong usage, or a file that cannot be read or written)";

constexpr const char* dataSchemaFooter =
    R"(The schema (JSON Schema, draft 7) says which names the template and its partials
ask for, which of them can be missing, and which kinds of values they take. It
goes to standard output unless --output is given. "quorvane render --data FILE
--schema FILE" validates data with it.

Exit status:
  0  success
  1  the template has errors
  2  wrong usage, or a file that cannot be read or written)";

const std::map<std::string, FailOn>& failingSeverities() {
    static const std::map<std::string, FailOn> severities = {
        {"error", FailOn::Error},
        {"warning", FailOn::Warning},
        {"never", FailOn::Never},
    };
    return severities;
}

/// What `render` can fail on: a run without a document is a failure.
const std::map<std::string, FailOn>& severitiesThatStopRendering() {
    static const std::map<std::string, FailOn> severities = {
        {"error", FailOn::Error},
        {"warning", FailOn::Warning},
    };
    return severities;
}

const std::map<std::string, ErrorForm>& errorForms() {
    static const std::map<std::string, ErrorForm> forms = {
        {"text", ErrorForm::Text},
        {"json", ErrorForm::Json},
    };
    return forms;
}

// The parser takes an argument in brackets for a list of several, and loses what comes after "--"
// after the first description. Begun with a byte that no argument can hold, an argument is a name
// like any other.
constexpr char nameMark = '\0';

std::string asName(const std::string& argument) {
    return nameMark + argument;
}

std::string asGiven(std::string argument) {
    std::erase(argument, nameMark);
    return argument;
}

/// The parser would use the next argument as the value of "--output=", and "=a.rtf" as that of
/// "-o=a.rtf".
void requireValueAfterSign(const std::string& argument) {
    const std::size_t sign = argument.find('=');
    if (argument.starts_with("--") && sign + 1 == argument.size()) {
        throw UsageError(argument + " needs a value");
    }
    if (argument.starts_with('-') && argument[1] != '-' && sign == 2) {
        const std::string option = argument.substr(0, sign);
        if (sign + 1 == argument.size()) {
            throw UsageError(argument + " needs a value");
        }
        throw UsageError("write " + option + " " + argument.substr(sign + 1) + " instead of " +
                         argument);
    }
}

/// The arguments as the parser takes them: the last one first.
std::vector<std::string> prepared(const std::vector<std::string>& arguments) {
    std::vector<std::string> result;
    bool onlyNamesFollow = false;
    for (const std::string& argument : arguments) {
        if (!onlyNamesFollow && argument == "--") {
            onlyNamesFollow = true;
        } else {
            if (!onlyNamesFollow) {
                requireValueAfterSign(argument);
            }
            const bool isName = onlyNamesFollow || argument.starts_with('[');
            result.push_back(isName ? asName(argument) : argument);
        }
    }
    std::reverse(result.begin(), result.end());
    return result;
}

CLI::callback_t storeIn(std::optional<std::string>& target) {
    return [&target](const CLI::results_t& results) {
        target = asGiven(results.front());
        return true;
    };
}

CLI::callback_t storeIn(std::string& target) {
    return [&target](const CLI::results_t& results) {
        target = asGiven(results.front());
        return true;
    };
}

CLI::callback_t storeIn(std::vector<std::string>& target) {
    return [&target](const CLI::results_t& results) {
        target.clear();
        std::transform(results.begin(), results.end(), std::back_inserter(target), asGiven);
        return true;
    };
}

CLI::callback_t storeIn(std::size_t& target) {
    return [&target](const CLI::results_t& results) {
        target = std::stoul(results.front());
        return true;
    };
}

CLI::callback_t storeIn(ErrorForm& target) {
    return [&target](const CLI::results_t& results) {
        target = errorForms().at(results.front());
        return true;
    };
}

CLI::callback_t storeIn(FailOn& target) {
    return [&target](const CLI::results_t& results) {
        target = failingSeverities().at(results.front());
        return true;
    };
}

CLI::callback_t storeIn(EncodingChoice& target) {
    return [&target](const CLI::results_t& results) {
        target = encodingChoices().at(results.front());
        return true;
    };
}

CLI::callback_t storeIn(ReportForm& target) {
    return [&target](const CLI::results_t& results) {
        target = reportForms().at(results.front());
        return true;
    };
}

void addStandardFlags(CLI::App& app) {
    app.set_help_flag("-h,--help", "Show this help and exit");
    app.set_version_flag("-V,--version", versionText, "Show the version and exit");
}

/// Refuses empty values: they cannot name a file or anything else.
void refuseEmptyValues(CLI::App& app) {
    for (CLI::Option* option : app.get_options()) {
        if (option->get_items_expected_max() > 0) {
            option->transform(CLI::Validator(
                [](std::string& value) {
                    return asGiven(value).empty() ? std::string("the value is empty")
                                                  : std::string();
                },
                ""));
        }
    }
}

/// What is wrong with a number of jobs; empty if it is one.
std::string wrongJobs(const std::string& value) {
    constexpr std::size_t maxJobs = 1024;
    const bool isShort = value.size() <= std::to_string(maxJobs).size();
    const bool isNumber = value.find_first_not_of("0123456789") == std::string::npos;
    return isShort && isNumber && std::stoul(value) <= maxJobs
               ? std::string()
               : asGiven(value) + " is not a number from 0 to " + std::to_string(maxJobs);
}

/// The number that digits are; nothing for any other text, and for one that is too large.
std::optional<std::size_t> numberOf(const std::string& digits) {
    std::size_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [read, failure] = std::from_chars(digits.data(), end, number);
    return failure == std::errc() && read == end ? std::optional(number) : std::nullopt;
}

/// The numbers of "1001-2000", "1001-" or "17"; nothing for any other text.
std::optional<RecordRange> recordRange(const std::string& text) {
    const std::size_t sign = text.find('-');
    const std::string last = sign == std::string::npos ? text : text.substr(sign + 1);
    const std::optional<std::size_t> first = numberOf(text.substr(0, sign));
    const std::optional<std::size_t> end = last.empty() ? RecordRange().last : numberOf(last);
    if (!first || !end || *first == 0 || *first > *end) {
        return std::nullopt;
    }
    return RecordRange{.first = *first, .last = *end};
}

/// What is wrong with the numbers of records; empty if they are a range.
std::string wrongRange(const std::string& value) {
    return recordRange(value) ? std::string()
                              : asGiven(value) +
                                    " is not a range of records; write 1001-2000, "
                                    "or 1001- for all from there on";
}

CLI::callback_t storeIn(RecordRange& target) {
    return [&target](const CLI::results_t& results) {
        target = *recordRange(results.front());
        return true;
    };
}

void addEncoding(CLI::App& app, EncodingChoice& target) {
    app.add_option("--encoding", storeIn(target), "The encoding of the files; auto by default")
        ->type_name("auto|utf-8|windows-1252")
        ->check(CLI::IsMember(encodingChoices()).description(""));
}

void addSchema(CLI::App& app, std::optional<std::string>& schema) {
    app.add_option("--schema", storeIn(schema), "Validate the data with this JSON Schema first")
        ->type_name("FILE")
        ->needs("--data");
}

void addData(CLI::App& app, std::optional<std::string>& data, std::optional<std::string>& locale) {
    app.add_option("--data", storeIn(data), "Fill the descriptions with this JSON file")
        ->type_name("FILE");
    app.add_option("--locale", storeIn(locale), "Write numbers as in de-DE, fr-FR, 1.234,56, ...")
        ->type_name("NAME")
        ->needs("--data");
}

void addRecordOptions(CLI::App& app, DataUse& use, RecordRange& records) {
    app.add_flag_callback(
           "--each", [&use] { use = std::max(use, DataUse::Each); },
           "Make a document of each record of the data")
        ->needs("--data");
    app.add_flag_callback(
           "--join", [&use] { use = DataUse::Join; },
           "Make one document of all records, a page for each")
        ->needs("--data");
    app.add_option("--records", storeIn(records), "Take only these records, such as 1001-2000")
        ->type_name("FIRST-LAST")
        ->check(CLI::Validator(wrongRange, ""));
}

void addAllowPictures(CLI::App& app, std::vector<std::string>& folders) {
    app.add_option("--allow-pictures", storeIn(folders),
                   "Let descriptions name pictures in this folder too")
        ->type_name("DIR")
        ->expected(1)
        ->take_all();
}

void addStdinFilename(CLI::App& app, std::optional<std::string>& target) {
    app.add_option("--stdin-filename", storeIn(target),
                   "Treat standard input as a file of this name")
        ->type_name("NAME");
}

void requireStandardInput(const std::optional<std::string>& name,
                          const std::vector<std::string>& files) {
    if (name && std::find(files.begin(), files.end(), standardStream) == files.end()) {
        throw UsageError("--stdin-filename names standard input, but no FILE is -");
    }
}

/// An option that takes identifiers, separated by commas, and can be given several times.
void addIdentifiersOption(CLI::App& app, const std::string& name,
                          std::vector<std::string>& identifiers, const std::string& help) {
    app.add_option(name, storeIn(identifiers), help)
        ->type_name("ID[,ID...]")
        ->expected(1)
        ->delimiter(',')
        ->take_all();
}

void addCheckOptions(CLI::App* check, CheckOptions& options) {
    check->footer(checkFooter);
    addStandardFlags(*check);
    check->add_option("FILE", storeIn(options.files), "Files and folders to check")
        ->type_name("")
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args();
    check
        ->add_option("-s,--stylesheet", storeIn(options.styleSheet),
                     "Look up styles in this .rtfss file; check it too")
        ->type_name("FILE");
    check
        ->add_option("--diagnostics", storeIn(options.form),
                     "Report as text, as JSON objects or as a SARIF log")
        ->type_name("text|json|sarif")
        ->check(CLI::IsMember(reportForms()).description(""));
    addEncoding(*check, options.encoding);
    addAllowPictures(*check, options.pictureFolders);
    addData(*check, options.data, options.locale);
    addSchema(*check, options.schema);
    check->add_flag("--fix", options.fixes, "Apply the fixes that are certain");
    check->add_flag("--diff", options.showsDiff, "Only show what --fix would change");
    addIdentifiersOption(*check, "--ignore", options.ignored, "Do not report these diagnostics");
    addIdentifiersOption(*check, "--enable", options.enabled,
                         "Also report these, which are off by default");
    check
        ->add_option("--fail-on", storeIn(options.failOn),
                     "Lowest severity for an exit status other than 0")
        ->type_name("error|warning|never")
        ->check(CLI::IsMember(failingSeverities()).description(""));
    check->add_flag("-q,--quiet", options.isQuiet, "Omit the summary at the end");
    check->add_flag("--list", options.lists, "List all diagnostics");
    check
        ->add_option("--explain", storeIn(options.explained),
                     "Explain this diagnostic, with an example")
        ->type_name("ID");
    addStdinFilename(*check, options.stdinName);
    refuseEmptyValues(*check);
}

CLI::callback_t storeIn(NameForm& target) {
    return [&target](const CLI::results_t& results) {
        target = nameForms().at(results.front());
        return true;
    };
}

void addFormatOptions(CLI::App* format, FormatOptions& options) {
    format->footer(formatFooter);
    addStandardFlags(*format);
    format->add_option("FILE", storeIn(options.files), "Files and folders to format")
        ->type_name("")
        ->required()
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args();
    format->add_option("--names", storeIn(options.names), "Write long or short names, or keep them")
        ->type_name("long|short|keep")
        ->check(CLI::IsMember(nameForms()).description(""));
    CLI::Option* const upgrade =
        format->add_flag("--upgrade", options.upgrade, "Write the extended language");
    format
        ->add_option("-s,--stylesheet", storeIn(options.styleSheet),
                     "With --upgrade, the stylesheet of the files")
        ->type_name("FILE")
        ->needs(upgrade);
    addEncoding(*format, options.encoding);
    format->add_flag("--check", options.check, "Only list the files that would change");
    format->add_flag("--diff", options.diff, "Only show what would change");
    addStdinFilename(*format, options.stdinName);
    refuseEmptyValues(*format);
}

CLI::callback_t storeIn(EscapeUse& target) {
    return [&target](const CLI::results_t& results) {
        target = escapeUses().at(results.front());
        return true;
    };
}

void addEscapeOptions(CLI::App* escape, EscapeOptions& options) {
    escape->footer(escapeFooter);
    addStandardFlags(*escape);
    escape->add_option("FILE", storeIn(options.files), "Files whose lines are escaped")
        ->type_name("")
        ->expected(0, CLI::detail::expected_max_vector_size)
        ->allow_extra_args();
    escape->add_option("--for", storeIn(options.use), "Where the texts go; description by default")
        ->type_name("description|model")
        ->check(CLI::IsMember(escapeUses()).description(""));
    refuseEmptyValues(*escape);
}

void addRenderOptions(CLI::App* render, RenderOptions& options) {
    render->footer(renderFooter);
    addStandardFlags(*render);
    render->add_option("DESCRIPTION", storeIn(options.descriptions), "Files to render")
        ->type_name("")
        ->required()
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args();
    render
        ->add_option("-s,--stylesheet", storeIn(options.styleSheet),
                     "Take the styles from this .rtfss file")
        ->type_name("FILE");
    addEncoding(*render, options.encoding);
    addAllowPictures(*render, options.pictureFolders);
    addData(*render, options.data, options.locale);
    addSchema(*render, options.schema);
    addRecordOptions(*render, options.dataUse, options.records);
    render
        ->add_option("--report", storeIn(options.report),
                     "Write what became of each record to this file")
        ->type_name("FILE");
    render->add_option("-o,--output", storeIn(options.output), "Write the document to this file")
        ->type_name("FILE");
    render
        ->add_option("--output-dir", storeIn(options.outputFolder),
                     "Write the documents into this folder")
        ->type_name("DIR")
        ->excludes("--output");
    render->add_flag("--mkdir", options.makesOutputFolder, "Create the folders of the documents");
    render
        ->add_option("-j,--jobs", storeIn(options.jobs),
                     "Render N descriptions at a time; 0 uses all cores")
        ->type_name("N")
        ->check(CLI::Validator(wrongJobs, ""));
    render->add_flag("--check", options.check,
                     "Repair unclosed rows; check keys, values and texts");
    render
        ->add_option("--fail-on", storeIn(options.failOn),
                     "Fail on errors only, or on warnings too")
        ->type_name("error|warning")
        ->check(CLI::IsMember(severitiesThatStopRendering()).description(""));
    render->add_flag("--keep-going", options.keepGoing, "Write what could be built despite errors");
    render
        ->add_option("--diagnostics", storeIn(options.diagnostics),
                     "Report errors as text or as JSON objects")
        ->type_name("text|json")
        ->check(CLI::IsMember(errorForms()).description(""));
    refuseEmptyValues(*render);
}

/// What is wrong with a delimiter; empty if it is one.
std::string wrongDelimiter(const std::string& value) {
    const std::string text = asGiven(value);
    return data::isDelimiter(text) ? std::string()
                                   : text + " is not a delimiter; write one character, or tab";
}

/// What is wrong with a number of rows; empty if it is one.
std::string wrongCount(const std::string& value) {
    return data::isRowCount(value) ? std::string() : asGiven(value) + " is not a number of rows";
}

/// The same where a document must have a row.
std::string wrongPartSize(const std::string& value) {
    return value.find_first_not_of('0') == std::string::npos
               ? asGiven(value) + " is not a number of rows from 1"
               : wrongCount(value);
}

CLI::callback_t storeIn(std::optional<std::size_t>& target) {
    return [&target](const CLI::results_t& results) {
        target = std::stoull(results.front());
        return true;
    };
}

void addTableForms(CLI::App* table, TableOptions& options) {
    table->add_flag_callback(
        "--as-description", [&options] { options.form = TableForm::Description; },
        "Write the description of the table instead, in the extended language");
    table
        ->add_flag_callback(
            "--as-stylesheet", [&options] { options.form = TableForm::StyleSheet; },
            "Write the stylesheet that tables have without --stylesheet")
        ->excludes("--as-description")
        ->excludes("FILE");
}

void addTableOptions(CLI::App* table, TableOptions& options) {
    table->footer(tableFooter);
    addStandardFlags(*table);
    const auto add = [&](const char* name, auto& target, const char* type, const char* help) {
        return table->add_option(name, storeIn(target), help)->type_name(type);
    };
    add("FILE", options.input, "", "The data");
    add("-o,--output", options.output, "FILE", "Write the document to this file");
    add("-s,--stylesheet", options.styleSheet, "FILE", "Take the styles from this .rtfss file");
    addEncoding(*table, options.encoding);
    add("--delimiter", options.delimiter, "CHARACTER",
        "What stands between the fields; tab for a tab")
        ->check(CLI::Validator(wrongDelimiter, ""));
    add("--columns", options.columns, "COLUMNS", "The columns in their order");
    add("--locale", options.locale, "NAME", "How filters write numbers, such as de-DE");
    add("--title", options.title, "TEXT", "A title above the heading");
    add("--page", options.page, "NAME", "The page, such as letter or a4-landscape; a4 by default");
    add("--stripe", options.stripe, "COLOR", "The color of every second row, or none");
    add("--border", options.border, "BORDER",
        "The border of all cells: hair, thin, normal or thick");
    add("--sort", options.sort, "FIELDS", "The order of the rows, such as price:desc,name");
    CLI::Option* const groupBy =
        add("--group-by", options.groupBy, "FIELD",
            "A heading above rows that follow each other and share this field");
    table->add_flag("--group-pages", options.groupPages, "Begin a page with each group")
        ->needs(groupBy);
    table
        ->add_option("--total", storeIn(options.totals),
                     "A row at the end with the sum of this column; can be repeated")
        ->type_name("FIELD")
        ->expected(1)
        ->take_all();
    add("--total-label", options.totalLabel, "TEXT", "What that row begins with; Total by default");
    add("--limit", options.limit, "N", "Stop after so many rows")
        ->check(CLI::Validator(wrongCount, ""));
    add("--split", options.split, "N",
        "Write documents of so many rows each, such as prices-001.rtf")
        ->check(CLI::Validator(wrongPartSize, ""));
    table->add_flag("--keep-going", options.keepGoing, "Leave out rows that have errors");
    addTableForms(table, options);
    refuseEmptyValues(*table);
}

void requireInput(const TableOptions& options) {
    if (options.input.empty() && options.form != TableForm::StyleSheet) {
        throw UsageError("FILE is required");
    }
}

void addDataSchemaOptions(CLI::App* dataSchema, DataSchemaOptions& options) {
    dataSchema->footer(dataSchemaFooter);
    addStandardFlags(*dataSchema);
    dataSchema
        ->add_option("DESCRIPTION", storeIn(options.description),
                     "The template; - is standard input")
        ->type_name("")
        ->required();
    dataSchema->add_option("-o,--output", storeIn(options.output), "Write the schema to this file")
        ->type_name("FILE");
    refuseEmptyValues(*dataSchema);
}

constexpr std::string_view commands[] = {"render", "check",       "format", "escape",
                                         "table",  "data-schema", "help"};

bool isCommand(std::string_view name) {
    return std::find(std::begin(commands), std::end(commands), name) != std::end(commands);
}

std::string unknownCommandText(const std::string& name) {
    const std::string guess = didYouMean(name, commands);
    return name + " is not a subcommand; " +
           (guess.empty() ? "use render, check, format, escape, table, data-schema or help"
                          : guess);
}

std::string unknownOptionText(const CLI::App& app, const std::string& argument) {
    const auto used = app.get_subcommands();
    std::vector<std::string> names;
    for (const CLI::Option* option : (used.empty() ? app : *used.front()).get_options()) {
        for (const std::string& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
    }
    const std::string name = argument.substr(0, argument.find('='));
    const std::string guess =
        didYouMean(name, std::vector<std::string_view>(names.begin(), names.end()));
    return name + " is not an option" + (guess.empty() ? "" : "; " + guess);
}

/// The arguments that "help" with what follows it stands for.
std::vector<std::string> helpRequest(const std::vector<std::string>& commandsAskedFor) {
    if (commandsAskedFor.empty()) {
        return {"--help"};
    }
    const std::string& first = commandsAskedFor.front();
    if (!isCommand(first)) {
        throw UsageError(unknownCommandText(first));
    }
    return {first, "--help"};
}

void addHelpOptions(CLI::App* help, std::vector<std::string>& commandsAskedFor) {
    addStandardFlags(*help);
    help->add_option("SUBCOMMAND", storeIn(commandsAskedFor), "The subcommand, such as render")
        ->type_name("");
}

/// What the subcommands store their arguments in.
struct Requests {
    RenderOptions render;
    CheckOptions check;
    FormatOptions format;
    EscapeOptions escape;
    TableOptions table;
    DataSchemaOptions dataSchema;
    std::vector<std::string> help;
};

/// Adds the subcommands with their options. Making options takes longer than rendering a small
/// document: where the first argument is a subcommand, it is the only one.
void addCommands(CLI::App& app, const std::vector<std::string>& arguments, Requests& requests) {
    const bool isKnown = !arguments.empty() && isCommand(arguments.front());
    const auto add = [&](const char* name, const char* about, auto addOptions, auto& target) {
        if (!isKnown || arguments.front() == name) {
            addOptions(app.add_subcommand(name, about), target);
        }
    };
    add("render", "Render descriptions as RTF documents.", addRenderOptions, requests.render);
    add("check", "Check descriptions, stylesheets and RTF files.", addCheckOptions, requests.check);
    add("format", "Format descriptions and stylesheets.", addFormatOptions, requests.format);
    add("escape", "Escape texts, so that they show as they are.", addEscapeOptions,
        requests.escape);
    add("table", "Make a table of a CSV or JSON file.", addTableOptions, requests.table);
    add("data-schema", "Write the JSON Schema of the data for a template.", addDataSchemaOptions,
        requests.dataSchema);
    add("help", "Show the help of a subcommand.", addHelpOptions, requests.help);
    if (!isKnown) {
        addStandardFlags(app);
        app.add_flag_callback(
            "--licenses", [] { throw CLI::CallForVersion(licensesText(), 0); },
            "Show all licenses and exit");
    }
}

void requireOneInput(const std::optional<std::string>& data,
                     const std::vector<std::string>& files) {
    if (data == standardStream &&
        std::find(files.begin(), files.end(), standardStream) != files.end()) {
        throw UsageError("standard input cannot be both the data and a file");
    }
}

/// Throws a `UsageError` for options that do not suit each other.
void requireUseOfData(const RenderOptions& options) {
    const bool isEach = options.dataUse != DataUse::Whole;
    const bool isJoined = options.dataUse == DataUse::Join;
    if (!isEach && (options.report || options.records != RecordRange())) {
        throw UsageError("--report and --records are for records; add --each or --join");
    }
    if (!isEach && options.makesOutputFolder && !options.outputFolder) {
        throw UsageError("--mkdir requires --output-dir");
    }
    if (isEach && options.descriptions.size() > 1) {
        throw UsageError(std::string(isJoined ? "--join" : "--each") + " takes one description");
    }
    if (isJoined && options.jobs != 1) {
        throw UsageError("--join takes one record after the other; leave --jobs out");
    }
    if (isJoined && options.output && options.output->find("{{") != std::string::npos) {
        throw UsageError("--join writes one document; --output takes no tags then");
    }
}

/// Throws a `UsageError` unless there are files to check, or something else to show.
void requireOneTask(const CheckOptions& options) {
    const int tasks =
        (options.files.empty() ? 0 : 1) + (options.explained ? 1 : 0) + (options.lists ? 1 : 0);
    if (tasks == 0) {
        throw UsageError("FILE is required");
    }
    if (tasks > 1) {
        throw UsageError("--list and --explain cannot be combined with each other or with a FILE");
    }
}

/// What is wrong with the arguments. The parser reports a missing argument first, but when there
/// is one that it does not know, that is the mistake.
std::string usageErrorText(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<std::string> unknown = app.remaining(true);
    const auto code = static_cast<CLI::ExitCodes>(error.get_exit_code());
    if (unknown.empty() ||
        (code != CLI::ExitCodes::RequiredError && code != CLI::ExitCodes::ExtrasError)) {
        return error.what();
    }
    const std::string& first = unknown.front();
    return first.starts_with('-') ? unknownOptionText(app, first) : unknownCommandText(first);
}

}  // namespace

std::variant<RenderOptions, CheckOptions, FormatOptions, EscapeOptions, TableOptions,
             DataSchemaOptions, Information>
parseCommandLine(const std::vector<std::string>& arguments) {
    CLI::App app("Render descriptions as documents in Rich Text Format (RTF).", "quorvane");
    app.require_subcommand(1);
    app.allow_windows_style_options(false);
    Requests requests;
    addCommands(app, arguments, requests);

    try {
        app.parse(prepared(arguments));
        const std::string command = app.get_subcommands().front()->get_name();
        if (command == "check") {
            requireOneTask(requests.check);
            requireStandardInput(requests.check.stdinName, requests.check.files);
            requireOneInput(requests.check.data, requests.check.files);
            if (requests.check.data && (requests.check.fixes || requests.check.showsDiff)) {
                throw UsageError("--data cannot be combined with --fix and --diff");
            }
            return requests.check;
        }
        if (command == "format") {
            requireStandardInput(requests.format.stdinName, requests.format.files);
            if (requests.format.styleSheet) {
                requireStyleSheetExtension(*requests.format.styleSheet, requests.format.files);
            }
            return requests.format;
        }
        if (command == "escape") {
            return requests.escape;
        }
        if (command == "table") {
            requireInput(requests.table);
            return requests.table;
        }
        if (command == "data-schema") {
            return requests.dataSchema;
        }
        if (command == "help") {
            return parseCommandLine(helpRequest(requests.help));
        }
        requireOneInput(requests.render.data, requests.render.descriptions);
        requireUseOfData(requests.render);
        return requests.render;
    } catch (const CLI::Success& request) {
        std::ostringstream text;
        app.exit(request, text);
        return Information{text.str()};
    } catch (const CLI::ParseError& error) {
        throw UsageError(asGiven(usageErrorText(app, error)));
    }
}

ErrorForm requestedErrorForm(const std::vector<std::string>& arguments) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool hasJsonNext = i + 1 < arguments.size() && arguments[i + 1] == "json";
        if (arguments[i] == "--") {
            break;
        }
        if (arguments[i] == "--diagnostics=json" ||
            (arguments[i] == "--diagnostics" && hasJsonNext)) {
            return ErrorForm::Json;
        }
    }
    return ErrorForm::Text;
}

}  // namespace quorvane::cli
