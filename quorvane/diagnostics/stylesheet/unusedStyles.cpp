#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/StyleSheetOutline.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/stylesheet/StyleList.h"

namespace quorvane {

namespace {

class UnusedStyles {
public:
    UnusedStyles(const KnownStyles& styles, const StyleSheetOutline& outline)
        : styles_(styles),
          // Paragraph styles that only keep the numbers of the character styles free need no user.
          reserved_(
              formOf(styles).isExtended
                  ? 0
                  : std::max(1, static_cast<int>(stylesOf(styles, StyleKind::Character).count()))) {
        for (const OutlinedDefinition& definition : outline.definitions) {
            for (const StyleItem& item : definition.items) {
                if (item.is(basedOnKeyword) || item.is(nextKeyword)) {
                    referenced_.insert(lowerCase(item.value));
                }
            }
        }
    }

    /// A definition with several names is used when one of them is.
    bool include(const OutlinedDefinition& definition) const {
        const StyleKind kind = kindOf(definition);
        const std::vector<std::string_view> names = namesOf(definition);
        return std::none_of(names.begin(), names.end(), [&](std::string_view name) {
            return mayBeUsed(kind, lowerCase(name));
        });
    }

private:
    bool mayBeUsed(StyleKind kind, const std::string& name) const {
        const bool isFirst = kind == StyleKind::Paragraph &&
                             (name == "normal" || styles_.find(kind, name) <= reserved_);
        const bool isReferenced = kind != StyleKind::Cell && referenced_.contains(name);
        return isFirst || isReferenced || styles_.isUsed(kind, name) || styles_.isOfAnyKind(name);
    }

    const KnownStyles& styles_;
    int reserved_;
    // The names that styles refer to, in lower case.
    std::unordered_set<std::string> referenced_;
};

}  // namespace

std::vector<Diagnostic> findUnusedStyles(const KnownStyles& styles) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    const SourceText source(styles.text(), styles.encoding());
    const StyleSheetOutline outline = readStyleSheetOutline(styles.text());
    const UnusedStyles unused(styles, outline);
    for (const OutlinedDefinition& definition : outline.definitions) {
        const std::vector<std::string_view> names = namesOf(definition);
        if (!names.empty() && unused.include(definition)) {
            engine.report(DiagnosticId::UnusedStyle, source.placeOf(names.front()),
                          {names.front()});
        }
    }
    return diagnostics;
}

}  // namespace quorvane
