#include "quorvane/formatting/UpgradedLines.h"

#include "quorvane/base/text/LineReader.h"

namespace quorvane {

void UpgradedLines::add(std::string_view text, int origin) {
    if (text.empty()) {
        text_ += lineEnd_;
        origins_.push_back(origin);
    }
    for (LineReader lines(text); !lines.atEnd();) {
        text_ += lines.next();
        text_ += lineEnd_;
        origins_.push_back(origin);
    }
}

}  // namespace quorvane
