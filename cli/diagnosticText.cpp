#include "cli/diagnosticText.h"

#include "cli/oneLine.h"
#include "cli/shortened.h"
#include "cli/terminalColumns.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"

namespace quorvane::cli {

namespace {

constexpr std::string_view bold = "\x1b[1m";
constexpr std::string_view red = "\x1b[1;31m";
constexpr std::string_view magenta = "\x1b[1;35m";
constexpr std::string_view green = "\x1b[1;32m";
constexpr std::string_view indentation = "    ";

std::string colored(std::string_view color, const std::string& text, Colors colors) {
    return colors == Colors::Off ? text : std::string(color) + text + "\x1b[0m";
}

std::string caretLine(const DiagnosticExcerpt& excerpt, Colors colors) {
    const std::size_t marked = terminalColumns(excerpt.marked);
    const std::string carets = "^" + std::string(marked > 1 ? marked - 1 : 0, '~');
    return std::string(terminalColumns(excerpt.before), ' ') + colored(green, carets, colors);
}

}  // namespace

std::string diagnosticText(const std::string& file, const Diagnostic& diagnostic,
                           const DiagnosticExcerpt& excerpt, Colors colors) {
    const Place& place = diagnostic.place;
    const std::string label =
        diagnostic.isFixed ? "fixed" : std::string(severityName(diagnostic.severity));
    const std::string_view color = diagnostic.isFixed                       ? green
                                   : diagnostic.severity == Severity::Error ? red
                                                                            : magenta;
    std::string text = colored(bold,
                               oneLine(file) + ":" + std::to_string(place.line) + ":" +
                                   std::to_string(place.column) + ":",
                               colors) +
                       " " + colored(color, label + ":", colors) + " " +
                       shortened(trimBlanks(oneLine(diagnostic.message))) + " [" +
                       std::string(diagnosticRule(diagnostic.id).identifier) + "]\n";
    const std::string line = excerpt.before + excerpt.marked + excerpt.after;
    if (!trimWhitespace(line).empty()) {
        text += indentation;
        text += line + "\n";
        text += indentation;
        text += caretLine(excerpt, colors) + "\n";
    }
    if (diagnostic.isFixed) {
        text += indentation;
        text += "fix: " + shortened(oneLine(diagnostic.fix->replacement)) + "\n";
    } else if (!diagnostic.hint.empty()) {
        text += indentation;
        text += "hint: " + shortened(oneLine(diagnostic.hint)) + "\n";
    }
    return text;
}

}  // namespace quorvane::cli
