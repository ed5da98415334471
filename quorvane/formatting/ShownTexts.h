#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/rtf/RtfTextReader.h"

namespace quorvane {

/// Compares what the RTF of texts shows: the characters, the words that format each of them, and
/// all else in its order. Texts that only differ in how characters are written are alike, and so
/// are those that differ in groups without an effect, or in the numbers of character styles, whose
/// words stand beside them.
class ShownTexts {
public:
    bool areAlike(std::string_view rtf, std::string_view other);

private:
    /// The words that format a part are one number.
    using Format = std::int32_t;

    struct Shown {
        RtfTextPart::Kind kind = RtfTextPart::Kind::Character;
        char32_t code = 0;
        std::string_view written = {};
        Format format = 0;
        bool operator==(const Shown&) const = default;
    };

    struct OpenGroup {
        std::size_t position;
        Format formatBefore;
        bool isTransparent = true;
    };

    std::vector<Shown> partsOf(std::string_view rtf);
    void take(const RtfTextPart& part, std::string_view rtf);
    void takeControl(const RtfTextPart& part, std::string_view written);
    void close(std::string_view written);
    void addOpaque(const Shown& shown);
    Format formatWith(std::string_view word);

    // The words of both texts, each after others.
    std::map<std::pair<Format, std::string>, Format> formats_;
    // Of the text that is being read.
    Format format_ = 0;
    std::vector<Shown> parts_;
    std::vector<OpenGroup> groups_;
};

}  // namespace quorvane
