#include "cli/FormatJob.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/colors.h"
#include "cli/errorText.h"
#include "cli/fileFailure.h"
#include "cli/filesBelow.h"
#include "cli/process.h"
#include "cli/unifiedDiff.h"
#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/textFile.h"
#include "quorvane/formatting/formatStyleSheet.h"
#include "quorvane/formatting/languageToFormat.h"

namespace quorvane::cli {

namespace {

/// A failure to write to standard output, which is not a failure of a file that is formatted.
struct StandardOutputFailure {
    RtfError error;
};

[[noreturn]] void refuse(std::string why, std::int64_t line = 0) {
    RtfError error(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall), std::move(why));
    error.line = static_cast<int>(line);
    raise(std::move(error));
}

[[noreturn]] void refuse(const Diagnostic& diagnostic) {
    if (diagnostic.id == DiagnosticId::NotUtf8) {
        // The column is in the message.
        const std::string message = diagnostic.message.substr(0, diagnostic.message.size() - 1);
        refuse(message + "; " + diagnostic.hint, diagnostic.place.line);
    }
    refuse(diagnostic.message);
}

}  // namespace

FormatJob::FormatJob(FormatOptions options, TextSink write, ErrorSink fail, Platform& platform)
    : options_(std::move(options)),
      write_(std::move(write)),
      fail_(std::move(fail)),
      platform_(platform) {}

ExitStatus FormatJob::run() {
    ExitStatus status = ExitStatus::Success;
    for (const std::string& file : options_.files) {
        status = std::max(status, isFolder(file) ? formatFolder(file) : formatFile(file));
    }
    return status;
}

ExitStatus FormatJob::formatFolder(const std::string& folder) {
    constexpr std::string_view extensions[] = {".rtfspec", ".rtfss"};
    const FolderContents contents = filesBelow(folder, extensions);
    ExitStatus status = ExitStatus::Success;
    for (const ReportedError& failure : contents.failures) {
        status = ExitStatus::Failure;
        fail_(failure);
    }
    for (const std::string& file : contents.files) {
        status = std::max(status, formatFile(file));
    }
    return status;
}

ExitStatus FormatJob::formatFile(const std::string& file) {
    try {
        return format(file);
    } catch (const RtfError& error) {
        fail_(unreadableFile(shownName(file), file, error));
        return ExitStatus::Failure;
    }
}

ExitStatus FormatJob::format(const std::string& file) {
    const bool isStream = file == standardStream;
    const std::string bytes = isStream ? readStandardInput() : platform_.readFile(file);
    const TextEncoding encoding = encodingOf(bytes, options_.encoding);
    const std::string canonical = formatted(file, bytes, encoding);
    if (options_.check || options_.diff) {
        if (canonical == bytes) {
            return ExitStatus::Success;
        }
        write_(
            options_.diff ? unifiedDiff(shownName(file), bytes, canonical) : shownName(file) + "\n",
            encoding);
        return ExitStatus::ContentErrors;
    }
    if (isStream) {
        write_(canonical, encoding);
    } else if (canonical != bytes) {
        const std::unique_ptr<OutputFile> output = openReplacement(file, unfinishedFileWatch());
        output->write(canonical);
        output->close();
    }
    return ExitStatus::Success;
}

std::string FormatJob::shownName(const std::string& file) const {
    return file == standardStream ? options_.stdinName.value_or("<stdin>") : file;
}

/// The bytes in their canonical form.
std::string FormatJob::formatted(const std::string& file, const std::string& bytes,
                                 TextEncoding encoding) const {
    if (const std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        refuse(*unreadable);
    }
    const std::string text = decodedText(bytes, encoding);
    const bool hasName = file != standardStream || options_.stdinName;
    const std::optional<CheckedLanguage> language =
        hasName ? languageToFormat(text, shownName(file)) : languageOfStreamToFormat(text);
    if (language == CheckedLanguage::Description) {
        return encodedText(formattedDescription(text, options_.names), encoding);
    }
    if (language == CheckedLanguage::StyleSheet) {
        return encodedText(formattedStyleSheet(text), encoding);
    }
    refuse(languageOf(bytes, shownName(file)) == CheckedLanguage::Rtf
               ? "An RTF file has no canonical form"
               : "The file is neither a description nor a stylesheet");
}

ExitStatus format(const FormatOptions& options) {
    const auto fail = [](const ReportedError& failure) {
        writeToStandardError(errorText(failure) + "\n");
    };
    const bool showsOnTerminal = options.diff && standardOutputIsTerminal();
    try {
        const std::unique_ptr<OutputFile> output = openStandardOutput();
        const auto write = [&](const std::string& text, TextEncoding encoding) {
            try {
                output->write(showsOnTerminal ? diffForTerminal(text, encoding, wantedColors(true))
                                              : text);
            } catch (const RtfError& error) {
                throw StandardOutputFailure{error};
            }
        };
        const ExitStatus status = FormatJob(options, write, fail).run();
        output->close();
        return status;
    } catch (const StandardOutputFailure& failure) {
        fail(fileFailure("<stdout>", failure.error));
    } catch (const RtfError& error) {
        fail(fileFailure("<stdout>", error));
    }
    return ExitStatus::Failure;
}

}  // namespace quorvane::cli
