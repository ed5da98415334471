#include "quorvane/driver/extendedPage.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/text/textCase.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

namespace {

HeadingForm headingForm(std::string_view text) {
    const std::string word = lowerCase(text);
    if (word != "header" && word != "trhdr") {
        throw LeafError(
            DriverFault::WrongValue,
            "\"" + std::string(text) + "\" is not a form of heading; write header or trhdr");
    }
    return word == "trhdr" ? HeadingForm::RowProperty : HeadingForm::PageHeader;
}

}  // namespace

void applyPageLeaf(CRtfDoc& document, const Leaf& leaf) {
    switch (leaf.key.known) {
        case DescriptionKey::Page: {
            const PageSize size = pageSizeNamed(leaf.text);
            document.setPageWidth(size.width);
            document.setPageHeight(size.height);
            break;
        }
        case DescriptionKey::Header: {
            const auto [left, center, right] = pageLineParts(leaf.text);
            document.setPageHeader(left, center, right);
            break;
        }
        case DescriptionKey::Footer: {
            const auto [left, center, right] = pageLineParts(leaf.text);
            document.setPageFooter(left, center, right);
            break;
        }
        case DescriptionKey::Heading:
            document.setHeadingForm(headingForm(leaf.text));
            break;
        case DescriptionKey::Fonts:
            for (const std::string_view name : listedNames(leaf.text)) {
                document.addFont(name);
            }
            break;
        default:
            break;
    }
}

void clearMargins(CRtfDoc& document, const DescriptionNode& doc) {
    const auto clear = [&](DescriptionKey key, void (CRtfDoc::*set)(std::int32_t)) {
        if (contains(doc.keys, key)) {
            (document.*set)(1);
        }
    };
    clear(DescriptionKey::LeftMargin, &CRtfDoc::setLeftMargin);
    clear(DescriptionKey::RightMargin, &CRtfDoc::setRightMargin);
    clear(DescriptionKey::TopMargin, &CRtfDoc::setTopMargin);
    clear(DescriptionKey::BottomMargin, &CRtfDoc::setBottomMargin);
}

bool hasTextArea(const CRtfDoc& document) {
    return document.PageWidth() > document.LeftMargin() + document.RightMargin() &&
           document.PageHeight() > document.TopMargin() + document.BottomMargin();
}

}  // namespace quorvane
