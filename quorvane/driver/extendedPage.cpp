#include "quorvane/driver/extendedPage.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/text/textCase.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/extendedValues.h"
#include "quorvane/driver/withoutFullStop.h"

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

using PageLineSetter = void (CRtfDoc::*)(std::string_view, std::string_view, std::string_view);

void setPageLine(CRtfDoc& document, std::string_view text, PageLineSetter set) {
    const auto [left, center, right] = pageLineParts(text);
    try {
        (document.*set)(left, center, right);
    } catch (const RtfError& error) {
        throw LeafError(DriverFault::WrongValue, withoutFullStop(error.description));
    }
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
        case DescriptionKey::Header:
            setPageLine(document, leaf.text, &CRtfDoc::setPageHeader);
            break;
        case DescriptionKey::Footer:
            setPageLine(document, leaf.text, &CRtfDoc::setPageFooter);
            break;
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
