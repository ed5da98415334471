#include "cli/RecordsReport.h"

#include <nlohmann/json.hpp>
#include <variant>

#include "cli/diagnosticJson.h"
#include "cli/errorJson.h"

namespace quorvane::cli {

namespace {

using Json = nlohmann::ordered_json;

/// The object that reports an event to a program; see `check` and `render`.
struct EventJson {
    std::string operator()(const ReportedError& error) const { return errorJson(error); }
    std::string operator()(const LocatedDiagnostic& located) const {
        return diagnosticJson(located.file, located.diagnostic);
    }
    std::string operator()(const StyleSheetRefusal& refusal) const {
        return errorJson({ErrorKind::Raised, {}, refusal.error});
    }
    std::string operator()(const RenderNote& note) const {
        return Json({{"severity", "note"}, {"message", note.text}}).dump();
    }
};

}  // namespace

void RecordsReport::add(const RecordResult& result) {
    constexpr std::size_t enough = std::size_t{64} * 1024;
    Json object;
    object["record"] = result.number;
    object["line"] = result.line > 0 ? Json(result.line) : Json(nullptr);
    object["status"] = result.isWritten ? "written" : "failed";
    object["file"] = result.file.empty() ? Json(nullptr) : Json(result.file);
    if (!result.events.empty()) {
        Json& diagnostics = object["diagnostics"] = Json::array();
        for (const auto& event : result.events) {
            diagnostics.push_back(Json::parse(std::visit(EventJson(), event)));
        }
    }
    text_ += object.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
    if (text_.size() >= enough) {
        write();
    }
}

void RecordsReport::close() {
    write();
    file_->close();
}

void RecordsReport::write() {
    file_->write(text_);
    text_.clear();
}

}  // namespace quorvane::cli
