#pragma once

#include <string>

#include "quorvane/rtfgroups/AddedColors.h"
#include "quorvane/rtfgroups/AddedFonts.h"
#include "quorvane/rtfgroups/DocumentTables.h"

namespace quorvane {

/// The tables of a document that does not exist: others than those of every document are added in
/// the order in which they are asked for.
class NumberedTables final : public DocumentTables {
public:
    std::int32_t colorNumber(const RgbColor& color) override {
        const auto known = colors_.number(color);
        return known ? *known : colors_.add(color);
    }
    std::int32_t fontNumber(const std::string& name) override {
        const auto known = fonts_.number(name);
        return known ? *known : fonts_.add(name);
    }

    void releaseNumbers() noexcept override {}

    const AddedColors& colors() const noexcept { return colors_; }
    const AddedFonts& fonts() const noexcept { return fonts_; }

private:
    AddedColors colors_;
    AddedFonts fonts_;
};

}  // namespace quorvane
