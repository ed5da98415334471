#include "quorvane/diagnostics/text/colorComponents.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>
#include <vector>

#include "quorvane/base/text/hexadecimal.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/trimming.h"

namespace quorvane {

namespace {

std::optional<int> wholeNumber(std::string_view text, int base) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, base);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

std::optional<RgbColor> hexadecimal(std::string_view text) {
    const bool isShort = text.starts_with('#') && text.size() == 4;
    for (const std::string_view mark : {"#", "0x"}) {
        text.remove_prefix(text.starts_with(mark) ? mark.size() : 0);
    }
    if ((!isShort && text.size() != 6) ||
        text.find_first_not_of(lowerHexadecimalDigits) != std::string_view::npos) {
        return std::nullopt;
    }
    const auto component = [&](std::size_t index) {
        return static_cast<std::uint8_t>(isShort ? *wholeNumber(text.substr(index, 1), 16) * 17
                                                 : *wholeNumber(text.substr(index * 2, 2), 16));
    };
    return RgbColor{component(0), component(1), component(2)};
}

std::optional<RgbColor> decimal(std::string_view text) {
    if (text.starts_with("rgb")) {
        text.remove_prefix(text.find('(') == std::string_view::npos ? 3 : text.find('(') + 1);
        text = text.substr(0, text.find(')'));
    }
    std::vector<std::uint8_t> numbers;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(',', start), text.size());
        const std::optional<int> number =
            wholeNumber(trimWhitespace(text.substr(start, end - start)), 10);
        if (!number || *number < 0 || *number > 255 || numbers.size() == 3) {
            return std::nullopt;
        }
        numbers.push_back(static_cast<std::uint8_t>(*number));
        start = end + 1;
    }
    return numbers.size() == 3 ? std::optional(RgbColor{numbers[0], numbers[1], numbers[2]})
                               : std::nullopt;
}

/// How far a color is from gray.
int chroma(const RgbColor& color) {
    const auto [least, greatest] = std::minmax({color.red, color.green, color.blue});
    return greatest - least;
}

/// How far two colors are from each other, the eye's sense of each component considered; a gray is
/// nearer to a gray than to a pale color.
int distance(const RgbColor& a, const RgbColor& b) {
    const auto square = [](int difference) { return difference * difference; };
    return 3 * square(a.red - b.red) + 4 * square(a.green - b.green) + 2 * square(a.blue - b.blue) +
           2 * square(chroma(a) - chroma(b));
}

}  // namespace

std::optional<RgbColor> componentsIn(std::string_view text) {
    const std::string lower = lowerCase(trimWhitespace(text));
    const std::optional<RgbColor> components = hexadecimal(lower);
    return components ? components : decimal(lower);
}

std::string nearestColorName(const RgbColor& components, const Vocabulary& vocabulary) {
    std::string nearest;
    int best = 0;
    for (const std::string_view name : vocabulary.colorNames()) {
        const std::optional<RgbColor> color =
            CRtfGrpColorTable::color(vocabulary.colorNamed(name).value_or(eNoColor));
        if (color && (nearest.empty() || distance(*color, components) < best)) {
            best = distance(*color, components);
            nearest = name;
        }
    }
    return nearest;
}

}  // namespace quorvane
