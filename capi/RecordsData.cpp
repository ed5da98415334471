#include "capi/RecordsData.h"

#include <memory>
#include <utility>

#include "capi/ContentError.h"
#include "data/recordsFile.h"
#include "data/recordsSource.h"
#include "data/whyUnreadable.h"
#include "quorvane/base/values/deepestCause.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane::capi {

namespace {

ErrorText unreadable(const std::string& path, const RtfError& error) {
    const std::error_code why = data::whyUnreadable(path);
    return {.status = QUORVANE_FILE_ERROR,
            .number = error.number,
            .identifier = "unreadable-file",
            .message = why ? why.message() : deepestCause(error).description,
            .file = path};
}

ErrorText wrongRecord(const std::string& name, const RtfError& error) {
    return {.status = QUORVANE_WRONG_CONTENT,
            .number = error.number,
            .identifier = "wrong-value",
            .message = error.description,
            .file = name,
            .line = error.line};
}

}  // namespace

RecordsData::RecordsData(Open open, std::string name, data::RecordsForm form)
    : open_(std::move(open)), name_(std::move(name)), form_(form) {}

void RecordsData::begin(const TableSetup& setup, bool isPageChosen, const OpenTable& open) {
    diagnostics_.clear();
    located([&] {
        table_.emplace(data::RecordsInput{open_(), name_, form_}, options_,
                       [this](const RtfError& error) { leaveOut(error); });
        table_->begin(setup, isPageChosen, [open](const TableSetup& whole, std::size_t) {
            return std::make_unique<data::TableDocumentTarget>(open(whole));
        });
    });
}

void RecordsData::finish() {
    located([&] { table_->finish(); });
    if (table_->areGroupsScattered()) {
        Diagnostic diagnostic;
        diagnostic.severity = Severity::Warning;
        diagnostic.message =
            "Some groups begin several times, since their rows do not follow each other. Sort the "
            "rows by \"" +
            *options_.groupBy + "\".";
        diagnostics_.add(name_, "scattered-groups", diagnostic);
    }
}

/// Runs what reads the data; its errors name it.
template <class Action>
void RecordsData::located(Action action) const {
    try {
        action();
    } catch (const data::UnreadableInput& error) {
        throw ContentError{unreadable(name_, error)};
    } catch (const data::RecordError& error) {
        throw ContentError{wrongRecord(name_, error)};
    }
}

void RecordsData::leaveOut(const RtfError& error) {
    Diagnostic diagnostic;
    diagnostic.id = DiagnosticId::WrongValue;
    diagnostic.message = error.description;
    diagnostic.place.line = error.line;
    diagnostics_.add(name_, {diagnostic});
}

}  // namespace quorvane::capi
