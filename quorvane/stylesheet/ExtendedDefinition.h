#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "quorvane/stylesheet/ExtendedStyle.h"
#include "quorvane/stylesheet/ExtendedViolation.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

/// The keywords of the items of an extended definition, `name` apart.
const std::vector<std::string_view>& extendedKeywords();

/// Whether a word is a keyword of an item, `name` included. Case counts.
bool isExtendedKeyword(std::string_view word);

/// The kind that a value of `style-def` names, in any case: "paragraph" or "s", "character" or
/// "cs", "cell"; nothing for any other word.
std::optional<StyleKind> extendedKindNamed(std::string_view word);

/// Reads one definition of an extended stylesheet.
class ExtendedDefinition {
public:
    /// `brace` is its "{" and `body` the text after it.
    ExtendedDefinition(std::string_view brace, std::string_view body,
                       const ExtendedViolationReport& report);

    /// Appends its styles, one for each of its names, with their own items.
    void read(std::vector<ExtendedStyle>& styles);

private:
    std::vector<std::string_view> readNames();
    std::optional<StyleKind> readKind(std::string_view name);
    void readItem(const StyleItem& item);
    void readProperty(const StyleItem& item, const StyleProperty& property);
    void readReference(const StyleItem& item);
    void refuseKeyword(const StyleItem& item);
    void refuseValue(const StyleItem& item, ExtendedFault fault, const StyleProperty* property);
    bool isRepeated(const StyleItem& item);
    const StyleProperty* findSetProperty(const StyleProperty& property) const;
    void refuse(ExtendedFault fault, std::string_view part,
                std::initializer_list<std::string_view> arguments = {},
                const StyleProperty* property = nullptr);

    std::string_view brace_;
    std::vector<StyleItem> items_;
    const ExtendedViolationReport& report_;
    ExtendedStyle style_;
    // The keywords read that are not properties.
    std::vector<std::string_view> seen_;
};

}  // namespace quorvane
