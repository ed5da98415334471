#include "quorvane/diagnostics/engine/RepeatedDiagnostics.h"

namespace quorvane {

namespace {

constexpr std::size_t maxLines = 10;

std::string keyOf(const Diagnostic& diagnostic) {
    const char* const separator = "\n\n";
    return std::to_string(static_cast<int>(diagnostic.id)) + (diagnostic.isFixed ? "+" : "-") +
           diagnostic.message + separator + diagnostic.hint;
}

}  // namespace

RepeatedDiagnostics::Filed RepeatedDiagnostics::add(const Diagnostic& diagnostic) {
    const auto [known, isFirst] = numbers_.emplace(keyOf(diagnostic), causes_.size());
    if (isFirst) {
        causes_.emplace_back();
        return {known->second, true};
    }
    Cause& cause = causes_[known->second];
    ++cause.repetitions;
    const bool isOtherLine = cause.lines.empty() || cause.lines.back() != diagnostic.place.line;
    if (isOtherLine && cause.lines.size() <= maxLines) {
        cause.lines.push_back(diagnostic.place.line);
    }
    return {known->second, false};
}

std::string RepeatedDiagnostics::repetitionText(std::size_t cause) const {
    const auto& [repetitions, lines] = causes_[cause];
    if (repetitions == 0) {
        return {};
    }
    std::string text = "and " + std::to_string(repetitions) +
                       " more like this: " + (lines.size() == 1 ? "line " : "lines ") +
                       std::to_string(lines.front());
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (i == maxLines) {
            return text + ", \xE2\x80\xA6";
        }
        text += (i + 1 == lines.size() ? " and " : ", ") + std::to_string(lines[i]);
    }
    return text;
}

}  // namespace quorvane
