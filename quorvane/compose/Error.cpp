#include "quorvane/compose/Error.h"

#include <utility>

namespace quorvane {

namespace {

std::string wholeMessage(const ErrorDetails& details) {
    std::string text = details.file;
    if (details.line > 0) {
        text += (text.empty() ? "line " : ":") + std::to_string(details.line);
    }
    if (details.line > 0 && details.column > 0) {
        text += ":" + std::to_string(details.column);
    }
    return text + (text.empty() ? "" : ": ") + details.message;
}

}  // namespace

Error::Error(ErrorDetails details)
    : std::runtime_error(wholeMessage(details)),
      details_(std::make_shared<const ErrorDetails>(std::move(details))) {}

Error::~Error() = default;

}  // namespace quorvane
