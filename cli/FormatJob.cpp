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
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/textFile.h"
#include "quorvane/formatting/formatStyleSheet.h"
#include "quorvane/formatting/languageToFormat.h"
#include "quorvane/formatting/upgradeDescription.h"
#include "quorvane/formatting/upgradeStyleSheet.h"

namespace quorvane::cli {

namespace {

/// A failure to write to standard output, which is not a failure of a file that is formatted.
struct StandardOutputFailure {
    RtfError error;
};

[[noreturn]] void refuse(std::string why, std::int64_t line = 0) {
    RtfError error(RunTimeError::InvalidProcedureCall, std::move(why));
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
    return std::max(status, upgradeStyleSheets());
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
    const std::string bytes = read(file);
    const TextEncoding encoding = encodingOf(bytes, options_.encoding);
    const std::string text = textOf(bytes, encoding);
    const CheckedLanguage language = languageOfText(file, text);
    return options_.upgrade
               ? upgrade(file, bytes, encoding, language)
               : deliver(file, bytes, encodedText(formatted(text, language), encoding), encoding);
}

/// Shows or writes what a file is to hold.
ExitStatus FormatJob::deliver(const std::string& file, const std::string& bytes,
                              const std::string& canonical, TextEncoding encoding) {
    if (options_.check || options_.diff) {
        if (canonical == bytes) {
            return ExitStatus::Success;
        }
        write_(
            options_.diff ? unifiedDiff(shownName(file), bytes, canonical) : shownName(file) + "\n",
            encoding);
        return ExitStatus::ContentErrors;
    }
    if (file == standardStream) {
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

std::string FormatJob::read(const std::string& file) const {
    return file == standardStream ? readStandardInput() : platform_.readFile(file);
}

std::string FormatJob::textOf(const std::string& bytes, TextEncoding encoding) const {
    if (const std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        refuse(*unreadable);
    }
    return decodedText(bytes, encoding);
}

CheckedLanguage FormatJob::languageOfText(const std::string& file, const std::string& text) const {
    const bool hasName = file != standardStream || options_.stdinName;
    const std::optional<CheckedLanguage> language =
        hasName ? languageToFormat(text, shownName(file)) : languageOfStreamToFormat(text);
    if (!language || *language == CheckedLanguage::Rtf) {
        refuse(languageOf(text, shownName(file)) == CheckedLanguage::Rtf
                   ? "An RTF file has no canonical form"
                   : "The file is neither a description nor a stylesheet");
    }
    return *language;
}

std::string FormatJob::formatted(const std::string& text, CheckedLanguage language) const {
    return language == CheckedLanguage::Description ? formattedDescription(text, options_.names)
                                                    : formattedStyleSheet(text);
}

/// A stylesheet waits for the descriptions.
ExitStatus FormatJob::upgrade(const std::string& file, const std::string& bytes,
                              TextEncoding encoding, CheckedLanguage language) {
    const bool isStyleSheet = language == CheckedLanguage::StyleSheet;
    if (isStyleSheet && file != standardStream && !next_) {
        styleSheets_.add(file);
        return ExitStatus::Success;
    }
    const std::string text = textOf(bytes, encoding);
    const Upgrade upgrade =
        isStyleSheet ? upgradedStyleSheet(text) : upgradedDescriptionIn(file, text);
    remark(shownName(file), upgrade.errors);
    if (!upgrade.errors.empty()) {
        return ExitStatus::Failure;
    }
    const TextEncoding utf8 = isUtf8(encoding) ? encoding : TextEncoding::Utf8;
    const ExitStatus status =
        deliver(file, bytes, encodedText(formatted(upgrade.text, language), utf8), utf8);
    const bool isWritten = !options_.check && !options_.diff && !isMarkedExtended(text);
    if (isWritten && next_ && !next_->description.empty()) {
        remark(file, {{0, "The stylesheet is upgraded with " + next_->description}});
    }
    remark(shownName(file), upgrade.notes);
    return status;
}

Upgrade FormatJob::upgradedDescriptionIn(const std::string& file, const std::string& text) {
    const std::optional<std::string> styleSheet = styleSheets_.addFor(file, shownName(file));
    if (styleSheet && !styleSheets_.canUpgrade(*styleSheet, [this](const std::string& name) {
            return rehearse(name);
        })) {
        refuse("Its stylesheet " + *styleSheet + " cannot be upgraded");
    }
    std::optional<std::string> styles;
    if (styleSheet) {
        const std::string bytes = platform_.readFile(*styleSheet);
        styles = decodedText(bytes, encodingOf(bytes, options_.encoding));
    }
    Upgrade upgrade = upgradedDescription(text, styles, options_.names);
    if (styleSheet && !upgrade.errors.empty()) {
        styleSheets_.holdBack(*styleSheet);
    }
    return upgrade;
}

/// True if the stylesheet can be upgraded. Reports why not.
bool FormatJob::rehearse(const std::string& styleSheet) {
    try {
        const std::string bytes = platform_.readFile(styleSheet);
        const Upgrade upgrade =
            upgradedStyleSheet(textOf(bytes, encodingOf(bytes, options_.encoding)));
        remark(styleSheet, upgrade.errors);
        return upgrade.errors.empty();
    } catch (const RtfError& error) {
        fail_(unreadableFile(styleSheet, styleSheet, error));
        return false;
    }
}

ExitStatus FormatJob::upgradeStyleSheets() {
    ExitStatus status = ExitStatus::Success;
    for (const StyleSheetUpgrades::Wanted& wanted : styleSheets_.toUpgrade()) {
        next_ = &wanted;
        status = std::max(status, formatFile(wanted.file));
    }
    next_ = nullptr;
    return status;
}

void FormatJob::remark(const std::string& file, const std::vector<UpgradeRemark>& remarks) {
    for (const UpgradeRemark& remark : remarks) {
        ReportedError reported = refusal(file, remark.message);
        reported.error.line = remark.line;
        fail_(reported);
    }
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
