#include <array>
#include <charconv>
#include <system_error>

#include "quorvane/base/text/doubleText.h"

namespace quorvane {

namespace {

std::string written(double number, std::chars_format format) {
    std::array<char, 32> buffer{};
    const auto [end, problem] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format);
    return std::string(buffer.data(), end);
}

}  // namespace

bool readDouble(std::string_view text, double& number) {
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    return problem == std::errc{};
}

std::string plainDouble(double number) {
    return written(number, std::chars_format::fixed);
}

std::string doubleWithExponent(double number) {
    return written(number, std::chars_format::scientific);
}

}  // namespace quorvane
