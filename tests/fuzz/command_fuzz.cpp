// Arguments and files of the command. The input's first line is the arguments, separated by blanks;
// then come the bytes of a.rtfspec, b.rtfspec and style.rtfss, with a form feed between them. The
// files stand in a folder of this process' own; no argument may lead out of it. What `render` makes
// of the descriptions is what the command's rules and a plain analysis make of them.

#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "cli/CheckJob.h"
#include "cli/DiagnosticExcerpt.h"
#include "cli/FormatJob.h"
#include "cli/RenderJob.h"
#include "cli/ReportedError.h"
#include "cli/TableJob.h"
#include "cli/UsageError.h"
#include "cli/commandLine.h"
#include "cli/dataSchemaCommand.h"
#include "cli/diagnosticJson.h"
#include "cli/diagnosticText.h"
#include "cli/errorJson.h"
#include "cli/errorText.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/plainRendering.h"
#include "tests/fuzz/require.h"

namespace {

using namespace quorvane;
namespace files = std::filesystem;

/// An empty folder to work in, gone when the process ends.
class WorkFolder {
public:
    WorkFolder() {
        const char* base = std::getenv("TMPDIR");
        std::string name = std::string(base ? base : "/tmp") + "/quorvane-fuzz-XXXXXX";
        require(::mkdtemp(name.data()) != nullptr, "there is a folder to work in");
        path_ = name;
        files::current_path(path_);
        // The command reads standard input and writes to standard output when asked to.
        ::dup2(::open("/dev/null", O_RDONLY | O_CLOEXEC), STDIN_FILENO);
        ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDOUT_FILENO);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    ~WorkFolder() {
        files::current_path("/");
        files::remove_all(path_);
    }

