#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace quorvane {

namespace {

struct Color {
    std::string_view name;
    RgbColor color;
};

constexpr Color colors[] = {
    {"aquamarine", {127, 255, 212}},
    {"bisque", {255, 228, 196}},
    {"black", {0, 0, 0}},
    {"blue", {0, 0, 255}},
    {"brown", {128, 64, 47}},
    {"chartreuse", {127, 255, 0}},
    {"cyan", {0, 255, 255}},
    {"dark cyan", {0, 128, 128}},
    {"dark gray", {90, 90, 90}},
    {"dark green", {0, 128, 0}},
    {"dark magenta", {128, 0, 128}},
    {"dark red", {128, 0, 0}},
    {"dark slate blue", {72, 61, 139}},
    {"dark yellow", {128, 128, 0}},
    {"deep sky blue", {0, 154, 205}},
    {"gold", {255, 215, 0}},
    {"gray", {128, 128, 128}},
    {"green", {0, 255, 0}},
    {"light blue", {173, 216, 230}},
    {"light green", {144, 238, 144}},
    {"light yellow", {255, 255, 224}},
    {"lime green", {150, 205, 0}},
    {"magenta", {255, 0, 255}},
    {"navy blue", {0, 0, 128}},
    {"olive green", {85, 107, 47}},
    {"orange", {255, 165, 0}},
    {"peach puff", {255, 218, 185}},
    {"pink", {255, 157, 180}},
    {"purple", {160, 32, 240}},
    {"red", {255, 0, 0}},
    {"sea green", {46, 139, 87}},
    {"silver", {214, 214, 214}},
    {"slate blue", {106, 90, 205}},
    {"sky blue", {135, 206, 235}},
    {"turquoise", {64, 224, 208}},
    {"white", {255, 255, 255}},
    {"yellow", {255, 255, 0}},
    {"brick", {102, 0, 0}},
    {"cork", {153, 102, 0}},
    {"yellow cork", {153, 153, 0}},
    {"dark cork", {102, 51, 0}},
    {"dark silver", {158, 158, 158}},
    {"gray blue", {102, 102, 153}},
    {"dark navy blue", {51, 0, 153}},
    {"light royal blue", {51, 102, 255}},
    {"violet", {153, 0, 255}},
    {"dodger blue", {0, 102, 255}},
    {"sargasso green", {0, 102, 102}},
    {"royal blue", {51, 51, 204}},
    {"light sea green", {51, 153, 153}},
    {"deep purple", {102, 51, 102}},
    {"steel blue", {51, 102, 153}},
    {"asphalt", {61, 61, 69}},
    {"dark golden rod", {205, 149, 12}},
    {"dark grass", {0, 102, 51}},
    {"grass", {0, 153, 51}},
    {"red brick", {153, 0, 0}},
};

static_assert(std::size(colors) == CRtfGrpColorTable::colorCount);

// "\r\n", three words with three digits each, and the ";".
constexpr std::size_t longestEntry = 27;

struct GroupText {
    std::array<char, 20 + CRtfGrpColorTable::colorCount * longestEntry> bytes{};
    std::size_t size = 0;

    constexpr void add(std::string_view part) {
        for (const char byte : part) {
            bytes[size++] = byte;
        }
    }

    constexpr void add(std::string_view word, unsigned part) {
        add(word);
        for (unsigned unit = part > 99 ? 100 : part > 9 ? 10 : 1; unit > 0; unit /= 10) {
            bytes[size++] = static_cast<char>('0' + part / unit % 10);
        }
    }
};

// Without the brace that closes it.
constexpr GroupText groupText = [] {
    GroupText text;
    text.add("\r\n{\\colortbl;");
    for (const auto& [name, color] : colors) {
        text.add("\r\n\\red", color.red);
        text.add("\\green", color.green);
        text.add("\\blue", color.blue);
        text.add(";");
    }
    return text;
}();

bool isDashedForm(std::string_view dashed, std::string_view name) {
    if (dashed.size() != name.size()) {
        return false;
    }
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (dashed[i] != (name[i] == ' ' ? '-' : name[i])) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::int32_t CRtfGrpColorTable::colorNumber(std::string_view dashedName) {
    std::int32_t number = 0;
    for (const Color& color : colors) {
        ++number;
        if (isDashedForm(dashedName, color.name)) {
            return number;
        }
    }
    return 0;
}

std::string CRtfGrpColorTable::colorName(std::int32_t number) {
    if (number < 1 || number > colorCount) {
        return {};
    }
    std::string name(colors[number - 1].name);
    std::replace(name.begin(), name.end(), ' ', '-');
    return name;
}

std::optional<RgbColor> CRtfGrpColorTable::color(std::int32_t number) {
    if (number < 1 || number > colorCount) {
        return std::nullopt;
    }
    return colors[number - 1].color;
}

void CRtfGrpColorTable::render(TextOutput& rtf, std::span<const RgbColor> added) const {
    rtf << std::string_view(groupText.bytes.data(), groupText.size);
    for (const RgbColor& color : added) {
        rtf << "\r\n\\red" << std::int32_t{color.red} << "\\green" << std::int32_t{color.green}
            << "\\blue" << std::int32_t{color.blue} << ";";
    }
    rtf << "}";
}

}  // namespace quorvane
