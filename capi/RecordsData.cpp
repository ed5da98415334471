#include "capi/RecordsData.h"

#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "capi/ContentError.h"
#include "data/OptionError.h"
#include "data/recordsFile.h"
#include "data/recordsSource.h"
#include "data/refuse.h"
#include "data/whyUnreadable.h"
#include "quorvane/base/platform/utf8Path.h"
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

RecordsData::RecordsData(std::string path, data::RecordsForm form)
    : open_([path] { return data::openRecordsFile(path); }),
      name_(path),
      form_(form),
      path_(std::move(path)) {}

bool RecordsData::isFromFile(const std::string& path) const {
    const std::filesystem::path file = pathFromUtf8(path);
    std::error_code failure;
    // A device is written to, not replaced.
    return !path_.empty() && std::filesystem::is_regular_file(file, failure) &&
           std::filesystem::equivalent(file, pathFromUtf8(path_), failure);
}

void RecordsData::begin(const TableSetup& setup, bool isPageChosen, const OpenTable& open) {
    diagnostics_.clear();
    located([&] {
        auto table = std::make_unique<data::RecordsTable>(
            data::RecordsInput{open_(), name_, form_}, options_,
            [this](const RtfError& error) { leaveOut(error); });
        table->begin(setup, isPageChosen, [open](const TableSetup& whole, std::size_t) {
            return std::make_unique<data::TableDocumentTarget>(open(whole));
        });
        table_ = std::move(table);
    });
}

void RecordsData::finish() {
    // The file is closed, and sorted rows take no memory, also while the handle is kept.
    const std::unique_ptr<data::RecordsTable> table = std::move(table_);
    located([&] { table->finish(); });
    if (table->areGroupsScattered()) {
        warnOfScatteredGroups();
    }
}

void RecordsData::warnOfScatteredGroups() {
    Diagnostic diagnostic;
    diagnostic.severity = Severity::Warning;
    diagnostic.message =
        "Some groups begin several times, since their rows do not follow each other. Sort the rows "
        "by \"" +
        *options_.groupBy + "\".";
    diagnostics_.add(name_, "scattered-groups", diagnostic);
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
    } catch (const data::NoColumnForTotal& error) {
        data::refuse("The table has no column \"" + error.column + "\" for a total.");
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
