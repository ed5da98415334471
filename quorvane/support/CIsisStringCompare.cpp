#include "quorvane/support/CIsisStringCompare.h"

#include <cstddef>
#include <optional>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

// Reads what the subfields of a record hold, one after the other. It takes no memory, so that a
// comparison cannot fail in the middle of a sort.
class ContentReader {
public:
    ContentReader(std::string_view record, std::string_view codes)
        : record_(record), codes_(codes) {}

    // The next character in lower case; nothing at the end.
    std::optional<char32_t> next() {
        while (content_.empty()) {
            if (codes_.empty()) {
                return std::nullopt;
            }
            const std::optional<SubFieldView> field =
                findSubFieldOf(record_, takeCharacter(codes_));
            content_ = field ? field->content : std::string_view();
        }
        return lowerCode(utf8CharacterAt(takeCharacter(content_), 0).code);
    }

private:
    static std::string_view takeCharacter(std::string_view& text) {
        const std::string_view character = text.substr(0, utf8CharacterAt(text, 0).length);
        text.remove_prefix(character.size());
        return character;
    }

    std::string_view record_;
    std::string_view codes_;
    std::string_view content_;
};

}  // namespace

std::int32_t CIsisStringCompare::comp(std::string_view A, std::string_view B) const noexcept {
    if (subField_.empty()) {
        return compareIgnoringCase(A, B);
    }
    ContentReader readerOfA(A, subField_);
    ContentReader readerOfB(B, subField_);
    std::optional<char32_t> inA = readerOfA.next();
    std::optional<char32_t> inB = readerOfB.next();
    while (inA && inA == inB) {
        inA = readerOfA.next();
        inB = readerOfB.next();
    }
    // Nothing stands before every character.
    return inA == inB ? 0 : inA < inB ? -1 : 1;
}

}  // namespace quorvane
