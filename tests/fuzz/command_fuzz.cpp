// Arguments and files of the command. The input's first line is the arguments, separated by blanks;
// then come the bytes of a.rtfspec, b.rtfspec and style.rtfss, with a form feed between them. The
// files stand in a folder of this process' own; no argument may lead out of it. What the command
// makes of a.rtfspec alone is what a plain analysis makes of it.

#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "cli/CheckJob.h"
#include "cli/Diagnostic.h"
#include "cli/FindingExcerpt.h"
#include "cli/FormatJob.h"
#include "cli/RenderJob.h"
#include "cli/UsageError.h"
#include "cli/commandLine.h"
#include "cli/diagnosticJson.h"
#include "cli/diagnosticText.h"
#include "cli/findingJson.h"
#include "cli/findingText.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/support/codePage1252.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/documentChecks.h"
#include "tests/fuzz/plainAnalysis.h"
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
        // The command reads standard input and writes to standard output when told to.
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

std::string bytesOf(const char* name) {
    std::ostringstream bytes;
    bytes << std::ifstream(name, std::ios::binary).rdbuf();
    return bytes.str();
}

/// A run that renders a.rtfspec to where it goes by itself tells the errors of its analysis, in
/// their order, and writes its document when there are none or it is to keep going.
void requirePlainRun(const cli::RenderOptions& options, const std::vector<std::string>& contents,
                     const std::vector<RtfError>& told, int status) {
    const bool isPlain = options.descriptions == std::vector<std::string>{"a.rtfspec"} &&
                         options.styleSheet.value_or("style.rtfss") == "style.rtfss" &&
                         !options.output && !options.outputFolder;
    if (!isPlain) {
        return;
    }
    const Ref<CRtfDoc> styles = CRtfDoc::create();
    std::string expected;
    if (options.styleSheet &&
        errorOfCall(
            [&] { styles->LoadStyleSheetFromMemmory(utf8FromCodePage1252(contents[2])); }) != 0) {
        expected += "style.rtfss isn't a valid stylesheet.\n";
    }
    const bool isStyled = options.styleSheet && expected.empty();
    plain::Analysis analysis(utf8FromCodePage1252(contents[0]), options.check, *styles);
    for (const ToldError& error : analysis.errors) {
        expected += error.description + "\n";
    }
    // A document in which nothing was ever done has no text.
    const bool hasText = isStyled || analysis.document->changed;
    std::string page;
    const bool isToBeWritten = expected.empty() || options.keepGoing;
    const int errorOfDocument =
        isToBeWritten ? errorOfCall([&] { page = analysis.document->render(); }) : 0;
    std::string descriptions;
    for (std::size_t i = 0; i + (errorOfDocument != 0 ? 1 : 0) < told.size(); ++i) {
        descriptions += told[i].description + "\n";
    }
    requireEqual(descriptions, expected, "the command tells the errors of an analysis");
    require(status == (errorOfDocument != 0 ? 2
                       : expected.empty()   ? 0
                                            : 1),
            "the exit status tells what there was");
    if (isToBeWritten && errorOfDocument == 0) {
        const std::string written = bytesOf("a.rtf");
        require(hasText ? written.ends_with(codePage1252FromUtf8(page)) : written == "{}",
                "the command writes the document of an analysis");
    } else {
        require(!files::exists("a.rtf"), "the command writes no document with errors");
    }
}

/// What a run comes to: its status, what it tells, and the files that are there.
std::string outcome(const std::vector<std::string>& arguments,
                    const std::vector<std::string>& contents) {
    std::string text;
    int status = -1;
    std::vector<RtfError> told;
    try {
        const auto request = cli::parseCommandLine(arguments);
        if (const auto* information = std::get_if<cli::Information>(&request)) {
            require(!information->text.empty(), "there is something to know");
            return information->text;
        }
        const auto tell = [&](const cli::Diagnostic& diagnostic) {
            told.push_back(diagnostic.error);
            const std::string line = cli::diagnosticText(diagnostic);
            const std::string json = cli::diagnosticJson(diagnostic);
            require(line.find('\n') == std::string::npos, "a diagnostic is one line");
            require(json.find('\n') == std::string::npos, "a JSON diagnostic is one line");
            text += line + "\n" + json + "\n";
        };
        if (const auto* check = std::get_if<cli::CheckOptions>(&request)) {
            const auto find = [&text](const std::string& file, const Diagnostic& finding,
                                      const cli::FileWindow& window) {
                const std::string line = cli::findingJson(file, finding);
                require(line.find('\n') == std::string::npos, "a JSON finding is one line");
                text += line + "\n" +
                        cli::findingText(file, finding, cli::excerptAt(finding.place, window),
                                         cli::Colors::Off);
            };
            status = static_cast<int>(cli::CheckJob(*check, find, tell).run());
        } else if (const auto* format = std::get_if<cli::FormatOptions>(&request)) {
            const auto write = [&text](const std::string& output) { text += output; };
            status = static_cast<int>(cli::FormatJob(*format, write, tell).run());
        } else {
            const auto& options = std::get<cli::RenderOptions>(request);
            status = static_cast<int>(cli::RenderJob(options, tell).run());
            require(status <= 2, "there are three exit statuses of rendering");
            require((status == 0) == told.empty(), "a run fails when it has something to tell");
            requirePlainRun(options, contents, told, status);
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const WorkFolder folder;
    FuzzInput input(data, size);
    const std::string line = input.pieces('\n', 1)[0];
    const std::vector<std::string> contents = input.pieces('\f', 3);
    const std::vector<std::string> arguments = argumentsOf(line);
    folder.fill(contents);
    const std::string first = outcome(arguments, contents);
    const std::string document = bytesOf("a.rtf");
    folder.fill(contents);
    requireEqual(outcome(arguments, contents), first, "the same run tells the same");
    requireEqual(bytesOf("a.rtf"), document, "the same run writes the same");
    require(document.empty() || (document.starts_with('{') && document.ends_with('}')),
            "a document is whole or absent");
    return 0;
}
