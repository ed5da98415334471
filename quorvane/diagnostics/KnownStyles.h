#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/stylesheet/StyleKind.h"

namespace quorvane {

class StyleList;
struct SheetForm;

/// The styles of a stylesheet, and which of them descriptions use.
///
/// `checkDescription` looks up the styles of a description in it and marks them as used;
/// `findUnusedStyles` reports those that are left.
class KnownStyles {
public:
    /// Reads a stylesheet. If it has errors, the styles are those that it was most likely meant to
    /// have. `encoding` is that of the stylesheet's file.
    explicit KnownStyles(std::string_view styleSheet,
                         TextEncoding encoding = TextEncoding::Windows1252);
    KnownStyles(KnownStyles&& other) noexcept;
    KnownStyles& operator=(KnownStyles&& other) noexcept;
    ~KnownStyles();

    /// Returns the text of the stylesheet, as it was given.
    const std::string& text() const;

    /// Returns the encoding of the stylesheet's file, as it was given.
    TextEncoding encoding() const;

    /// Returns the text of a stylesheet without errors that has the same styles: `text` if that has
    /// none.
    const std::string& soundText() const;

    /// Returns the 1-based position of a style among those of its kind, -1 if the stylesheet has no
    /// such style. The name is in any case.
    int find(StyleKind kind, std::string_view name) const;

    /// Returns whether it is certain that the stylesheet has no style of that kind and name.
    bool lacks(StyleKind kind, std::string_view name) const;

    /// Returns whether this is the name of a style whose kind is wrong or uncertain.
    bool isOfAnyKind(std::string_view name) const;

    /// Records that a description uses the style.
    void markUsed(StyleKind kind, std::string_view name);

    /// Returns whether a description uses the style.
    bool isUsed(StyleKind kind, std::string_view name) const;

private:
    struct Parts;

    // For the library: the styles of a kind, and their numbers.
    friend const StyleList& stylesOf(const KnownStyles& known, StyleKind kind);
    friend const SheetForm& formOf(const KnownStyles& known);

    std::unique_ptr<Parts> parts_;
};

}  // namespace quorvane
