#include "cli/commandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <sstream>

#include "cli/UsageError.h"

namespace quorvane::cli {

namespace {

constexpr const char* versionText = "quorvane " QUORVANE_VERSION;

constexpr const char* footer =
    "Exit status:\n"
    "  0  all is well\n"
    "  1  a description or the stylesheet has errors\n"
    "  2  wrong usage, or a file that cannot be read or written\n";

const std::map<std::string, DiagnosticsForm> diagnosticsForms = {
    {"text", DiagnosticsForm::Text},
    {"json", DiagnosticsForm::Json},
};

/// The parser takes an argument in brackets for a list of several. With a byte that no argument can
/// have at its end it is one name like any other.
std::string withoutListMeaning(std::string argument) {
    return argument.starts_with('[') ? argument + '\0' : argument;
}

std::string asGiven(std::string argument) {
    if (argument.ends_with('\0')) {
        argument.pop_back();
    }
    return argument;
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

void addRenderCommand(CLI::App& app, RenderOptions& options) {
    CLI::App* render = app.add_subcommand("render", "Render descriptions as RTF documents.");
    render->footer(footer);
    render->set_help_flag("-h,--help", "Show this help and exit");
    render->set_version_flag("--version", versionText, "Show the version and exit");
    render
        ->add_option("DESCRIPTION", storeIn(options.descriptions),
                     "Description files (.rtfspec, Windows-1252); - is standard input")
        ->type_name("")
        ->required()
        ->expected(1, CLI::detail::expected_max_vector_size)
        ->allow_extra_args();
    render
        ->add_option("-s,--stylesheet", storeIn(options.styleSheet),
                     "Take the styles from this file (.rtfss)")
        ->type_name("FILE");
    CLI::Option* output =
        render
            ->add_option("-o,--output", storeIn(options.output),
                         "Write the document to this file; - is standard output. Without it the "
                         "document goes beside its description, under its name with the "
                         "extension rtf; the one from standard input goes to standard output")
            ->type_name("FILE");
    render
        ->add_option("--output-dir", storeIn(options.outputFolder),
                     "Write the documents into this folder, which must exist; the one from "
                     "standard input is named stdin.rtf")
        ->type_name("DIR")
        ->excludes(output);
    render->add_flag("--check", options.check,
                     "Repair unclosed rows, and check keys and values before building");
    render->add_flag("--keep-going", options.keepGoing,
                     "Write what could be built of a description that has errors");
    render
        ->add_option("--diagnostics", options.diagnostics,
                     "Tell errors on standard error as text (the default) or as one JSON object "
                     "a line")
        ->type_name("text|json")
        ->transform(CLI::Transformer(diagnosticsForms).description(""))
        ->check(CLI::IsMember(diagnosticsForms).description(""));
}

}  // namespace

std::variant<RenderOptions, Information> parseCommandLine(
    const std::vector<std::string>& arguments) {
    RenderOptions options;
    CLI::App app("Renders descriptions of documents as Rich Text Format.", "quorvane");
    app.require_subcommand(1);
    app.set_help_flag("-h,--help", "Show this help and exit");
    app.set_version_flag("--version", versionText, "Show the version and exit");
    app.allow_windows_style_options(false);
    addRenderCommand(app, options);

    std::vector<std::string> reversed;
    std::transform(arguments.rbegin(), arguments.rend(), std::back_inserter(reversed),
                   withoutListMeaning);
    try {
        app.parse(std::move(reversed));
        return options;
    } catch (const CLI::Success& request) {
        std::ostringstream text;
        app.exit(request, text);
        return Information{text.str()};
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
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
