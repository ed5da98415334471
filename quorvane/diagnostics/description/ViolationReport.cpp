#include "quorvane/diagnostics/description/ViolationReport.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/textCase.h"
#include "quorvane/diagnostics/description/keyHints.h"
#include "quorvane/diagnostics/description/nodeNouns.h"
#include "quorvane/diagnostics/description/numberHints.h"
#include "quorvane/diagnostics/description/quotedValue.h"
#include "quorvane/diagnostics/description/textFormatHints.h"
#include "quorvane/diagnostics/description/valueHints.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

namespace {

/// Words that people write for names of this language that look quite different.
constexpr std::pair<std::string_view, std::string_view> otherValueWords[] = {
    {"crimson", "dark-red"},  {"maroon", "dark-red"},   {"scarlet", "red"},
    {"navy", "navy-blue"},    {"grey", "gray"},         {"dark-grey", "dark-gray"},
    {"light-gray", "silver"}, {"light-grey", "silver"}, {"lightgray", "silver"},
    {"lightgrey", "silver"},  {"teal", "dark-cyan"},    {"lime", "green"},
    {"olive", "dark-yellow"}, {"violet", "purple"},     {"fuchsia", "magenta"},
    {"aqua", "cyan"},         {"transparent", "none"},  {"no", "none"},
    {"medium", "normal"},     {"bold", "thick"},        {"single", "thin"},
    {"solid", "thin"},        {"double", "thick"},      {"thinner", "hair"},
    {"center", "centered"},   {"centre", "centered"},   {"centred", "centered"},
    {"middle", "centered"},   {"justify", "justified"}, {"block", "justified"},
};

/// Those of them that are the name itself, spelled in another way.
constexpr std::string_view otherSpellings[] = {"grey",   "dark-grey", "center",
                                               "centre", "centred",   "justify"};

/// The diagnostics of what the driver rejects. `Rejected` stands for all others.
constexpr std::pair<DriverFault, DiagnosticId> diagnosticsOfFaults[] = {
    {DriverFault::NotADescription, DiagnosticId::WrongFileType},
    {DriverFault::MissingElements, DiagnosticId::MissingElement},
    {DriverFault::WrongRoot, DiagnosticId::WrongRoot},
    {DriverFault::TooManyNodes, DiagnosticId::TooManyNodes},
    {DriverFault::WrongCloser, DiagnosticId::WrongCloser},
    {DriverFault::WrongSyntax, DiagnosticId::WrongSyntax},
    {DriverFault::DuplicateLeaf, DiagnosticId::DuplicateLeaf},
    {DriverFault::NoDocument, DiagnosticId::NoDocument},
    {DriverFault::UnknownDocKey, DiagnosticId::WrongKeyword},
    {DriverFault::UnknownRowKey, DiagnosticId::WrongKeyword},
    {DriverFault::UnknownCellKey, DiagnosticId::WrongKeyword},
    {DriverFault::UnknownParaKey, DiagnosticId::WrongKeyword},
    {DriverFault::NoRow, DiagnosticId::NoRow},
    {DriverFault::NoCell, DiagnosticId::NoCell},
    {DriverFault::NoParaText, DiagnosticId::NoParaText},
    {DriverFault::NodeInParagraph, DiagnosticId::NodeInParagraph},
    {DriverFault::WrongContext, DiagnosticId::WrongContext},
    {DriverFault::WrongColor, DiagnosticId::WrongColor},
    {DriverFault::WrongBorder, DiagnosticId::WrongBorder},
    {DriverFault::WrongAlignment, DiagnosticId::WrongAlignment},
    {DriverFault::NotANumber, DiagnosticId::NotANumber},
    {DriverFault::Overflow, DiagnosticId::Overflow},
    {DriverFault::TakenKey, DiagnosticId::TakenKey},
    {DriverFault::WrongValue, DiagnosticId::WrongValue},
    {DriverFault::WrongPlace, DiagnosticId::WrongPlace},
    {DriverFault::UnclosedValue, DiagnosticId::UnclosedValue},
    {DriverFault::WrongPicture, DiagnosticId::WrongPicture},
    {DriverFault::UndefinedStyle, DiagnosticId::UndefinedStyle},
    {DriverFault::Unencodable, DiagnosticId::UnencodableValue},
};

/// `noun` says what the names are names of.
Hint nameHint(const std::string& value, const std::vector<std::string_view>& names,
              std::string_view noun) {
    if (value.empty()) {
        return "the value is missing; write none for no " + std::string(noun);
    }
    if (const std::string_view bare = withoutQuotes(value); bare.size() < value.size()) {
        return spellingHint(lowerCase(bare), names);
    }
    const std::string word = lowerCase(value);
    for (const auto& [other, meant] : otherValueWords) {
        if (word == other) {
            for (const std::string_view name : names) {
                if (name == meant) {
                    const bool isSpelling =
                        std::find(std::begin(otherSpellings), std::end(otherSpellings), other) !=
                        std::end(otherSpellings);
                    Hint hint("did you mean " + std::string(meant) + "?");
                    if (isSpelling) {
                        hint.replacement = std::string(meant);
                    }
                    return hint;
                }
            }
        }
    }
    return spellingHint(value, names);
}

Hint hintOr(const Hint& first, const Hint& otherwise) {
    return first.empty() ? otherwise : first;
}

bool isMisplaced(DriverFault fault) {
    return fault == DriverFault::NodeInParagraph || fault == DriverFault::WrongContext;
}

/// For a length such as "3,5cm".
Hint decimalCommaHint(std::string_view text) {
    std::string length(text);
    const std::size_t comma = length.find(',');
    if (comma == std::string::npos) {
        return {};
    }
    length[comma] = '.';
    try {
        lengthOf(length);
    } catch (const RtfError&) {
        return {};
    }
    return {"write the decimal sign as a point: " + length, length};
}

StyleKind styleKindOf(const Leaf& leaf) {
    return leaf.key.known == DescriptionKey::CellStyle ? StyleKind::Cell : StyleKind::Paragraph;
}

}  // namespace

