#include "quorvane/formatting/PageUpgrade.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

namespace {

using enum DescriptionKey;

constexpr KeySet sizeKeys = setOf({PaperWidth, PaperHeight});

struct PageSetting {
    DescriptionKey key;
    std::string_view word;
    std::int32_t (CRtfDoc::*value)() const;
};

constexpr PageSetting settings[] = {
    {PaperWidth, "paper-width", &CRtfDoc::PageWidth},
    {PaperHeight, "paper-height", &CRtfDoc::PageHeight},
    {PageNumberStart, "page-number-start", &CRtfDoc::PageNumberStart},
    {LeftMargin, "left-margin", &CRtfDoc::LeftMargin},
    {RightMargin, "right-margin", &CRtfDoc::RightMargin},
    {TopMargin, "top-margin", &CRtfDoc::TopMargin},
    {BottomMargin, "bottom-margin", &CRtfDoc::BottomMargin},
};

/// The setting of a key of the document, all of which are settings of the page.
const PageSetting& settingOf(DescriptionKey key) {
    return *std::find_if(std::begin(settings), std::end(settings),
                         [key](const PageSetting& setting) { return setting.key == key; });
}

}  // namespace

PageUpgrade::PageUpgrade(const CRtfDoc& document, const DescriptionNode& doc)
    : document_(document),
      doc_(doc),
      name_(pageName({document.PageWidth(), document.PageHeight()})) {}

std::vector<std::string> PageUpgrade::linesFor(const Leaf& leaf) const {
    if (!contains(sizeKeys, leaf.key.known) || !hasName()) {
        return {lineOf(leaf.key.known)};
    }
    return &leaf == firstOfSize() ? std::vector<std::string>{"(page=" + name_ + ")"}
                                  : std::vector<std::string>();
}

std::vector<std::string> PageUpgrade::missingLines() const {
    const PageDefaults& usual = *extendedDialect().page;
    std::vector<std::string> lines;
    const auto add = [&](DescriptionKey key, std::int32_t usualValue) {
        if (!contains(doc_.keys, key) && (document_.*settingOf(key).value)() != usualValue) {
            lines.push_back(lineOf(key));
        }
    };
    if (!hasName()) {
        add(PaperWidth, usual.width);
        add(PaperHeight, usual.height);
    }
    add(PageNumberStart, usual.firstNumber);
    return lines;
}

std::string PageUpgrade::lineOf(DescriptionKey key) const {
    const PageSetting& setting = settingOf(key);
    return "(" + std::string(setting.word) + "=" + std::to_string((document_.*setting.value)()) +
           ")";
}

/// The leaf in whose place the name of the page stands.
const Leaf* PageUpgrade::firstOfSize() const {
    for (const Leaf& leaf : doc_.leaves()) {
        if (contains(sizeKeys, leaf.key.known)) {
            return &leaf;
        }
    }
    return nullptr;
}

}  // namespace quorvane
