#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/rtf/RtfControl.h"
#include "quorvane/rtf/RtfWord.h"

namespace quorvane {

/// The fonts, colors and styles that an RTF document has by number. Reports a number that a table
/// defines twice, and one that the document uses and no table defines.
class RtfReferences {
public:
    /// The engine must outlive the references.
    explicit RtfReferences(DiagnosticEngine& engine) : engine_(engine) {}

    /// A control word in the font table: the number of a font, or a part of its definition. The
    /// word is null for one that RTF does not have.
    void takeFontWord(const RtfControl& control, const RtfWord* word, const Place& place);
    /// Text in the font table, in which a semicolon ends a font.
    void takeFontText(std::string_view text);
    /// Bytes of a font's definition.
    void addToFont(std::string_view bytes);
    void endFont();

    /// Text in the color table, in which a semicolon ends a color.
    void takeColorText(std::string_view text);

    /// The first number in an entry of the stylesheet. The role is one that names a style.
    void defineStyle(RtfRole role, const RtfControl& control, const Place& place);
    /// An entry of the stylesheet without a number: the style "normal" may leave it out.
    void defineUnnumberedStyle();

    /// A word of the document, or of a style's format, that names a font, a color or a style.
    void use(RtfRole role, const RtfControl& control, const Place& place);

private:
    /// What a document has by number, in the order of the roles that name them.
    enum Kind : std::size_t { FontKind, ColorKind, FirstStyleKind, kindCount = FirstStyleKind + 4 };

    /// The entry of the font table that is being read.
    struct Font {
        bool hasNumber = false;
        std::int64_t number = 0;
        Place place{};
        // Of all that defines the font.
        std::uint64_t hash = 0;
    };

    void reportMissing(Kind kind, DiagnosticId id, const RtfControl& control, const Place& place);

    DiagnosticEngine& engine_;
    // The hash of what defines each font.
    std::unordered_map<std::int64_t, std::uint64_t> fonts_;
    Font font_;
    // Entries of the color table, the empty one included.
    std::int64_t colors_ = 0;
    // Numbers by kind: paragraph, character, section and table styles.
    std::array<std::unordered_set<std::int64_t>, 4> styles_;
    // Number of the paragraph style that was defined last.
    std::int64_t lastStyle_ = 99;
    // The missing numbers that were reported, by their kind.
    std::array<std::unordered_set<std::int64_t>, kindCount> reported_;
};

}  // namespace quorvane
