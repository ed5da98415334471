#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace quorvane {

namespace {

struct Color {
    std::string_view name;
    std::string_view entry;
};

constexpr Color colors[] = {
    {"aquamarine", R"(\red127\green255\blue212;)"},
    {"bisque", R"(\red255\green228\blue196;)"},
    {"black", R"(\red0\green0\blue0;)"},
    {"blue", R"(\red0\green0\blue255;)"},
    {"brown", R"(\red128\green64\blue47;)"},
    {"chartreuse", R"(\red127\green255\blue0;)"},
    {"cyan", R"(\red0\green255\blue255;)"},
    {"dark cyan", R"(\red0\green128\blue128;)"},
    {"dark gray", R"(\red90\green90\blue90;)"},
    {"dark green", R"(\red0\green128\blue0;)"},
    {"dark magenta", R"(\red128\green0\blue128;)"},
    {"dark red", R"(\red128\green0\blue0;)"},
    {"dark slate blue", R"(\red72\green61\blue139;)"},
    {"dark yellow", R"(\red128\green128\blue0;)"},
    {"deep sky blue", R"(\red0\green154\blue205;)"},
    {"gold", R"(\red255\green215\blue0;)"},
    {"gray", R"(\red128\green128\blue128;)"},
    {"green", R"(\red0\green255\blue0;)"},
    {"light blue", R"(\red173\green216\blue230;)"},
    {"light green", R"(\red144\green238\blue144;)"},
    {"light yellow", R"(\red255\green255\blue224;)"},
    {"lime green", R"(\red150\green205\blue0;)"},
    {"magenta", R"(\red255\green0\blue255;)"},
    {"navy blue", R"(\red0\green0\blue128;)"},
    {"olive green", R"(\red85\green107\blue47;)"},
    {"orange", R"(\red255\green165\blue0;)"},
    {"peach puff", R"(\red255\green218\blue185;)"},
    {"pink", R"(\red255\green157\blue180;)"},
    {"purple", R"(\red160\green32\blue240;)"},
    {"red", R"(\red255\green0\blue0;)"},
    {"sea green", R"(\red46\green139\blue87;)"},
    {"silver", R"(\red214\green214\blue214;)"},
    {"slate blue", R"(\red106\green90\blue205;)"},
    {"sky blue", R"(\red135\green206\blue235;)"},
    {"turquoise", R"(\red64\green224\blue208;)"},
    {"white", R"(\red255\green255\blue255;)"},
    {"yellow", R"(\red255\green255\blue0;)"},
    {"brick", R"(\red102\green0\blue0;)"},
    {"cork", R"(\red153\green102\blue0;)"},
    {"yellow cork", R"(\red153\green153\blue0;)"},
    {"dark cork", R"(\red102\green51\blue0;)"},
    {"dark silver", R"(\red158\green158\blue158;)"},
    {"gray blue", R"(\red102\green102\blue153;)"},
    {"dark navy blue", R"(\red51\green0\blue153;)"},
    {"light royal blue", R"(\red51\green102\blue255;)"},
    {"violet", R"(\red153\green0\blue255;)"},
    {"dodger blue", R"(\red0\green102\blue255;)"},
    {"sargasso green", R"(\red0\green102\blue102;)"},
    {"royal blue", R"(\red51\green51\blue204;)"},
    {"light sea green", R"(\red51\green153\blue153;)"},
    {"deep purple", R"(\red102\green51\blue102;)"},
    {"steel blue", R"(\red51\green102\blue153;)"},
    {"asphalt", R"(\red61\green61\blue69;)"},
    {"dark golden rod", R"(\red205\green149\blue12;)"},
    {"dark grass", R"(\red0\green102\blue51;)"},
    {"grass", R"(\red0\green153\blue51;)"},
    {"red brick", R"(\red153\green0\blue0;)"},
};

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
    if (number < 1 || static_cast<std::size_t>(number) > std::size(colors)) {
        return {};
    }
    std::string name(colors[number - 1].name);
    std::replace(name.begin(), name.end(), ' ', '-');
    return name;
}

void CRtfGrpColorTable::render(std::string& rtf) const {
    rtf += "\r\n{\\colortbl;";
    for (const Color& color : colors) {
        rtf += "\r\n";
        rtf += color.entry;
    }
    rtf += '}';
}

}  // namespace quorvane
