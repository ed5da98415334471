#include "quorvane/diagnostics/fileNameCheck.h"

#include <string>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/stylesheet/stylesheetParser.h"

namespace quorvane {

namespace {

struct Naming {
    std::string_view noun;
    std::string_view extension;
};

Naming namingOf(CheckedLanguage language) {
    switch (language) {
        case CheckedLanguage::Description:
            return {"a description", ".rtfspec"};
        case CheckedLanguage::StyleSheet:
            return {"a stylesheet", ".rtfss"};
        case CheckedLanguage::Rtf:
            break;
    }
    return {"an RTF file", ".rtf"};
}

/// The error of loading the text; empty if it loads.
std::string loadingErrorOf(std::string_view text) {
    try {
        parseStyleSheet(text, [](const StyleDefinition&) {});
        return {};
    } catch (const RtfError& error) {
        return error.description;
    }
}

}  // namespace

std::vector<Diagnostic> findNameMismatch(std::string_view bytes, CheckedLanguage language,
                                         std::string_view fileName, TextEncoding encoding) {
    const std::string name = lowerCase(fileName);
    const Naming naming = namingOf(language);
    const bool isNamedDescription = name.ends_with(".rtfspec");
    const bool isNamedStyleSheet = name.ends_with(".rtfss");
    const bool isNamedAny = isNamedDescription || isNamedStyleSheet || name.ends_with(".rtf");
    if (!isNamedAny || name.ends_with(naming.extension)) {
        return {};
    }
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    const std::string text = decodedText(std::string(bytes), encoding);
    const SourceText source(text, encoding);
    const std::string_view first = firstLineOf(text);
    const Place place = first.empty() ? Place{} : source.placeOf(first);
    std::string hint = "the file looks like " + std::string(naming.noun) +
                       "; its extension should be " + std::string(naming.extension);
    const std::string loadingError = isNamedStyleSheet ? loadingErrorOf(text) : std::string();
    if (isNamedDescription) {
        engine.report(DiagnosticId::WrongFileType, place, {}, std::move(hint));
    } else if (!loadingError.empty()) {
        engine.report(DiagnosticId::StyleSheetRejected, place, {loadingError}, std::move(hint));
    } else if (isNamedStyleSheet && language == CheckedLanguage::Description) {
        engine.report(DiagnosticId::DescriptionAsStyleSheet, place, {}, std::move(hint));
    } else {
        engine.report(DiagnosticId::WrongExtension, place,
                      {naming.noun, isNamedStyleSheet ? ".rtfss" : ".rtf"}, std::move(hint));
    }
    return diagnostics;
}

}  // namespace quorvane
