#include "cli/causeText.h"

namespace quorvane::cli {

std::string causeText(const RtfError& error) {
    return error.cause ? withCause(error.cause->description, *error.cause) : std::string();
}

std::string withCause(std::string text, const RtfError& error) {
    const std::string cause = causeText(error);
    if (!cause.empty()) {
        text += " (" + cause + ")";
    }
    return text;
}

}  // namespace quorvane::cli
