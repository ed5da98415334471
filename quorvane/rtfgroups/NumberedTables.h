#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "quorvane/rtfgroups/DocumentTables.h"

namespace quorvane {

/// Tables of a document that has the colors and fonts of every document, and others after them in
/// the order in which they are asked for.
class NumberedTables final : public DocumentTables {
public:
    std::int32_t colorNumber(const RgbColor& color) override;
    std::int32_t fontNumber(const std::string& name) override;

    /// The colors and the names of the fonts that not every document has.
    const std::vector<RgbColor>& colors() const noexcept { return colors_; }
    const std::vector<std::string>& fonts() const noexcept { return fonts_; }

private:
    std::vector<RgbColor> colors_;
    std::vector<std::string> fonts_;
    // Their numbers: by the parts of a color as one number, and by the name in lower case.
    std::unordered_map<std::uint32_t, std::int32_t> colorNumbers_;
    std::unordered_map<std::string, std::int32_t> fontNumbers_;
};

}  // namespace quorvane
