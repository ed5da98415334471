#include "cli/checkSummary.h"

namespace quorvane::cli {

namespace {

std::string counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

void append(std::string& text, const std::string& part) {
    text += (text.empty() ? "" : ", ") + part;
}

}  // namespace

std::string checkSummary(const CheckCounts& counts) {
    std::string text;
    if (counts.fixed > 0) {
        append(text, std::to_string(counts.fixed) + " fixed");
    }
    if (counts.errors > 0) {
        append(text, counted(counts.errors, "error"));
    }
    if (counts.warnings > 0) {
        append(text, counted(counts.warnings, "warning"));
    }
    return text.empty() ? text : text + " in " + counted(counts.files, "file") + "\n";
}

}  // namespace quorvane::cli
