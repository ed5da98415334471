#include "quorvane/diagnostics/text/FormatText.h"

#include <algorithm>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/text/controlWordHints.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

/// In a format that begins with "^", a "^" and a letter begin each of its parts.
void FormatText::takeCharacter(std::size_t at) {
    if (format_[at] == '^' && format_.front() == '^') {
        end();
        partBegin_ = at;
        lastWord_.reset();
    } else if (isPrinted(at) && at >= swallowedEnd_ && !isWhitespace(format_[at])) {
        begin_ = std::min(begin_, at);
        end_ = at + 1;
    }
}

bool FormatText::isPrinted(std::size_t at) const {
    return partBegin_ == nowhere ||
           (at > partBegin_ + 1 &&
            formatSubFields.find(lowerCase(format_.substr(partBegin_ + 1, 1))) != nowhere);
}

void FormatText::takeControl(const RtfControl& control) {
    lastWord_ = control.word.empty() ? std::nullopt : std::optional(control);
}

void FormatText::end() {
    if (begin_ != nowhere) {
        const std::size_t begin = std::exchange(begin_, nowhere);
        const std::string_view text = format_.substr(begin, end_ - begin);
        reporter_.report(DiagnosticId::FormatText, text, {text},
                         formatTextHint(text, lastWord_ ? &*lastWord_ : nullptr));
    }
}

}  // namespace quorvane
