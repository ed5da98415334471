#include "quorvane/docmodel/TableRendering.h"

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

}  // namespace

std::string_view TableRendering::paragraphStyle(const SharedText& name) {
    // Words are never empty: a document returns a blank where there are none.
    if (styleWords_.empty() || !name.sharesWith(styleName_)) {
        styleWords_ = document.GetParagraphStyle(name.view());
        styleName_ = name;
    }
    return styleWords_;
}

std::string_view TableRendering::borderText(const Borders& borders) {
    if (borders != borders_) {
        borderText_.clear();
        TextOutput text(borderText_);
        for (const SideWords& side : sides) {
            const tBorderWidth width = borders[side.side];
            if (width != eNone) {
                text << side.words << static_cast<std::int32_t>(width);
            }
        }
        text.flush();
        borders_ = borders;
    }
    return borderText_;
}

}  // namespace quorvane
