#include "cli/escapeCommand.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "cli/RenderOptions.h"
#include "cli/errorText.h"
#include "cli/fileFailure.h"
#include "cli/process.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/rtf/escape.h"

namespace quorvane::cli {

namespace {

void report(const ReportedError& failure) {
    writeToStandardError(errorText(failure) + "\n");
}

/// Escapes the lines of one text after the other.
class Escape {
public:
    explicit Escape(EscapeUse use) : use_(use) {}

    void addFile(const std::string& name, std::string_view text) {
        if (text.starts_with(utf8Mark)) {
            text.remove_prefix(utf8Mark.size());
        }
        if (!escaped_.empty() && escaped_.back() != '\n') {
            escaped_ += '\n';
        }
        for (int number = 1; !text.empty(); ++number) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            const std::size_t length =
                end > 0 && text[end - 1] == '\r' && end < text.size() ? end - 1 : end;
            addLine(name, number, text.substr(0, length));
            const std::size_t next = std::min(end + 1, text.size());
            escaped_ += text.substr(length, next - length);
            text.remove_prefix(next);
        }
    }

    bool hasErrors() const { return hasErrors_; }
    const std::string& text() const { return escaped_; }

private:
    void addLine(const std::string& name, int number, std::string_view line) {
        const std::optional<Unshowable> unshowable = findUnshowable(line);
        if (!unshowable) {
            escaped_ += use_ == EscapeUse::Model ? rtfText(line) : descriptionText(line);
            return;
        }
        hasErrors_ = true;
        const std::size_t column = characterCount(line.substr(0, unshowable->position)) + 1;
        writeToStandardError(name + ":" + std::to_string(number) + ":" + std::to_string(column) +
                             ": error: " + unshowable->message + ".\n");
    }

    EscapeUse use_;
    std::string escaped_;
    bool hasErrors_ = false;
};

}  // namespace

ExitStatus escape(const EscapeOptions& options) {
    Escape lines(options.use);
    const std::vector<std::string> standardInput{standardStream};
    for (const std::string& file : options.files.empty() ? standardInput : options.files) {
        const bool isStream = file == standardStream;
        const std::string name = isStream ? "<stdin>" : file;
        try {
            lines.addFile(name, isStream ? readStandardInput() : systemPlatform().readFile(file));
        } catch (const RtfError& error) {
            report(unreadableFile(name, file, error));
            return ExitStatus::Failure;
        }
    }
    if (lines.hasErrors()) {
        return ExitStatus::ContentErrors;
    }
    try {
        const std::unique_ptr<OutputFile> output = openStandardOutput();
        output->write(lines.text());
        output->close();
    } catch (const RtfError& error) {
        report(fileFailure("<stdout>", error));
        return ExitStatus::Failure;
    }
    return ExitStatus::Success;
}

}  // namespace quorvane::cli
