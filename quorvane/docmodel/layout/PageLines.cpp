#include "quorvane/docmodel/layout/PageLines.h"

#include <algorithm>

#include "quorvane/docmodel/layout/pageTextRtf.h"

namespace quorvane {

namespace {

// Half an inch, which word processors leave free above a header, unless the margin is small.
constexpr std::int32_t usualDistance = 720;
// About the height of a line.
constexpr std::int32_t lineHeight = 280;

std::int32_t distanceIn(std::int32_t margin) {
    return std::min(usualDistance, margin / 2);
}

}  // namespace

void PageLines::renderHeader(const PageText& text, const LaidOutRows* heading) {
    const bool hasText = text != PageText();
    if (!hasText && !heading) {
        return;
    }
    const std::int32_t margin = format_.TopMargin();
    const std::int32_t distance = hasText ? distanceIn(margin) : margin;
    TextOutput& out = rendering_.out;
    out << "\r\n\\headery" << distance << "\r\n{\\header";
    if (hasText) {
        // Space moves the heading down to where the table would begin. Word processors move the
        // table below a header that takes more room than its margin.
        const std::int32_t space = heading ? std::max(margin - distance - lineHeight, 0) : 0;
        renderText(text, headerStyle, space);
    }
    if (heading) {
        heading->renderHeading(rendering_);
        // A paragraph must follow a table. A small one keeps the heading and the rows together.
        out << "\r\n\\pard\\plain\\fs2\\par";
    }
    out << "}";
}

void PageLines::renderFooter(const PageText& text) {
    if (text != PageText()) {
        rendering_.out << "\r\n\\footery" << distanceIn(format_.BottomMargin()) << "\r\n{\\footer";
        renderText(text, footerStyle, 0);
        rendering_.out << "}";
    }
}

void PageLines::renderText(const PageText& text, std::string_view style, std::int32_t spaceAfter) {
    TextOutput& out = rendering_.out;
    const std::int32_t width = std::max(rendering_.document.TextAreaWidth(), 0);
    out << "\r\n\\pard\\plain" << rendering_.document.GetParagraphStyle(style);
    out << "\\tqc\\tx" << width / 2 << "\\tqr\\tx" << width << "\\sa" << spaceAfter << " ";
    out << pageTextRtf(text.left) << "\\tab " << pageTextRtf(text.center) << "\\tab "
        << pageTextRtf(text.right) << "\\par";
}

}  // namespace quorvane
