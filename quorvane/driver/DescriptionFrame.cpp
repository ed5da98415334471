#include "quorvane/driver/DescriptionFrame.h"

#include <algorithm>

namespace quorvane {

namespace {

template <class Holds>
DescriptionFrame frameOf(const std::vector<SourceLine>& lines, const Dialect& dialect,
                         Holds holds) {
    const DescriptionFrameWords& words = dialect.frame;
    return {.hasOpener = holds(words.opener),
            .hasElements = std::any_of(words.elements.begin(), words.elements.end(), holds),
            .begins = !lines.empty() && lines.front().text.starts_with(words.opener),
            .ends = !lines.empty() && lines.back().text.starts_with(words.closer)};
}

}  // namespace

DescriptionFrame frameOf(std::string_view text, const std::vector<SourceLine>& lines,
                         const Dialect& dialect) {
    return frameOf(lines, dialect, [text](std::string_view part) {
        return text.find(part) != std::string_view::npos;
    });
}

DescriptionFrame frameOf(const std::vector<SourceLine>& lines, const Dialect& dialect) {
    return frameOf(lines, dialect, [&lines](std::string_view part) {
        return std::any_of(lines.begin(), lines.end(), [part](const SourceLine& line) {
            return line.text.find(part) != std::string_view::npos;
        });
    });
}

std::vector<Violation> frameViolations(const DescriptionFrame& frame, std::string_view text,
                                       const std::vector<SourceLine>& lines) {
    const SourceLine first = lines.empty() ? SourceLine{text.substr(0, 0)} : lines.front();
    std::vector<Violation> violations;
    const auto add = [&](DriverFault fault, const SourceLine& line, int number) {
        violations.push_back(
            {.fault = fault, .error = driverError(fault, {}, number), .part = line.text});
    };
    if (!frame.hasOpener) {
        add(DriverFault::NotADescription, first, 0);
    }
    if (!frame.hasOpener || !frame.hasElements) {
        add(DriverFault::MissingElements, first, 0);
    }
    if (!frame.begins) {
        add(DriverFault::WrongRoot, first, first.number);
    } else if (!frame.ends) {
        add(DriverFault::WrongRoot, lines.back(), lines.back().number);
    }
    return violations;
}

}  // namespace quorvane
