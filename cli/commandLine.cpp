#include "cli/commandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <sstream>

#include "cli/UsageError.h"
#include "cli/licenses.h"
#include "quorvane/diagnostics/nearestWord.h"

namespace quorvane::cli {

namespace {

constexpr const char* versionText = "quorvane " QUORVANE_VERSION;

constexpr const char* renderFooter =
    R"(A description (.rtfspec) is a text file in Windows-1252; - is standard input.

Without --output and --output-dir a document goes beside its description, under
its name with the extension rtf, and that of standard input to standard output,
which --output names as -. In a folder the document of standard input is named
stdin.rtf. Of a description that has errors nothing is written, unless with
--keep-going. A document appears whole or not at all.

Errors are told on standard error, one a line.

Exit status:
  0  all is well
  1  a description or the stylesheet has errors
  2  wrong usage, or a file that cannot be read or written)";

constexpr const char* checkFooter =
    R"(A file is a description, a stylesheet or an RTF file by its content, and where
that does not tell, by its extension; - is standard input. Nothing is written
but what was found, on standard output:

  letter.rtfspec:3:5: error: crimson isn't a recognized color. [wrong-color]
      (rb=crimson)
          ^~~~~~~
      hint: did you mean dark-red?

The name in brackets is what --explain takes. On a terminal the text is
coloured, unless the environment has a variable NO_COLOR that is not empty.

Exit status:
  0  nothing was found
  1  there are errors
  2  wrong usage, or a file that cannot be read
  3  there are warnings and no errors)";

const std::map<std::string, FindingsForm>& findingsForms() {
    static const std::map<std::string, FindingsForm> forms = {
        {"text", FindingsForm::Text},
        {"json", FindingsForm::Json},
        {"sarif", FindingsForm::Sarif},
    };
    return forms;
}

constexpr const char* formatFooter =
    R"(A file is a description or a stylesheet by its content, and where that does not
tell, by its extension; - is standard input, whose canonical form goes to
standard output. A file that is in its form is not touched, nor is one that is
neither a description nor a stylesheet: that is an error. The form means the
same: it renders to the same document. Errors may be told in other words, as
they repeat lines of the description.

Exit status:
  0  all is well
  1  with --check: there are files that are not in their canonical form
  2  wrong usage, or a file that cannot be read, formatted or written)";

const std::map<std::string, NameForm>& nameForms() {
    static const std::map<std::string, NameForm> forms = {
        {"keep", NameForm::Kept},
        {"long", NameForm::Long},
        {"short", NameForm::Short},
    };
    return forms;
}

const std::map<std::string, DiagnosticsForm>& diagnosticsForms() {
    static const std::map<std::string, DiagnosticsForm> forms = {
        {"text", DiagnosticsForm::Text},
        {"json", DiagnosticsForm::Json},
    };
    return forms;
}

// The parser takes an argument in brackets for a list of several, and loses what comes after "--"
// behind the first description. Begun with a byte that no argument can hold, an argument is a name
// like any other.
constexpr char nameMark = '\0';

std::string asName(const std::string& argument) {
    return nameMark + argument;
}

std::string asGiven(std::string argument) {
    std::erase(argument, nameMark);
    return argument;
}

