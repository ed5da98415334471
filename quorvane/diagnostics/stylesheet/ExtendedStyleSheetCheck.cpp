#include "quorvane/diagnostics/stylesheet/ExtendedStyleSheetCheck.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "quorvane/diagnostics/StyleSheetOutline.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/diagnostics/stylesheet/extendedStyleSheetHints.h"
#include "quorvane/stylesheet/extendedStyleSheet.h"

namespace quorvane {

namespace {

DiagnosticId diagnosticOf(ExtendedFault fault) {
    switch (fault) {
        case ExtendedFault::BadCharacter:
            return DiagnosticId::BadCharacter;
        case ExtendedFault::LoneBrace:
            return DiagnosticId::LoneBrace;
        case ExtendedFault::StrayText:
            return DiagnosticId::StrayText;
        case ExtendedFault::NamelessStyle:
            return DiagnosticId::NamelessStyle;
        case ExtendedFault::BadStyleName:
            return DiagnosticId::BadStyleName;
        case ExtendedFault::StyleTwice:
            return DiagnosticId::StyleTwice;
        case ExtendedFault::MissingKind:
            return DiagnosticId::MissingKind;
        case ExtendedFault::BadKind:
            return DiagnosticId::BadKind;
        case ExtendedFault::UnknownItem:
            return DiagnosticId::UnknownItem;
        case ExtendedFault::MissingSemicolon:
            return DiagnosticId::MissingSemicolon;
        case ExtendedFault::ItemTwice:
            return DiagnosticId::ItemTwice;
        case ExtendedFault::MisplacedItem:
            return DiagnosticId::MisplacedItem;
        case ExtendedFault::MissingValue:
            return DiagnosticId::MissingValue;
        case ExtendedFault::BadValue:
            return DiagnosticId::BadItemValue;
        case ExtendedFault::MissingStyle:
            return DiagnosticId::MissingStyle;
        case ExtendedFault::StyleCircle:
            break;
    }
    return DiagnosticId::StyleCircle;
}

/// The names of the styles of each kind.
using NamesByKind = std::array<std::vector<std::string_view>, 3>;

NamesByKind namesByKind(const StyleSheetOutline& outline) {
    NamesByKind all;
    for (const OutlinedDefinition& definition : outline.definitions) {
        std::vector<std::string_view>& names = all[static_cast<std::size_t>(kindOf(definition))];
        for (const std::string_view name : namesOf(definition)) {
            // Of more than so many candidates none is compared.
            if (names.size() <= maxCandidates) {
                names.push_back(name);
            }
        }
    }
    return all;
}

}  // namespace

void checkExtendedStyleSheet(const SourceText& source, DiagnosticEngine& engine) {
    const NamesByKind names = namesByKind(readStyleSheetOutline(source.text()));
    bool isSound = true;
    const auto report = [&](const ExtendedViolation& violation) {
        isSound = false;
        engine.reportText(diagnosticOf(violation.fault), source.placeOf(violation.part),
                          violation.message,
                          extendedHint(violation, names[static_cast<std::size_t>(violation.kind)]));
    };
    if (readExtendedStyleSheet(source.text(), report).empty() && isSound) {
        engine.report(DiagnosticId::NoStyles, source.placeOf(source.text().substr(0, 0)), {},
                      "write styles such as { name: ...; style-def: paragraph; ... }");
    }
}

}  // namespace quorvane
