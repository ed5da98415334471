#include "cli/FormatJob.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/diagnosticText.h"
#include "cli/process.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/formatting/formatStyleSheet.h"
#include "quorvane/formatting/languageToFormat.h"
#include "quorvane/support/codePage1252.h"

namespace quorvane::cli {

namespace {

std::string shownName(const std::string& file) {
    return file == standardStream ? "<stdin>" : file;
}

[[noreturn]] void refuse(const char* why) {
    raise(RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall), why));
}

/// The bytes in their canonical form.
std::string formatted(const std::string& file, std::string_view bytes, NameForm names) {
    const std::string text = utf8FromCodePage1252(bytes);
    const std::optional<CheckedLanguage> language = languageToFormat(text, file);
    if (language == CheckedLanguage::Description) {
        return codePage1252FromUtf8(formattedDescription(text, names));
    }
    if (language == CheckedLanguage::StyleSheet) {
        return codePage1252FromUtf8(formattedStyleSheet(text));
    }
    refuse(languageOf(bytes, file) == CheckedLanguage::Rtf
               ? "An RTF file has no canonical form"
               : "Neither a description nor a stylesheet");
}

}  // namespace

FormatJob::FormatJob(FormatOptions options, TextSink write, DiagnosticSink fail, Platform& platform)
    : options_(std::move(options)),
      write_(std::move(write)),
      fail_(std::move(fail)),
      platform_(platform) {}

ExitStatus FormatJob::run() {
    ExitStatus status = ExitStatus::Success;
    for (const std::string& file : options_.files) {
        try {
            status = std::max(status, format(file));
        } catch (const RtfError& error) {
            status = ExitStatus::Failure;
            fail_({DiagnosticKind::Raised, shownName(file), error});
        }
    }
    return status;
}

ExitStatus FormatJob::format(const std::string& file) {
    const bool isStream = file == standardStream;
    const std::string bytes = isStream ? readStandardInput() : platform_.readFile(file);
    const std::string canonical = formatted(file, bytes, options_.names);
    if (options_.check) {
        if (canonical == bytes) {
            return ExitStatus::Success;
        }
        write_(shownName(file) + "\n");
        return ExitStatus::ContentErrors;
    }
    if (isStream) {
        write_(canonical);
    } else if (canonical != bytes) {
        const std::unique_ptr<OutputFile> output = openReplacement(file);
        output->write(canonical);
        output->close();
    }
    return ExitStatus::Success;
}

ExitStatus format(const FormatOptions& options) {
    const auto tellFailure = [](const Diagnostic& failure) {
        writeToStandardError(diagnosticText(failure) + "\n");
    };
    try {
        const std::unique_ptr<OutputFile> output = openStandardOutput();
        const ExitStatus status =
            FormatJob(
                options, [&](const std::string& text) { output->write(text); }, tellFailure)
                .run();
        output->close();
        return status;
    } catch (const RtfError& error) {
        tellFailure({DiagnosticKind::Raised, "<stdout>", error});
        return ExitStatus::Failure;
    }
}

}  // namespace quorvane::cli
