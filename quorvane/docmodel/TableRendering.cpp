#include "quorvane/docmodel/TableRendering.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

namespace quorvane {

namespace {

struct SideWords {
    BorderSide side;
    std::string_view words;
};

// In the order in which they are written.
constexpr SideWords sides[] = {
    {BorderSide::Bottom, R"(\clbrdrb\brdrs\brdrw)"},
    {BorderSide::Left, R"(\clbrdrl\brdrs\brdrw)"},
    {BorderSide::Right, R"(\clbrdrr\brdrs\brdrw)"},
    {BorderSide::Top, R"(\clbrdrt\brdrs\brdrw)"},
};

constexpr std::size_t longestNumber = 11;

}  // namespace

TableRendering::TableRendering(TableDocument& document_, TextOutput& out_)
    : document(document_), out(out_), inlineStyles(document_) {}

std::string_view TableRendering::paragraphStyle(const SharedText& name) {
    // Words are never empty: a document returns a blank where there are none.
    if (styleWords_.empty() || !name.sharesWith(styleName_)) {
        styleWords_ = document.GetParagraphStyle(name.view());
        styleName_ = name;
    }
    return styleWords_;
}

std::string_view TableRendering::borderText(const Borders& borders) {
    if (borders == borders_) {
        return borderText_;
    }
    borderText_.clear();
    for (const SideWords& side : sides) {
        const tBorderWidth width = borders[side.side];
        if (width != eNone) {
            std::array<char, longestNumber> digits;
            const auto end =
                std::to_chars(digits.begin(), digits.end(), static_cast<std::int32_t>(width));
            borderText_ += side.words;
            borderText_.append(digits.data(), end.ptr);
        }
    }
    borders_ = borders;
    return borderText_;
}

}  // namespace quorvane
