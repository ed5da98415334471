#include "cli/errorJson.h"

#include <nlohmann/json.hpp>

#include "cli/causeText.h"
#include "quorvane/driver/driverErrors.h"

namespace quorvane::cli {

namespace {

using Json = nlohmann::ordered_json;

Json textOrNull(const std::string& text) {
    return text.empty() ? Json(nullptr) : Json(text);
}

Json levelOrNull(std::int32_t number) {
    const auto level = errorLevel(number);
    return level ? Json(errorLevelName(*level)) : Json(nullptr);
}

std::string_view kindName(ErrorKind kind) {
    switch (kind) {
        case ErrorKind::Event:
            return "event";
        case ErrorKind::Check:
            return "check";
        default:
            return "raised";
    }
}

}  // namespace

std::string errorJson(const ReportedError& reported) {
    const RtfError& error = reported.error;
    Json object;
    object["file"] = textOrNull(reported.file);
    object["line"] = error.line > 0 ? Json(error.line) : Json(nullptr);
    if (reported.record > 0) {
        object["record"] = reported.record;
    }
    object["number"] = error.number;
    object["level"] = levelOrNull(error.number);
    object["source"] = textOrNull(error.source);
    object["message"] = error.description;
    object["kind"] = kindName(reported.kind);
    if (error.cause) {
        object["cause"] = causeText(error);
    }
    // File names need not be UTF-8, and a text of the library may hold a lone surrogate.
    constexpr auto replaceWhatIsNotUtf8 = Json::error_handler_t::replace;
    return object.dump(-1, ' ', false, replaceWhatIsNotUtf8);
}

}  // namespace quorvane::cli