DiagnosticId diagnosticOf(DriverFault fault) {
    const auto* const found =
        std::find_if(std::begin(diagnosticsOfFaults), std::end(diagnosticsOfFaults),
                     [=](const auto& entry) { return entry.first == fault; });
    return found == std::end(diagnosticsOfFaults) ? DiagnosticId::Rejected : found->second;
}

void ViolationReport::operator()(const Violation& violation) const {
    if (!violation.leaf) {
        reportNode(violation);
        return;
    }
    if (violation.fault == DriverFault::UndefinedStyle &&
        !styles_->lacks(styleKindOf(*violation.leaf), violation.leaf->valueText())) {
        // The error is in the stylesheet.
        return;
    }
    if (!std::exchange(violation.leaf->isFaulty, true)) {
        Hint hint = hintFor(violation);
        if (violation.leaf->isFilled(violation.part)) {
            // The value is to be replaced in the data.
            hint.replacement.reset();
        }
        engine_.reportText(diagnosticOf(violation.fault),
                           source_.placeOf(violation.leaf->written(violation.part)),
                           violation.error.description, std::move(hint));
    }
}

void ViolationReport::reportNode(const Violation& violation) const {
    // A node in a paragraph breaks two rules with one mistake.
    const bool isRepeated =
        violation.fault == DriverFault::WrongContext && violation.kind == NodeKind::Para;
    const bool isMeant = violation.fault == DriverFault::NoParaText && meansText(*violation.node);
    if (!isRepeated && !isMeant) {
        engine_.reportText(diagnosticOf(violation.fault), source_.placeOf(violation.part),
                           violation.error.description);
    }
    violation.node->isFaulty = violation.node->isFaulty || isMisplaced(violation.fault);
}

/// True when an unknown key was most likely meant to be para-text.
bool ViolationReport::meansText(const DescriptionNode& node) const {
    constexpr std::string_view forms[] = {"para-text", "pt", "text"};
    const KeySet known = vocabulary_.keySetOf(NodeKind::Para);
    const auto leaves = node.leaves();
    return std::any_of(leaves.begin(), leaves.end(), [&](const Leaf& leaf) {
        return !contains(known, leaf.key.known) && !nearestWord(leaf.writtenKey, forms).empty();
    });
}

Hint ViolationReport::hintFor(const Violation& violation) const {
    const Leaf& leaf = *violation.leaf;
    switch (diagnosticOf(violation.fault)) {
        case DiagnosticId::WrongKeyword:
            return keyHint(violation);
        case DiagnosticId::WrongColor:
            return hintOr(colorValueHint(leaf.valueText(), vocabulary_),
                          nameHint(leaf.valueText(), vocabulary_.colorNames(), "color"));
        case DiagnosticId::WrongBorder:
            return hintOr(borderValueHint(leaf.valueText(), vocabulary_),
                          nameHint(leaf.valueText(), vocabulary_.borderNames(), "border"));
        case DiagnosticId::WrongAlignment:
            return nameHint(leaf.valueText(), vocabulary_.alignmentNames(), "alignment");
        case DiagnosticId::NotANumber:
            return numberHint(leaf.key.name, leaf.text);
        case DiagnosticId::TakenKey:
            return takenKeyHint(violation);
        case DiagnosticId::WrongValue:
            return decimalCommaHint(leaf.text);
        case DiagnosticId::UndefinedStyle:
            return styles_->hintFor(styleKindOf(leaf), leaf.valueText());
        case DiagnosticId::UnencodableValue:
            return leaf.key.known == DescriptionKey::ParaText
                       ? "this is the name of an inline style; write \\'3c for a literal <"
                       : "";
        default:
            return {};
    }
}

Hint ViolationReport::keyHint(const Violation& violation) const {
    const NodeKind kind = violation.kind;
    const std::string_view written = violation.leaf->writtenKey;
    const std::string lower = lowerCase(written);
    if (lower != written && vocabulary_.isKeyOf(kind, vocabulary_.expand(lower))) {
        return {"write keys in lower case: " + lower, lower};
    }
    const Vocabulary& extended = extendedVocabulary();
    if (extended.isKeyOf(kind, extended.expand(written))) {
        return "this is a key of the extended language; begin the file with the line ; quorvane 2";
    }
    if (Hint hint = textFormatHint(kind, written, violation.leaf->text); !hint.empty()) {
        return hint;
    }
    for (const NodeKind other : nodeKinds) {
        if (contains(vocabulary_.keySetOf(other), violation.leaf->key.known)) {
            return "this is a key of a " + std::string(nodeNoun(other)) + ", not of a " +
                   std::string(nodeNoun(kind));
        }
    }
    return nearKeyHint(kind, written, vocabulary_);
}

Hint ViolationReport::takenKeyHint(const Violation& violation) const {
    if (!violation.node) {
        return {};
    }
    return "the " + std::string(nodeNoun(violation.node->kind)) + " on line " +
           std::to_string(violation.node->line) + " has the key " + violation.leaf->valueText();
}

}  // namespace quorvane
