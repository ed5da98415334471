#include "quorvane/driver/extendedPage.h"

#include <algorithm>
#include <array>
#include <cstddef>
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

// They stand for a bar and a blank of data, which cannot hold them, until the parts are known.
constexpr char dataBar = '\x1e';
constexpr char dataBlank = '\x1f';

/// The text of a page header or footer in which nothing of the data means anything.
std::string withEscapedData(const Leaf& leaf) {
    std::string text;
    std::size_t begin = 0;
    for (const TextRange& range : leaf.data()) {
        text += leaf.text.substr(begin, range.begin - begin);
        for (const char character : leaf.text.substr(range.begin, range.end - range.begin)) {
            text.append(character == '{' || character == '}' ? 1U : 0U, character);
            text += character == '|' ? dataBar : character == ' ' ? dataBlank : character;
        }
        begin = range.end;
    }
    return text.append(leaf.text.substr(begin));
}

void restoreData(std::string& part) {
    std::replace(part.begin(), part.end(), dataBar, '|');
    std::replace(part.begin(), part.end(), dataBlank, ' ');
}

std::array<std::string, 3> shownParts(const Leaf& leaf) {
    if (!leaf.filled) {
        return pageLineParts(leaf.text);
    }
    std::array<std::string, 3> parts = pageLineParts(withEscapedData(leaf));
    std::for_each(parts.begin(), parts.end(), restoreData);
    return parts;
}

void setPageLine(CRtfDoc& document, const Leaf& leaf, PageLineSetter set) {
    const auto [left, center, right] = shownParts(leaf);
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
            setPageLine(document, leaf, &CRtfDoc::setPageHeader);
            break;
        case DescriptionKey::Footer:
            setPageLine(document, leaf, &CRtfDoc::setPageFooter);
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
