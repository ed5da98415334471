#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "quorvane/support/GError.h"

namespace quorvane::com {

// An error that the library absorbs does not reach the host. The component writes it to the
// system's debug output, where a debugger or a viewer of that output shows it.

/// Writes one line, such as "Quorvane: CRtfTableCell.asMarkedField: A Marked Text Field Data can
/// only be String or Long (-2147219990)".
void writeToDebugOutput(const AbsorbedError& absorbed);

/// Writes what a published method absorbed, such as "Quorvane: CRtfDoc.Commit: C:\x\y.rtf: Path not
/// found (76)".
void writeToDebugOutput(std::string_view method, std::string_view file, const RtfError& error);

/// From now on, everything that the document absorbs is written. `Document` is a document or a
/// driver.
template <class Document>
void reportAbsorbedErrors(Document& document) {
    document.setAbsorbedErrorObserver(
        [](const AbsorbedError& absorbed) { writeToDebugOutput(absorbed); });
}

/// While it lives, what the document absorbs is written with the method and the file that it is
/// written to.
template <class Document>
class CommitReport {
public:
    CommitReport(Document& document, std::string_view method, std::string file)
        : document_(document), method_(method), file_(std::move(file)) {
        document_.setAbsorbedErrorObserver(
            [this](const AbsorbedError& absorbed) { report(absorbed); });
    }
    CommitReport(const CommitReport&) = delete;
    CommitReport& operator=(const CommitReport&) = delete;
    ~CommitReport() { reportAbsorbedErrors(document_); }

    const std::string& file() const noexcept { return file_; }

private:
    void report(const AbsorbedError& absorbed) {
        // `Commit` raises or absorbs this error once more.
        if (absorbed.procedureName != "saveStringToFile") {
            writeToDebugOutput(method_, file_, absorbed.error);
        }
    }

    Document& document_;
    std::string_view method_;
    std::string file_;
};

}  // namespace quorvane::com
