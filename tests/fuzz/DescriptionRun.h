#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/driver/CRtfDriver.h"
#include "tests/fuzz/documentChecks.h"
#include "tests/fuzz/plainAnalysis.h"
#include "tests/fuzz/require.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {

inline std::string errorText(const ErrorFacts& error) {
    return std::to_string(error.number) + " in line " + std::to_string(error.line) + ": " +
           error.description + " (" + error.source + ")\n";
}

/// A driver that analyzes descriptions in memory, and what it reported.
class DescriptionRun {
public:
    explicit DescriptionRun(bool erroneousInput) {
        driver_->setErroneousInput(erroneousInput);
        driver_->setNotifyErrorHandler([this](CRtfDriver&, const RtfError& error) { note(error); });
    }
    DescriptionRun(const DescriptionRun&) = delete;
    DescriptionRun& operator=(const DescriptionRun&) = delete;
    ~DescriptionRun() { driver_->setNotifyErrorHandler({}); }

    FakePlatform& platform() { return platform_; }
    CRtfDriver& driver() { return *driver_; }
    Ref<CRtfDoc> document() const { return driver_->RtfObject(); }

    /// What the last call reported.
    const std::string& events() const { return events_; }

    /// What an analysis of the text comes to: its errors and the document's text.
    std::string parsed(std::string_view text) {
        events_.clear();
        driver_->ParseFromMemmory(text);
        return events_ + renderedTwice(*document());
    }

    /// The same of a file with these bytes.
    std::string parsedFile(std::string_view bytes) {
        events_.clear();
        platform_.files["description.rtfspec"] = bytes;
        driver_->ParseFile("description.rtfspec");
        return events_ + renderedTwice(*document());
    }

    /// What the rules make of the stylesheet that was loaded last.
    const plain::StyleSheet& styles() const { return styles_; }

    /// Loads a stylesheet; returns the error that it gives, as an event shows it.
    std::string styleSheetError(std::string_view text) {
        events_.clear();
        styles_ = plain::StyleSheet(std::string(text));
        try {
            driver_->LoadStyleSheetFromMemmory(text);
        } catch (const RtfError& error) {
            note(error);
        }
        return events_;
    }

private:
    void note(const RtfError& error) { events_ += errorText(factsOf(error)); }

    FakePlatform platform_;
    Ref<CRtfDriver> driver_ = CRtfDriver::create(platform_);
    std::string events_;
    plain::StyleSheet styles_;
};

/// What the run made of the text, its errors and its document, is what the steps of an analysis
/// state about it. The document is rendered by now, or could not be.
inline void requirePlainAnalysis(DescriptionRun& run, std::string_view text) {
    const Ref<CRtfDoc> document = run.document();
    plain::Analysis analysis(std::string(text), run.driver().ErroneousInput(), *document,
                             run.styles());
    std::string errors;
    for (const ErrorFacts& error : analysis.errors) {
        errors += errorText(error);
    }
    requireEqual(run.events(), errors, "an analysis reports the expected errors");
    const bool isMade = analysis.document->refresh();
    require(isMade != document->Changed(), "a document can be rendered when the rules say so");
    if (isMade) {
        requireEqual(document->Contents(), analysis.document->contents,
                     "a description gives the expected document");
    }
}

/// Everything that is to hold of the analysis of a description.
inline void requireGoodAnalysis(DescriptionRun& run, std::string_view text, bool countsRows) {
    const std::string first = run.parsed(text);
    requirePlainAnalysis(run, text);
    if (run.document()->Changed()) {
        return;
    }
    if (countsRows) {
        requireBalancedRows(*run.document(), run.driver().Contents());
    }
    requireSameWhenCommitted(*run.document(), run.platform());
    requireEqual(run.parsed(text), first, "parsing twice gives the same errors and text");
}

}  // namespace quorvane
