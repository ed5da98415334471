#include "cli/CheckJob.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <istream>
#include <iterator>
#include <memory>
#include <system_error>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/SchemaFile.h"
#include "cli/TemplateFiles.h"
#include "cli/fileFailure.h"
#include "cli/filesBelow.h"
#include "cli/process.h"
#include "cli/ruleNamed.h"
#include "cli/styleSheetName.h"
#include "cli/unifiedDiff.h"
#include "data/Template.h"
#include "data/TemplateFilling.h"
#include "data/partialsBeside.h"
#include "data/templateCheck.h"
#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/withoutIgnored.h"
#include "quorvane/diagnostics/fileNameCheck.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/diagnostics/textFile.h"
#include "quorvane/driver/picturesBeside.h"

namespace quorvane::cli {

namespace {

constexpr std::size_t pieceLength = std::size_t{1024} * 1024;
// How many diagnostics about an RTF file are held back to be reported in the order of their places.
constexpr std::size_t maxDiagnosticsHeld = 100'000;

/// The next bytes of a stream; empty at its end.
std::string readPiece(std::istream& stream) {
    std::string piece(pieceLength, '\0');
    stream.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    piece.resize(static_cast<std::size_t>(stream.gcount()));
    return piece;
}

/// The window of a file on the disk, which is opened once more for it.
FileWindow windowOfFile(const std::string& file) {
    const auto stream = std::make_shared<std::ifstream>(pathFromUtf8(file), std::ios::binary);
    return {[stream](std::int64_t offset, std::int64_t length) {
        std::string bytes(static_cast<std::size_t>(length), '\0');
        stream->clear();
        stream->seekg(offset);
        stream->read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        bytes.resize(static_cast<std::size_t>(stream->gcount()));
        return bytes;
    }};
}

std::set<DiagnosticId> idsOf(std::string_view option, const std::vector<std::string>& identifiers) {
    std::set<DiagnosticId> ids;
    for (const std::string& identifier : identifiers) {
        ids.insert(ruleNamed(option, identifier).id);
    }
    return ids;
}

bool isSameFile(const std::string& a, const std::string& b) {
    std::error_code failure;
    return std::filesystem::equivalent(pathFromUtf8(a), pathFromUtf8(b), failure);
}

}  // namespace

CheckJob::CheckJob(CheckOptions options, DiagnosticSink find, ErrorSink fail, Platform& platform,
                   BytesSink write)
    : options_(std::move(options)),
      ignored_(idsOf("--ignore", options_.ignored)),
      enabled_(idsOf("--enable", options_.enabled)),
      find_(std::move(find)),
      fail_(std::move(fail)),
      platform_(platform),
      write_(std::move(write)) {}

ExitStatus CheckJob::run() {
    if (options_.styleSheet) {
        requireStyleSheetExtension(*options_.styleSheet, options_.files);
        checkStyles(*options_.styleSheet);
    }
    if (!readData()) {
        return hasFailed_                         ? ExitStatus::Failure
               : options_.failOn == FailOn::Never ? ExitStatus::Success
                                                  : ExitStatus::ContentErrors;
    }
    for (const std::string& file : options_.files) {
        if (isFolder(file)) {
            checkFolder(file);
        } else if (!options_.styleSheet || !isSameFile(file, *options_.styleSheet)) {
            checkFile(file);
        }
    }
    findUnused();
    const bool isStrict = options_.failOn == FailOn::Warning;
    return hasFailed_                                               ? ExitStatus::Failure
           : counts_.errors > 0 && options_.failOn != FailOn::Never ? ExitStatus::ContentErrors
           : counts_.warnings > 0 && isStrict                       ? ExitStatus::Warnings
                                                                    : ExitStatus::Success;
}

/// Reads the data for templates, if there is any; false where that is not possible.
bool CheckJob::readData() {
    if (!options_.data) {
        return true;
    }
    std::optional<SchemaFile> schema;
    try {
        if (options_.schema) {
            schema = readSchema(*options_.schema, platform_);
        }
    } catch (const RtfError& error) {
        fail(unreadableFile(*options_.schema, *options_.schema, error));
        return false;
    }
    if (schema && !schema->schema) {
        reportAll(schema->shownName, schema->diagnostics,
                  windowOf(schema->bytes, TextEncoding::Utf8));
        return false;
    }
    try {
        data_ = readTemplateData(*options_.data, options_.locale, platform_);
    } catch (const RtfError& error) {
        fail(unreadableFile(shownName(*options_.data), *options_.data, error));
        return false;
    }
    if (data_->data && schema) {
        validate(*data_, *schema->schema);
    }
    reportAll(data_->shownName, data_->diagnostics, windowOf(data_->bytes, TextEncoding::Utf8));
    return data_->data.has_value();
}

void CheckJob::checkStyles(const std::string& file) {
    try {
        const std::string given = platform_.readFile(file);
        const TextEncoding encoding = encodingOf(given, options_.encoding);
        const auto check = [&](std::string_view bytes) {
            if (std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
                return std::vector{*std::move(unreadable)};
            }
            const std::string text = decodedText(std::string(bytes), encoding);
            return reported(checkStyleSheet(text, encoding), text, CheckedLanguage::StyleSheet);
        };
        std::optional<std::string> bytes = reportText(file, given, encoding, false, check);
        if (!bytes) {
            return;
        }
        styles_.emplace(decodedText(*std::move(bytes), encoding), encoding);
        if (!openingOfDescription(styles_->text()).empty()) {
            styles_.reset();
        }
    } catch (const RtfError& error) {
        fail(unreadableFile(file, file, error));
    }
}

void CheckJob::findUnused() {
    if (!styles_ || !checkedDescriptions_ || !isReported(DiagnosticId::UnusedStyle)) {
        return;
    }
    const std::string bytes = encodedText(styles_->text(), styles_->encoding());
    reportAll(*options_.styleSheet,
              reported(findUnusedStyles(*styles_), styles_->text(), CheckedLanguage::StyleSheet),
              windowOf(bytes, styles_->encoding()));
}

void CheckJob::checkFolder(const std::string& folder) {
    constexpr std::string_view extensions[] = {".rtfspec", ".rtfss", ".rtf"};
    const FolderContents contents = filesBelow(folder, extensions);
    for (const ReportedError& failure : contents.failures) {
        fail(failure);
    }
    for (const std::string& file : contents.files) {
        if (!options_.styleSheet || !isSameFile(file, *options_.styleSheet)) {
            checkFile(file);
        }
    }
}

void CheckJob::checkFile(const std::string& file) {
    try {
        if (file == standardStream) {
            checkText(options_.stdinName.value_or(file), readStandardInput(), true);
            return;
        }
        // The file of an RTF document may be larger than the memory. A file that is something else
        // is read by the platform, which also reports why one cannot be read; so is a pipe, which
        // can be read only once. A stylesheet must be read whole to see whether it can be loaded.
        const std::filesystem::path path = pathFromUtf8(file);
        std::error_code failure;
        if (std::filesystem::is_regular_file(path, failure)) {
            std::ifstream stream(path, std::ios::binary);
            const std::string beginning = readPiece(stream);
            const bool isRead = stream.is_open() && !stream.bad();
            if (isRead && !findNotATextFile(beginning) &&
                languageOf(beginning, file) == CheckedLanguage::Rtf && !isStyleSheetName(file)) {
                checkRtfFile(file, stream, beginning);
                return;
            }
        }
        checkText(file, platform_.readFile(file), false);
    } catch (const RtfError& error) {
        fail(unreadableFile(shownName(file), file, error));
    }
}

void CheckJob::checkText(const std::string& file, std::string_view bytes, bool isStream) {
    const CheckedLanguage language = languageOf(bytes, file);
    const TextEncoding encoding = language == CheckedLanguage::Rtf
                                      ? TextEncoding::Windows1252
                                      : encodingOf(bytes, options_.encoding);
    reportText(file, bytes, encoding, isStream, [&](std::string_view text) {
        return diagnosticsOf(file, text, language, encoding);
    });
    reportPartials();
}

PictureSource CheckJob::picturesOf(const std::string& file) const {
    return picturesBeside(file, systemPlatform(), options_.pictureFolders);
}

void CheckJob::reportPartials() {
    for (const PartialDiagnostic& each : std::exchange(partialDiagnostics_, {})) {
        if (isReported(each.diagnostic.id)) {
            report(each.file, each.diagnostic, windowOf(each.bytes, each.encoding));
        }
    }
}

/// The diagnostics about a template itself; those about its partials are kept.
std::vector<Diagnostic> CheckJob::templateDiagnosticsOf(const std::string& file,
                                                        const std::string& text,
                                                        TextEncoding encoding) {
    const PictureSource pictures = picturesOf(file);
    std::vector<data::TemplateError> errors;
    const data::Template source =
        data::compileTemplate(text, encoding, data::partialsBeside(file, platform_), errors);
    KnownStyles* const styles = styles_ ? &*styles_ : nullptr;
    std::vector<Diagnostic> diagnostics;
    if (errors.empty() && data_) {
        data::TemplateFilling filling(source, data_->data->locale);
        const std::vector<SourceLine>& lines = filling.fill(data_->data->record, errors);
        // Data that makes too much leaves no lines.
        if (errors.empty() || !lines.empty()) {
            diagnostics = data::checkFilled(source, {lines, errors.empty()}, styles, pictures);
        }
    } else if (errors.empty()) {
        diagnostics = data::checkUnfilled(source, styles, pictures);
    }
    partialDiagnostics_.clear();
    for (auto& [index, diagnostic] : data::templateDiagnostics(source, errors)) {
        if (index == 0) {
            diagnostics.push_back(std::move(diagnostic));
        } else {
            const TemplateFiles all(source, file, file);
            partialDiagnostics_.push_back(
                {all.nameOf(index), std::move(diagnostic),
                 encodedText(source.sources[index].text, source.sources[index].encoding),
                 source.sources[index].encoding});
        }
    }
    sortByPlace(diagnostics);
    return diagnostics;
}

std::vector<Diagnostic> CheckJob::diagnosticsOf(const std::string& file, std::string_view bytes,
                                                CheckedLanguage language, TextEncoding encoding) {
    if (std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        return {*std::move(unreadable)};
    }
    std::vector<Diagnostic> all = findNameMismatch(bytes, language, file, encoding);
    std::vector<Diagnostic> diagnostics;
    std::string text;
    switch (language) {
        case CheckedLanguage::Rtf:
            diagnostics = checkRtf(bytes);
            break;
        case CheckedLanguage::StyleSheet:
            text = decodedText(std::string(bytes), encoding);
            diagnostics = checkStyleSheet(text, encoding);
            break;
        case CheckedLanguage::Description:
            checkedDescriptions_ = true;
            text = decodedText(std::string(bytes), encoding);
            diagnostics = data_ || data::looksLikeTemplate(text)
                              ? templateDiagnosticsOf(file, text, encoding)
                              : checkDescription(text, styles_ ? &*styles_ : nullptr, encoding,
                                                 picturesOf(file));
            break;
    }
    std::move(diagnostics.begin(), diagnostics.end(), std::back_inserter(all));
    return reported(std::move(all), text, language);
}

bool CheckJob::isReported(DiagnosticId id) const {
    return !ignored_.contains(id) && (!isOffByDefault(id) || enabled_.contains(id));
}

/// The diagnostics without those that are to be ignored.
std::vector<Diagnostic> CheckJob::reported(std::vector<Diagnostic> diagnostics,
                                           std::string_view text, CheckedLanguage language) {
    std::erase_if(diagnostics,
                  [this](const Diagnostic& diagnostic) { return !isReported(diagnostic.id); });
    return language == CheckedLanguage::Rtf
               ? diagnostics
               : withoutIgnored(std::move(diagnostics), text, language);
}

/// Reports what the check finds in a text, and fixes the file if --fix is given. Returns the bytes
/// of the text after its fixes, or no value for a file that is not a text.
std::optional<std::string> CheckJob::reportText(const std::string& file, std::string_view bytes,
                                                TextEncoding encoding, bool isStream,
                                                const TextCheck& check) {
    ++counts_.files;
    const FileWindow window = windowOf(bytes, encoding);
    if (const std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        if (isReported(unreadable->id)) {
            // No part of what is not a text can be shown.
            report(file, *unreadable,
                   unreadable->id == DiagnosticId::NotATextFile ? windowOf({}) : window);
        }
        if (isStream && options_.fixes && !options_.showsDiff) {
            write_(bytes, encoding);
        }
        return std::nullopt;
    }
    if (!options_.fixes && !options_.showsDiff) {
        reportAll(file, check(bytes), window);
        return std::string(bytes);
    }
    FixedText fixed = fixText(bytes, check, encoding);
    if (fixed.wasRefused) {
        fail_(refusal(shownName(file), "Not fixed: the fixes would cause more errors"));
    }
    if (options_.showsDiff) {
        reportAll(file, fixed.rounds.empty() ? fixed.remaining : check(bytes), window);
        write_(unifiedDiff(file == standardStream ? "stdin" : file, bytes, fixed.bytes), encoding);
    } else if (isStream || writeFixed(file, bytes, fixed)) {
        for (const FixedText::Round& round : fixed.rounds) {
            reportAll(file, round.fixed, windowOf(round.bytes, encoding));
        }
        reportAll(file, fixed.remaining, windowOf(fixed.bytes, encoding));
    } else {
        reportAll(file, check(bytes), window);
        fixed.bytes = bytes;
    }
    if (isStream && !options_.showsDiff) {
        write_(fixed.bytes, encoding);
    }
    return fixed.bytes;
}

/// Replaces the file with the fixed text; returns false when that fails.
bool CheckJob::writeFixed(const std::string& file, std::string_view before,
                          const FixedText& fixed) {
    if (fixed.bytes == before) {
        return true;
    }
    std::error_code failure;
    if (!std::filesystem::is_regular_file(pathFromUtf8(file), failure)) {
        fail(refusal(file, "Not fixed: this is not a regular file"));
        return false;
    }
    try {
        const std::unique_ptr<OutputFile> output = openReplacement(file, unfinishedFileWatch());
        output->write(fixed.bytes);
        output->close();
        return true;
    } catch (const RtfError& error) {
        fail(fileFailure(file, error));
        return false;
    }
}

void CheckJob::checkRtfFile(const std::string& file, std::istream& stream,
                            const std::string& beginning) {
    ++counts_.files;
    const FileWindow window = windowOfFile(file);
    std::vector<Diagnostic> held;
    const auto reportHeld = [&] {
        sortByPlace(held);
        for (const Diagnostic& diagnostic : held) {
            report(file, diagnostic, window);
        }
        held.clear();
    };
    RtfCheck check([&](Diagnostic diagnostic) {
        if (isReported(diagnostic.id)) {
            held.push_back(std::move(diagnostic));
        }
        if (held.size() == maxDiagnosticsHeld) {
            reportHeld();
        }
    });
    reportAll(
        file,
        reported(findNameMismatch(beginning, CheckedLanguage::Rtf, file), {}, CheckedLanguage::Rtf),
        windowOf(beginning));
    check.feed(beginning);
    for (std::string piece = readPiece(stream); !piece.empty(); piece = readPiece(stream)) {
        check.feed(piece);
    }
    if (stream.bad()) {
        raise(RunTimeError::DeviceIoError);
    }
    check.finish();
    reportHeld();
}

std::string CheckJob::shownName(const std::string& file) const {
    return file == standardStream ? options_.stdinName.value_or("<stdin>") : file;
}

void CheckJob::fail(const ReportedError& failure) {
    hasFailed_ = true;
    fail_(failure);
}

void CheckJob::report(const std::string& file, const Diagnostic& diagnostic,
                      const FileWindow& window) {
    ++(diagnostic.isFixed                       ? counts_.fixed
       : diagnostic.severity == Severity::Error ? counts_.errors
                                                : counts_.warnings);
    find_(file, diagnostic, window);
}

void CheckJob::reportAll(const std::string& file, const std::vector<Diagnostic>& diagnostics,
                         const FileWindow& window) {
    for (const Diagnostic& diagnostic : diagnostics) {
        report(file, diagnostic, window);
    }
}

}  // namespace quorvane::cli
