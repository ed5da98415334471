#include "com/document/documentErrors.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace quorvane::com {

namespace {

constexpr const char* documentSource = "Quorvane.Document";
// Where the numbers begin that an interface may choose.
constexpr std::int32_t firstNumber = static_cast<std::int32_t>(0x80040200U);

struct Numbered {
    std::string_view identifier;
    std::int32_t number;
};

constexpr Numbered numbers[] = {
    {"wrong-call", firstNumber + 1},      {"wrong-value", firstNumber + 2},
    {"undefined-style", firstNumber + 3}, {"unreadable-file", firstNumber + 4},
    {"unwritable-file", firstNumber + 5}, {"wrong-document", firstNumber + 6},
};
constexpr std::int32_t refusedText = firstNumber + 7;
constexpr std::int32_t anyOther = firstNumber;

std::int32_t numberOf(const Error& error) {
    if (!error.diagnostics().empty()) {
        return refusedText;
    }
    const auto* const found = std::find_if(
        std::begin(numbers), std::end(numbers),
        [&error](const Numbered& each) { return each.identifier == error.identifier(); });
    return found == std::end(numbers) ? anyOther : found->number;
}

/// What could be done about the error that stopped a description.
std::string hintOf(const Error& error) {
    const auto first =
        std::find_if(error.diagnostics().begin(), error.diagnostics().end(),
                     [](const auto& each) { return each.severity == Severity::Error; });
    return first == error.diagnostics().end() || first->hint.empty() ? std::string()
                                                                     : " " + first->hint;
}

}  // namespace

RtfError documentError(const Error& error) {
    return {numberOf(error), error.what() + hintOf(error), documentSource};
}

void refuseValue(std::string message) {
    throw Error({.message = std::move(message), .identifier = "wrong-value"});
}

void refuseIndex(std::string message) {
    throw Error({.message = std::move(message), .identifier = "wrong-call"});
}

}  // namespace quorvane::com
