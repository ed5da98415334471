// For standard libraries that do not convert numbers with a fraction. The decimal sign of the C
// library must be the point, as it is in one that has no locales.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "quorvane/base/text/doubleText.h"

namespace quorvane {

namespace {

std::string printed(const char* format, int decimals, double number) {
    std::array<char, 32> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), format, decimals, number);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

bool readsBackAs(double number, const std::string& text) {
    return std::strtod(text.c_str(), nullptr) == number;
}

/// The next decimal away from zero with as many digits, unless it has one more before the point.
std::string nextDecimal(std::string text) {
    for (std::size_t i = text.find('e'); i-- > 0;) {
        if (text[i] >= '0' && text[i] < '9') {
            ++text[i];
            break;
        }
        text[i] = text[i] == '9' ? '0' : text[i];
    }
    return text;
}

}  // namespace

bool readDouble(std::string_view text, double& number) {
    number = std::strtod(std::string(text).c_str(), nullptr);
    const bool isZero = text.substr(0, text.find_first_of("eE")).find_first_of("123456789") ==
                        std::string_view::npos;
    return !std::isinf(number) && (number != 0 || isZero);
}

std::string plainDouble(double number) {
    const std::string text = doubleWithExponent(number);
    const std::size_t mark = text.find('e');
    const auto digits = static_cast<int>(
        std::count_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(mark),
                      [](char character) { return character >= '0' && character <= '9'; }));
    const auto exponent = static_cast<int>(std::strtol(text.c_str() + mark + 1, nullptr, 10));
    return printed("%.*f", std::max(digits - 1 - exponent, 0), number);
}

std::string doubleWithExponent(double number) {
    constexpr int mostDecimals = std::numeric_limits<double>::max_digits10 - 1;
    for (int decimals = 0; decimals < mostDecimals; ++decimals) {
        const std::string nearest = printed("%.*e", decimals, number);
        // Below a power of two doubles are closer to each other than above it: the nearest decimal,
        // below, may not read back where the next one, above, does.
        for (const std::string& text : {nearest, nextDecimal(nearest)}) {
            if (readsBackAs(number, text)) {
                return text;
            }
        }
    }
    return printed("%.*e", mostDecimals, number);
}

}  // namespace quorvane