/// The arguments as the parser takes them: the last one first.
std::vector<std::string> prepared(const std::vector<std::string>& arguments) {
    std::vector<std::string> result;
    bool onlyNamesFollow = false;
    for (const std::string& argument : arguments) {
        if (!onlyNamesFollow && argument == "--") {
            onlyNamesFollow = true;
        } else {
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

CLI::callback_t storeIn(std::vector<std::string>& target) {
    return [&target](const CLI::results_t& results) {
        target.clear();
        std::transform(results.begin(), results.end(), std::back_inserter(target), asGiven);
        return true;
    };
}

CLI::callback_t storeIn(DiagnosticsForm& target) {
    return [&target](const CLI::results_t& results) {
        target = diagnosticsForms().at(results.front());
        return true;
    };
}

CLI::callback_t storeIn(FindingsForm& target) {
    return [&target](const CLI::results_t& results) {
        target = findingsForms().at(results.front());
        return true;
    };
}

CLI::App* addCheckCommand(CLI::App& app, CheckOptions& options) {
    CLI::App* check =
        app.add_subcommand("check", "Tell what is wrong with descriptions, stylesheets and RTF.");
    check->footer(checkFooter);
    check->set_help_flag("-h,--help", "Show this help and exit");
    check->set_version_flag("--version", versionText, "Show the version and exit");
    check->add_option("FILE", storeIn(options.files), "Files to check")
        ->type_name("")
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args();
    check
        ->add_option("-s,--stylesheet", storeIn(options.styleSheet),
                     "Look the styles of descriptions up in this .rtfss file, and check it too")
        ->type_name("FILE");
    check
        ->add_option("--diagnostics", storeIn(options.form),
                     "Tell findings as text, as JSON objects or as a SARIF log")
        ->type_name("text|json|sarif")
        ->check(CLI::IsMember(findingsForms()).description(""));
    check->add_option("--explain", storeIn(options.explained), "Explain a diagnostic")
        ->type_name("IDENTIFIER")
        ->excludes("FILE");
    return check;
}

CLI::callback_t storeIn(NameForm& target) {
    return [&target](const CLI::results_t& results) {
        target = nameForms().at(results.front());
        return true;
    };
}

CLI::App* addFormatCommand(CLI::App& app, FormatOptions& options) {
    CLI::App* format =
        app.add_subcommand("format", "Put descriptions and stylesheets into their canonical form.");
    format->footer(formatFooter);
    format->set_help_flag("-h,--help", "Show this help and exit");
    format->set_version_flag("--version", versionText, "Show the version and exit");
    format->add_option("FILE", storeIn(options.files), "Files to format")
        ->type_name("")
        ->required()
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args();
    format
        ->add_option("--names", storeIn(options.names),
                     "Write the long or the short names of a description, or keep them")
        ->type_name("long|short|keep")
        ->check(CLI::IsMember(nameForms()).description(""));
    format->add_flag("--check", options.check,
                     "Change nothing; name the files that are not in their form");
    return format;
}

void addRenderCommand(CLI::App& app, RenderOptions& options) {
    CLI::App* render = app.add_subcommand("render", "Render descriptions as RTF documents.");
    render->footer(renderFooter);
    render->set_help_flag("-h,--help", "Show this help and exit");
    render->set_version_flag("--version", versionText, "Show the version and exit");
    render->add_option("DESCRIPTION", storeIn(options.descriptions), "Files to render")
        ->type_name("")
        ->required()
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args();
    render
        ->add_option("-s,--stylesheet", storeIn(options.styleSheet),
                     "Take the styles from this .rtfss file")
        ->type_name("FILE");
    render->add_option("-o,--output", storeIn(options.output), "Write the document to this file")
        ->type_name("FILE");
    render
        ->add_option("--output-dir", storeIn(options.outputFolder),
                     "Write the documents into this folder")
        ->type_name("DIR")
        ->excludes("--output");
    render->add_flag("--check", options.check, "Repair unclosed rows; check keys and values");
    render->add_flag("--keep-going", options.keepGoing,
                     "Write what could be built in spite of errors");
    render
        ->add_option("--diagnostics", storeIn(options.diagnostics),
                     "Tell errors as text or as JSON objects")
        ->type_name("text|json")
        ->check(CLI::IsMember(diagnosticsForms()).description(""));
}

/// What is wrong with the arguments. The parser complains of what is missing first; where something
/// is there that it does not know, that is the mistake.
std::string usageErrorText(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<std::string> unknown = app.remaining(true);
    if (unknown.empty() || error.get_name() != "RequiredError") {
        return error.what();
    }
    const std::string& first = unknown.front();
    if (first.starts_with('-') || app.got_subcommand("render")) {
        return "The following argument was not expected: " + first;
    }
    constexpr std::string_view commands[] = {"render", "check", "format"};
    const std::string guess = didYouMean(first, commands);
    return first + " is not a subcommand; " +
           (guess.empty() ? "render, check and format are" : guess);
}

}  // namespace

std::variant<RenderOptions, CheckOptions, FormatOptions, Information> parseCommandLine(
    const std::vector<std::string>& arguments) {
    RenderOptions options;
    CheckOptions checkOptions;
    FormatOptions formatOptions;
    CLI::App app("Renders descriptions of documents as Rich Text Format.", "quorvane");
    app.require_subcommand(1);
    app.set_help_flag("-h,--help", "Show this help and exit");
    app.set_version_flag("--version", versionText, "Show the version and exit");
    app.add_flag_callback(
        "--licenses", [] { throw CLI::CallForVersion(licensesText(), 0); },
        "Show the licenses of Quorvane and of what it contains, and exit");
    app.allow_windows_style_options(false);
    addRenderCommand(app, options);
    const CLI::App* check = addCheckCommand(app, checkOptions);
    const CLI::App* format = addFormatCommand(app, formatOptions);

    try {
        app.parse(prepared(arguments));
        if (check->parsed()) {
            if (checkOptions.files.empty() && !checkOptions.explained) {
                throw UsageError("FILE is required");
            }
            return checkOptions;
        }
        if (format->parsed()) {
            return formatOptions;
        }
        return options;
    } catch (const CLI::Success& request) {
        std::ostringstream text;
        app.exit(request, text);
        return Information{text.str()};
    } catch (const CLI::ParseError& error) {
        throw UsageError(asGiven(usageErrorText(app, error)));
    }
}

DiagnosticsForm requestedDiagnosticsForm(const std::vector<std::string>& arguments) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool hasJsonNext = i + 1 < arguments.size() && arguments[i + 1] == "json";
        if (arguments[i] == "--") {
            break;
        }
        if (arguments[i] == "--diagnostics=json" ||
            (arguments[i] == "--diagnostics" && hasJsonNext)) {
            return DiagnosticsForm::Json;
        }
    }
    return DiagnosticsForm::Text;
}

}  // namespace quorvane::cli
