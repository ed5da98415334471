#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvane {

/// A length: a whole number of twips (1/1440 inch), or a text as in the extended language, such as
/// "2cm", "12.5mm", "1in", "12pt" or "567tw".
class Length {
public:
    /// A length of so many twips.
    Length(std::int32_t twips) : twips_(twips) {}
    /// The length that a text gives. Error "wrong-value" for any other text.
    Length(std::string_view text);
    Length(const std::string& text) : Length(std::string_view(text)) {}
    Length(const char* text) : Length(std::string_view(text ? text : "")) {}

    /// Returns the length in twips.
    std::int32_t twips() const noexcept { return twips_; }

private:
    std::int32_t twips_;
};

}  // namespace quorvane
