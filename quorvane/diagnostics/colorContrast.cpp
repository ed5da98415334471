#include "quorvane/diagnostics/colorContrast.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <vector>

#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

namespace {

double partAfter(std::string_view entry, std::string_view word) {
    const std::size_t begin = entry.find(word) + word.size();
    int part = 0;
    std::from_chars(entry.data() + begin, entry.data() + entry.size(), part);
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

/// Lightness of the colours 1, 2 and so on, from 0 to 1, read from the table that is written.
std::vector<double> readLightnesses() {
    std::string table;
    CRtfGrpColorTable().render(table);
    std::vector<double> lightnesses;
    for (std::size_t at = table.find("\\red"); at != std::string::npos;
         at = table.find("\\red", at + 1)) {
        const std::string_view entry = std::string_view(table).substr(at, table.find(';', at) - at);
        lightnesses.push_back(0.2126 * partAfter(entry, "\\red") +
                              0.7152 * partAfter(entry, "\\green") +
                              0.0722 * partAfter(entry, "\\blue"));
    }
    return lightnesses;
}

double lightness(std::int32_t color, double otherwise) {
    static const std::vector<double> lightnesses = readLightnesses();
    return color >= 1 && static_cast<std::size_t>(color) <= lightnesses.size()
               ? lightnesses[static_cast<std::size_t>(color) - 1]
               : otherwise;
}

}  // namespace

double contrastOf(std::int32_t textColor, std::int32_t background) {
    const double text = lightness(textColor, 0);
    const double ground = lightness(background, 1);
    return (std::max(text, ground) + 0.05) / (std::min(text, ground) + 0.05);
}

std::string textColorName(std::int32_t color) {
    const std::string name = CRtfGrpColorTable::colorName(color);
    return name.empty() ? "black" : name;
}

std::string backgroundName(std::int32_t color) {
    const std::string name = CRtfGrpColorTable::colorName(color);
    return name.empty() ? "white" : name;
}

}  // namespace quorvane
