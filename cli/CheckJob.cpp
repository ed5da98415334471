#include "cli/CheckJob.h"

#include <filesystem>
#include <fstream>
#include <istream>
#include <memory>
#include <system_error>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/process.h"
#include "cli/styleSheetName.h"
#include "cli/utf8Path.h"
#include "quorvane/diagnostics/DescriptionCheck.h"
#include "quorvane/diagnostics/DiagnosticEngine.h"
#include "quorvane/diagnostics/RtfCheck.h"
#include "quorvane/diagnostics/StyleSheetCheck.h"
#include "quorvane/diagnostics/fileNameCheck.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/textFile.h"
#include "quorvane/support/codePage1252.h"

namespace quorvane::cli {

namespace {

constexpr std::size_t pieceLength = std::size_t{1024} * 1024;
// So many findings about an RTF file are held back to be told in the order of their places.
constexpr std::size_t mostFindingsHeld = 100'000;

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
    return [stream](std::int64_t offset, std::int64_t length) {
        std::string bytes(static_cast<std::size_t>(length), '\0');
        stream->clear();
        stream->seekg(offset);
        stream->read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        bytes.resize(static_cast<std::size_t>(stream->gcount()));
        return bytes;
    };
}

}  // namespace

CheckJob::CheckJob(CheckOptions options, FindingSink find, DiagnosticSink fail, Platform& platform)
    : options_(std::move(options)),
      find_(std::move(find)),
      fail_(std::move(fail)),
      platform_(platform) {}

ExitStatus CheckJob::run() {
    if (options_.styleSheet) {
        requireStyleSheetExtension(*options_.styleSheet, options_.files);
        checkStyles(*options_.styleSheet);
    }
    for (const std::string& file : options_.files) {
        if (file != options_.styleSheet) {
            checkFile(file);
        }
    }
    if (styles_ && checkedDescriptions_) {
        tellAll(*options_.styleSheet, findUnusedStyles(*styles_),
                codePage1252FromUtf8(styles_->text()));
    }
    return hasFailed_     ? ExitStatus::Failure
           : hasErrors_   ? ExitStatus::ContentErrors
           : hasWarnings_ ? ExitStatus::Warnings
                          : ExitStatus::Success;
}

void CheckJob::checkStyles(const std::string& file) {
    try {
        const std::string bytes = platform_.readFile(file);
        if (const std::optional<quorvane::Diagnostic> binary = findNotATextFile(bytes)) {
            tell(file, *binary, windowOf({}));
            return;
        }
        styles_.emplace(utf8FromCodePage1252(bytes));
        tellAll(file, checkStyleSheet(styles_->text()), bytes);
        if (!openingOfDescription(styles_->text()).empty()) {
            styles_.reset();
        }
    } catch (const RtfError& error) {
        hasFailed_ = true;
        fail_({DiagnosticKind::Raised, file, error});
    }
}

void CheckJob::checkFile(const std::string& file) {
    try {
        if (file == standardStream) {
            checkText(file, readStandardInput());
            return;
        }
        // The file of an RTF document may be larger than the memory. A file that is something else
        // is read by the platform, which also tells why one cannot be read; so is a pipe, which
        // can be read only once. Whether a stylesheet would be loaded shows when all of it is read.
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
        checkText(file, platform_.readFile(file));
    } catch (const RtfError& error) {
        hasFailed_ = true;
        fail_({DiagnosticKind::Raised, file, error});
    }
}

void CheckJob::checkText(const std::string& file, std::string_view bytes) {
    if (const std::optional<quorvane::Diagnostic> binary = findNotATextFile(bytes)) {
        tell(file, *binary, windowOf({}));
        return;
    }
    const CheckedLanguage language = languageOf(bytes, file);
    tellAll(file, findNameMismatch(bytes, language, file), bytes);
    switch (language) {
        case CheckedLanguage::Rtf:
            tellAll(file, checkRtf(bytes), bytes);
            break;
        case CheckedLanguage::StyleSheet:
            tellAll(file, checkStyleSheet(utf8FromCodePage1252(bytes)), bytes);
            break;
        case CheckedLanguage::Description:
            checkedDescriptions_ = true;
            tellAll(file,
                    checkDescription(utf8FromCodePage1252(bytes), styles_ ? &*styles_ : nullptr),
                    bytes);
            break;
    }
}

void CheckJob::checkRtfFile(const std::string& file, std::istream& stream,
                            const std::string& beginning) {
    const FileWindow window = windowOfFile(file);
    std::vector<quorvane::Diagnostic> held;
    const auto tellHeld = [&] {
        sortByPlace(held);
        for (const quorvane::Diagnostic& finding : held) {
            tell(file, finding, window);
        }
        held.clear();
    };
    RtfCheck check([&](quorvane::Diagnostic finding) {
        held.push_back(std::move(finding));
        if (held.size() == mostFindingsHeld) {
            tellHeld();
        }
    });
    tellAll(file, findNameMismatch(beginning, CheckedLanguage::Rtf, file), beginning);
    check.feed(beginning);
    for (std::string piece = readPiece(stream); !piece.empty(); piece = readPiece(stream)) {
        check.feed(piece);
    }
    if (stream.bad()) {
        raise(RunTimeError::DeviceIoError);
    }
    check.finish();
    tellHeld();
}

void CheckJob::tell(const std::string& file, const quorvane::Diagnostic& finding,
                    const FileWindow& window) {
    (finding.severity == Severity::Error ? hasErrors_ : hasWarnings_) = true;
    find_(file, finding, window);
}

void CheckJob::tellAll(const std::string& file, const std::vector<quorvane::Diagnostic>& findings,
                       std::string_view bytes) {
    const FileWindow window = windowOf(bytes);
    for (const quorvane::Diagnostic& finding : findings) {
        tell(file, finding, window);
    }
}

}  // namespace quorvane::cli
