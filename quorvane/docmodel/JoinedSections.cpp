#include "quorvane/docmodel/JoinedSections.h"

#include "quorvane/base/text/StringOutput.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/docmodel/smallParagraph.h"

namespace quorvane {

void JoinedSections::prepare(CRtfDoc& document) {
    if (last_) {
        // What failed since then added colors and fonts that no section has.
        last_->ClearStructure();
        inner(document).takeNumbers(inner(*last_));
        last_ = Ref<CRtfDoc>(&document);
    }
}

std::string JoinedSections::add(CRtfDoc& document) {
    InnerDocument& section = inner(document);
    std::string text;
    StringOutput out(text);
    if (before_.areThere) {
        out << "\r\n" << smallParagraph << R"(\sect)";
    }
    section.renderSection(out, before_);
    out.flush();
    if (!before_.areThere) {
        pageFormat_ = section.pageFormat();
    }
    section.keepNumbers();
    before_ = {.areThere = true,
               .haveHeader = section.hasPageHeader(),
               .haveFooter = section.hasPageFooter()};
    last_ = Ref<CRtfDoc>(&document);
    return text;
}

std::string JoinedSections::beginning() {
    last_->ClearStructure();
    std::string text;
    StringOutput out(text);
    inner(*last_).renderTables(out);
    out << pageFormat_;
    out.flush();
    return text;
}

std::string JoinedSections::end() {
    return "\r\n" + std::string(smallParagraph) + R"(\par})";
}

}  // namespace quorvane