    void fill(const std::vector<std::string>& contents) const {
        for (const files::path& path : files::directory_iterator(path_)) {
            files::remove_all(path);
        }
        files::create_directory("out");
        const char* const names[] = {"a.rtfspec", "b.rtfspec", "style.rtfss"};
        for (std::size_t i = 0; i < contents.size(); ++i) {
            std::ofstream(names[i], std::ios::binary) << contents[i];
        }
    }

private:
    files::path path_;
};

bool leadsOut(const std::string& argument) {
    return argument.find("..") != std::string::npos || argument.find('~') != std::string::npos ||
           argument.starts_with('/') || argument.find("=/") != std::string::npos ||
           argument.find('\0') != std::string::npos ||
           (argument.starts_with("-") && argument.find('/') != std::string::npos);
}

std::vector<std::string> argumentsOf(const std::string& line) {
    std::vector<std::string> arguments;
    std::istringstream words(line);
    for (std::string word; words >> word;) {
        if (!leadsOut(word)) {
            arguments.push_back(word);
        }
    }
    return arguments;
}

std::string bytesOf(const files::path& name) {
    std::ostringstream bytes;
    bytes << std::ifstream(name, std::ios::binary).rdbuf();
    return bytes.str();
}

plain::Files filesThere() {
    plain::Files all;
    for (const files::directory_entry& entry : files::recursive_directory_iterator(".")) {
        if (entry.is_regular_file()) {
            all[entry.path().lexically_normal().generic_string()] = bytesOf(entry.path());
        }
    }
    return all;
}

void requireSameFiles(const plain::Files& actual, const plain::Files& expected,
                      const char* statement) {
    std::string names;
    std::string expectedNames;
    for (const auto& [name, bytes] : actual) {
        names += name + "\n";
    }
    for (const auto& [name, bytes] : expected) {
        expectedNames += name + "\n";
    }
    requireEqual(names, expectedNames, statement);
    for (const auto& [name, bytes] : expected) {
        requireEqual(actual.at(name), bytes, statement);
    }
}

/// Renders, and requires the outcome that the rules state for such a run.
int rendered(const cli::RenderOptions& options, const cli::ErrorSink& report) {
    const plain::Files inputs = filesThere();
    std::string lines;
    const auto run = [&] {
        const auto note = [&](const cli::ReportedError& diagnostic) {
            lines += plain::errorLine(diagnostic.file, factsOf(diagnostic.error));
            report(diagnostic);
        };
        const auto status = static_cast<int>(cli::RenderJob(options, {note}).run());
        require(status <= 2, "there are three exit statuses of rendering");
        require((status == 0) == lines.empty(), "a run fails when it reports something");
        return status;
    };
    if (!plain::Rendering::covers(options, inputs)) {
        return run();
    }
    const plain::Rendering expected(options, inputs);
    std::optional<cli::UsageError> refusal;
    int status = 0;
    try {
        status = run();
    } catch (const cli::UsageError& error) {
        refusal = error;
    }
    require(refusal.has_value() == expected.isRefused, "the command refuses what it cannot do");
    requireEqual(lines, expected.reported, "the command reports the errors of an analysis");
    require(status == expected.status, "the exit status says what was reported");
    requireSameFiles(filesThere(), expected.files, "the command writes the documents alone");
    if (refusal) {
        throw cli::UsageError(*refusal);
    }
    return status;
}

/// Checks, and requires that files change only when they are fixed, and only the first time. Adds
/// what is for standard output to the text.
int checked(const cli::CheckOptions& options, const cli::DiagnosticSink& find,
            const cli::ErrorSink& report, std::string& text) {
    const plain::Files before = filesThere();
    const auto write = [&text](std::string_view bytes, TextEncoding) { text += bytes; };
    const auto status =
        static_cast<int>(cli::CheckJob(options, find, report, systemPlatform(), write).run());
    const plain::Files after = filesThere();
    if (!options.fixes || options.showsDiff) {
        requireSameFiles(after, before, "a check changes no file");
        return status;
    }
    for (const auto& [name, bytes] : before) {
        require(!bytes.starts_with("{\\rtf") || after.at(name) == bytes,
                "an RTF file is not fixed");
    }
    const auto passOver = [](const auto&...) {};
    cli::CheckJob(options, passOver, passOver, systemPlatform(), passOver).run();
    requireSameFiles(filesThere(), after, "a fixed file needs no more fixes");
    return status;
}

/// Renders as the text form reports it, and requires that it comes to the same as another run did,
/// whose status and files these are.
void requireSameWhenLocated(const std::vector<std::string>& arguments, int expectedStatus,
                            const plain::Files& expectedFiles) {
    std::optional<cli::RenderOptions> options;
    try {
        const auto request = cli::parseCommandLine(arguments);
        if (const auto* render = std::get_if<cli::RenderOptions>(&request)) {
            options = *render;
        }
    } catch (const cli::UsageError&) {
        return;
    }
    if (!options) {
        return;
    }
    std::string reported;
    cli::RenderReceivers receivers;
    receivers.report = [&](const cli::ReportedError& diagnostic) {
        reported += cli::errorText(diagnostic) + "\n";
    };
    receivers.locate = [&](const std::string& file, const Diagnostic& diagnostic,
                           const cli::DiagnosticExcerpt& excerpt) {
        require(diagnostic.severity == Severity::Error || options->failOn == cli::FailOn::Warning,
                "what makes a rendering fail is an error");
        reported += cli::diagnosticText(file, diagnostic, excerpt, cli::Colors::Off);
    };
    int status = -1;
    try {
        status = static_cast<int>(cli::RenderJob(*options, receivers).run());
    } catch (const cli::UsageError&) {
    }
    require(status == expectedStatus, "the form of a report does not change the status");
    // The report of records has what is reported, in its form.
    const auto withoutReport = [&](plain::Files files) {
        if (options->report) {
            files.erase(
                std::filesystem::path(*options->report).lexically_normal().generic_string());
        }
        return files;
    };
    requireSameFiles(withoutReport(filesThere()), withoutReport(expectedFiles),
                     "the form of a report does not change the files");
    require(status < 0 || (status == 0) == reported.empty(),
            "a run fails when it has something to report");
}

/// What a run comes to: its status, what it reports, and the files that are there.
std::string outcome(const std::vector<std::string>& arguments) {
    std::string text;
    int status = -1;
    try {
        const auto request = cli::parseCommandLine(arguments);
        if (const auto* information = std::get_if<cli::Information>(&request)) {
            require(!information->text.empty(), "there is something to know");
            return information->text;
        }
        if (std::holds_alternative<cli::EscapeOptions>(request)) {
            return "escape, which writes to standard output alone";
        }
        const auto report = [&](const cli::ReportedError& diagnostic) {
            const std::string line = cli::errorText(diagnostic);
            const std::string json = cli::errorJson(diagnostic);
            require(line.find('\n') == std::string::npos, "a diagnostic is one line");
            require(json.find('\n') == std::string::npos, "a JSON diagnostic is one line");
            text += line + "\n" + json + "\n";
        };
        if (const auto* check = std::get_if<cli::CheckOptions>(&request)) {
            const auto find = [&text](const std::string& file, const Diagnostic& diagnostic,
                                      const cli::FileWindow& window) {
                const std::string line = cli::diagnosticJson(file, diagnostic);
                require(line.find('\n') == std::string::npos, "a diagnostic in JSON is one line");
                text +=
                    line + "\n" +
                    cli::diagnosticText(file, diagnostic, cli::excerptAt(diagnostic.place, window),
                                        cli::Colors::Off);
            };
            status = checked(*check, find, report, text);
        } else if (const auto* format = std::get_if<cli::FormatOptions>(&request)) {
            const auto write = [&text](const std::string& output, TextEncoding) { text += output; };
            status = static_cast<int>(cli::FormatJob(*format, write, report).run());
        } else if (const auto* table = std::get_if<cli::TableOptions>(&request)) {
            status = static_cast<int>(cli::TableJob(*table, report).run());
        } else if (const auto* schema = std::get_if<cli::DataSchemaOptions>(&request)) {
            status = static_cast<int>(cli::writeDataSchema(*schema));
        } else {
            status = rendered(std::get<cli::RenderOptions>(request), report);
        }
        require(status >= 0 && status <= 3, "there are four exit statuses");
    } catch (const cli::UsageError& error) {
        text += error.what();
    }
    for (const files::path& path : files::recursive_directory_iterator(".")) {
        require(path.extension() != ".tmp", "no unfinished file stays");
    }
    return text + std::to_string(status);
}

/// The status with which an outcome ends; -1 for one that did not begin.
int statusIn(const std::string& outcome) {
    return outcome.ends_with("-1") ? -1 : outcome.back() - '0';
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const WorkFolder folder;
    FuzzInput input(data, size);
    const std::string line = input.pieces('\n', 1)[0];
    const std::vector<std::string> contents = input.pieces('\f', 3);
    const std::vector<std::string> arguments = argumentsOf(line);
    folder.fill(contents);
    const std::string first = outcome(arguments);
    const plain::Files filesAfter = filesThere();
    folder.fill(contents);
    requireEqual(outcome(arguments), first, "the same run reports the same");
    requireSameFiles(filesThere(), filesAfter, "the same run writes the same");
    folder.fill(contents);
    requireSameWhenLocated(arguments, statusIn(first), filesAfter);
    for (const auto& [name, bytes] : filesAfter) {
        require(!name.ends_with(".rtf") || (bytes.starts_with('{') && bytes.ends_with('}')),
                "a document is whole or absent");
    }
    return 0;
}
