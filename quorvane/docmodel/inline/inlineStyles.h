#pragma once

#include <memory>
#include <string_view>

namespace quorvane {

class TableDocument;

/// Replaces the inline character styles of the texts of a document by RTF: a token such as
/// `<bold-red=Total>` becomes a group of the control words of the style bold-red and the text
/// Total. The memory of one text serves the next. The stylesheet must stay the same meanwhile.
///
/// A walk over "<" and ">" finds the tokens. It searches the next ">" after the place of the last
/// one, and a replacement that changes the length of the text does not move that place: when a
/// token shrinks, the next ones can be read as one. Places count UTF-16 units.
class InlineStyles {
public:
    explicit InlineStyles(const TableDocument& document) noexcept;
    InlineStyles(const InlineStyles&) = delete;
    InlineStyles& operator=(const InlineStyles&) = delete;
    ~InlineStyles();

    /// The text with its inline styles in RTF, valid until the next call. Error 6 when styles whose
    /// own words hold tokens would make it endless.
    std::string_view replace(std::string_view text);

    /// True when replacing the same texts once more takes no memory.
    bool keepsItsMemory() const noexcept;

private:
    class Walks;

    const TableDocument& document_;
    std::unique_ptr<Walks> walks_;
};

}  // namespace quorvane
