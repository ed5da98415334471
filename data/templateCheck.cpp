#include "data/templateCheck.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <tuple>
#include <utility>

#include "data/TemplateFilling.h"
#include "quorvane/diagnostics/description/FilledDescriptionCheck.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/Dialect.h"

namespace quorvane::data {

namespace {

SourceText sourceText(const Template& source, std::size_t index) {
    return SourceText(source.sources[index].text, source.sources[index].encoding);
}

SourceText sourceWithPartials(const Template& source) {
    SourceText text = sourceText(source, 0);
    for (std::size_t i = 1; i < source.sources.size(); ++i) {
        text.include(source.sources[i].text, source.sources[i].tag);
    }
    return text;
}

/// Says where something stands that is reported at the tag of a partial.
void namePartials(const Template& source, std::vector<Diagnostic>& diagnostics) {
    for (Diagnostic& diagnostic : diagnostics) {
        const auto [text, line] = diagnostic.place.included;
        if (text > 0) {
            diagnostic.message = source.sources[text].name + ", line " + std::to_string(line) +
                                 ": " + diagnostic.message;
            diagnostic.fix.reset();
        }
    }
}

/// The lines of a section are repeated, and so is what is wrong with them.
void keepFirstOfEach(std::vector<Diagnostic>& diagnostics) {
    std::map<std::tuple<std::int64_t, DiagnosticId, std::string>, bool> seen;
    std::erase_if(diagnostics, [&](const Diagnostic& diagnostic) {
        return std::exchange(seen[{diagnostic.place.offset, diagnostic.id, diagnostic.message}],
                             true);
    });
}

/// True when each section opens and closes the same nodes, so that the others do not depend on how
/// often it is shown.
bool areSectionsBalanced(const Template& source) {
    std::vector<int> depths;
    int depth = 0;
    for (const TemplateStep& step : source.steps) {
        if (step.kind == TemplateStep::Kind::Section) {
            depths.push_back(std::exchange(depth, 0));
        } else if (step.kind == TemplateStep::Kind::SectionEnd) {
            if (depth != 0) {
                return false;
            }
            depth = depths.back();
            depths.pop_back();
        } else if (step.kind == TemplateStep::Kind::Line) {
            const LineType type = descriptionLine(step.line.text, extendedDialect()).type;
            depth += type == LineType::Opener ? 1 : type == LineType::Closer ? -1 : 0;
            if (depth < 0 && !depths.empty()) {
                return false;
            }
        }
    }
    return true;
}

bool dependsOnSections(const Diagnostic& diagnostic) {
    return diagnostic.id == DiagnosticId::DuplicateLeaf || diagnostic.id == DiagnosticId::TakenKey;
}

}  // namespace

std::vector<TemplateDiagnostic> templateDiagnostics(const Template& source,
                                                    const std::vector<TemplateError>& errors) {
    std::map<std::size_t, SourceText> texts;
    std::vector<TemplateDiagnostic> diagnostics;
    for (const TemplateError& error : errors) {
        const auto text = texts.try_emplace(error.source, sourceText(source, error.source)).first;
        DiagnosticEngine engine([&](Diagnostic diagnostic) {
            diagnostics.push_back({error.source, std::move(diagnostic)});
        });
        engine.reportText(error.id, text->second.placeOf(error.part), error.message, error.hint);
    }
    std::stable_sort(diagnostics.begin(), diagnostics.end(),
                     [](const TemplateDiagnostic& a, const TemplateDiagnostic& b) {
                         return std::pair(a.source, a.diagnostic.place.offset) <
                                std::pair(b.source, b.diagnostic.place.offset);
                     });
    return diagnostics;
}

std::vector<Diagnostic> checkFilled(const Template& source, const FilledLines& lines,
                                    KnownStyles* styles, const PictureSource& pictures) {
    std::vector<Diagnostic> diagnostics =
        checkFilledDescription(sourceWithPartials(source), lines, styles, pictures);
    namePartials(source, diagnostics);
    keepFirstOfEach(diagnostics);
    return diagnostics;
}

std::vector<Diagnostic> checkUnfilled(const Template& source, KnownStyles* styles,
                                      const PictureSource& pictures) {
    if (!areSectionsBalanced(source)) {
        return {};
    }
    TemplateFilling filling(source, {});
    std::vector<Diagnostic> diagnostics = checkFilledDescription(
        sourceWithPartials(source), {filling.fillUnknown(), false}, styles, pictures);
    std::erase_if(diagnostics, dependsOnSections);
    namePartials(source, diagnostics);
    keepFirstOfEach(diagnostics);
    return diagnostics;
}

}  // namespace quorvane::data
