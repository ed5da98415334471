#include "cli/RenderReport.h"

#include <algorithm>
#include <utility>

#include "cli/locatedErrors.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/engine/withoutIgnored.h"
#include "quorvane/diagnostics/fileNameCheck.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/diagnostics/textFile.h"
#include "quorvane/rtf/unicodeWords.h"

namespace quorvane::cli {

namespace {

using Diagnostics = std::vector<Diagnostic>;

bool isError(const Diagnostic& diagnostic) {
    return diagnostic.severity == Severity::Error;
}

bool hasErrors(const Diagnostics& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), isError);
}

std::set<DiagnosticId> kindsOfErrors(const Diagnostics& diagnostics) {
    std::set<DiagnosticId> kinds;
    for (const Diagnostic& diagnostic : diagnostics) {
        if (isError(diagnostic)) {
            kinds.insert(diagnostic.id);
        }
    }
    return kinds;
}

/// The errors that the library would not report: it would read and write other characters.
Diagnostics unencodableStyles(const Diagnostics& diagnostics) {
    Diagnostics unencodable;
    std::copy_if(diagnostics.begin(), diagnostics.end(), std::back_inserter(unencodable),
                 [](const Diagnostic& diagnostic) {
                     return diagnostic.id == DiagnosticId::UnencodableStyle;
                 });
    return unencodable;
}

RtfError refusalFor(std::string text) {
    return {static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall), std::move(text)};
}

RtfError failureOfWarnings(std::size_t count) {
    return refusalFor(std::to_string(count) + (count == 1 ? " warning" : " warnings") +
                      ", with --fail-on=warning");
}

/// The refusal of a file as one error: the first diagnostic, and how many there are.
RtfError refusal(const Diagnostics& reasons) {
    const Diagnostic& first = reasons.front();
    std::string text =
        first.message + " [" + std::string(diagnosticRule(first.id).identifier) + "]";
    if (reasons.size() > 1) {
        text += " (and " + std::to_string(reasons.size() - 1) + " more)";
    }
    RtfError error = refusalFor(std::move(text));
    error.line = static_cast<int>(first.place.line);
    return error;
}

}  // namespace

RenderReport::RenderReport(const RenderReport& other, const RenderReceivers& receivers)
    : options_(other.options_), receivers_(receivers) {
    if (other.styleSheet_) {
        const StyleSheet& sheet = *other.styleSheet_;
        // Its styles are looked up again: which of them are used is known for each report apart.
        styleSheet_ = {.name = sheet.name,
                       .bytes = sheet.bytes,
                       .encoding = sheet.encoding,
                       .diagnostics = sheet.diagnostics,
                       .isReported = sheet.isReported};
    }
}

bool RenderReport::passStyleSheet(const std::string& name, const std::string& bytes) {
    const TextEncoding encoding = encodingOf(bytes, options_.encoding);
    styleSheet_.emplace(StyleSheet{name, bytes, encoding});
    const FileWindow window = windowOf(bytes, encoding);
    if (const std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        styleSheet_->diagnostics = Diagnostics{*unreadable};
        styleSheet_->isReported = true;
        refuseUnreadable(name, *unreadable, window);
        return false;
    }
    const bool mayBeUnencodable = isUtf8(encoding) && findBeyondCodePage1252(bytes);
    if (!isChecked() && !mayBeUnencodable) {
        return true;
    }
    const Diagnostics& diagnostics = styleSheetDiagnostics();
    const Diagnostics unencodable = unencodableStyles(diagnostics);
    const bool isWrong = hasErrors(diagnostics);
    if (receivers_.locate) {
        styleSheet_->isReported = isWrong && (isChecked() || !unencodable.empty());
        locate(name, window, diagnostics,
               unencodable.empty() ? std::set<DiagnosticId>() : kindsOfErrors(diagnostics));
    } else if (!unencodable.empty()) {
        receivers_.report({ErrorKind::Check, name, refusal(unencodable)});
    }
    return pass(name, diagnostics, isWrong) && unencodable.empty();
}

bool RenderReport::passBytes(const std::string& name, std::string_view bytes,
                             TextEncoding encoding) {
    const std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding);
    // For programs, the events say what the library makes of what is not a text.
    if (!unreadable || (!receivers_.locate && unreadable->id == DiagnosticId::NotATextFile)) {
        return true;
    }
    refuseUnreadable(name, *unreadable, windowOf(bytes, encoding));
    return false;
}

void RenderReport::refuseUnreadable(const std::string& file, const Diagnostic& diagnostic,
                                    const FileWindow& window) {
    if (receivers_.locate) {
        // No part of what is not a text can be shown.
        receivers_.locate(file, diagnostic,
                          diagnostic.id == DiagnosticId::NotATextFile
                              ? DiagnosticExcerpt()
                              : excerptAt(diagnostic.place, window));
    } else {
        receivers_.report({ErrorKind::Check, file, refusal({diagnostic})});
    }
}

void RenderReport::refuse(const std::string& file, const FileWindow& window,
                          const Diagnostics& errors) {
    for (const Diagnostic& error : errors) {
        if (receivers_.locate) {
            receivers_.locate(file, error, excerptAt(error.place, window));
        } else {
            receivers_.report({ErrorKind::Check, file, refusal({error})});
        }
    }
}

void RenderReport::refuseStyleSheet(const RtfError& error) {
    if (receivers_.refuseStyleSheet) {
        receivers_.refuseStyleSheet(error);
        return;
    }
    const bool isLocated = receivers_.locate && hasErrors(styleSheetDiagnostics());
    if (!isLocated) {
        receivers_.report({ErrorKind::Raised, styleSheet_->name, error});
    } else if (!std::exchange(styleSheet_->isReported, true)) {
        locate(styleSheet_->name, windowOf(styleSheet_->bytes, styleSheet_->encoding),
               styleSheetDiagnostics(), kindsOfErrors(styleSheetDiagnostics()));
    }
}

void RenderReport::event(const std::string& file, const RtfError& error) {
    errors_.push_back(error);
    if (!receivers_.locate) {
        receivers_.report({ErrorKind::Event, file, error});
    }
}

bool RenderReport::passDescription(const std::string& name, const std::string& path,
                                   const std::string& text, TextEncoding encoding,
                                   const CheckOfDescription& check) {
    const std::vector<RtfError> errors = std::exchange(errors_, {});
    if (!isChecked() && (errors.empty() || !receivers_.locate)) {
        return true;
    }
    const std::string bytes = encodedText(text, encoding);
    Diagnostics diagnostics =
        withoutIgnored(check(knownStyles()), text, CheckedLanguage::Description);
    if (options_.failOn == FailOn::Warning) {
        const Diagnostics named =
            findNameMismatch(bytes, CheckedLanguage::Description, path, encoding);
        diagnostics.insert(diagnostics.begin(), named.begin(), named.end());
    }
    if (receivers_.locate) {
        const LocatedErrors mistakes = locateErrors(errors, diagnostics);
        // With checks, the analysis and the check find the same mistakes, if not on the same lines.
        if (!options_.check || !hasErrors(diagnostics)) {
            for (const RtfError& error : mistakes.others) {
                receivers_.report({ErrorKind::Event, name, error});
            }
        }
        locate(name, windowOf(bytes, encoding), diagnostics, mistakes.kinds);
    }
    return pass(name, diagnostics, !errors.empty());
}

bool RenderReport::corrupts(const Diagnostic& diagnostic) const {
    return options_.check && diagnosticRule(diagnostic.id).corruptsDocument;
}

const Diagnostics& RenderReport::styleSheetDiagnostics() {
    if (!styleSheet_->diagnostics) {
        const TextEncoding encoding = styleSheet_->encoding;
        const std::string text = decodedText(styleSheet_->bytes, encoding);
        const Diagnostics all = checkStyleSheet(text, encoding);
        Diagnostics diagnostics = withoutIgnored(all, text, CheckedLanguage::StyleSheet);
        if (unencodableStyles(diagnostics).empty()) {
            // What a document would lose cannot be ignored.
            const Diagnostics unencodable = unencodableStyles(all);
            diagnostics.insert(diagnostics.end(), unencodable.begin(), unencodable.end());
            sortByPlace(diagnostics);
        }
        styleSheet_->diagnostics = std::move(diagnostics);
    }
    return *styleSheet_->diagnostics;
}

/// The styles for the check of descriptions; null without a stylesheet.
KnownStyles* RenderReport::knownStyles() {
    if (!styleSheet_) {
        return nullptr;
    }
    if (!styleSheet_->styles) {
        const TextEncoding encoding = styleSheet_->encoding;
        styleSheet_->styles.emplace(decodedText(styleSheet_->bytes, encoding), encoding);
    }
    // What is given as the stylesheet may be a description, which would lack every style.
    return openingOfDescription(styleSheet_->styles->text()).empty() ? &*styleSheet_->styles
                                                                     : nullptr;
}

/// Hands on the diagnostics for which a file is refused: errors of these kinds, or all where the
/// check decides, and the warnings that refuse it.
void RenderReport::locate(const std::string& file, const FileWindow& window,
                          const Diagnostics& diagnostics, const std::set<DiagnosticId>& kinds) {
    for (Diagnostic diagnostic : diagnostics) {
        const bool isShown = isError(diagnostic)
                                 ? isChecked() || kinds.contains(diagnostic.id)
                                 : corrupts(diagnostic) || options_.failOn == FailOn::Warning;
        if (corrupts(diagnostic)) {
            diagnostic.severity = Severity::Error;
        }
        if (isShown) {
            receivers_.locate(file, diagnostic, excerptAt(diagnostic.place, window));
        }
    }
}

/// Whether the check lets a file pass; `hasOthers` says whether the library reports errors of it
/// too. Reports a file that does not pass.
bool RenderReport::pass(const std::string& file, const Diagnostics& diagnostics, bool hasOthers) {
    const bool refusesWarnings = options_.failOn == FailOn::Warning;
    Diagnostics reasons;
    bool areWarnings = true;
    for (const Diagnostic& diagnostic : diagnostics) {
        if (isError(diagnostic) ? refusesWarnings && !hasOthers
                                : refusesWarnings || corrupts(diagnostic)) {
            reasons.push_back(diagnostic);
            areWarnings = areWarnings && !isError(diagnostic) && !corrupts(diagnostic);
        }
    }
    if (reasons.empty()) {
        return true;
    }
    if (!receivers_.locate) {
        receivers_.report({ErrorKind::Check, file, refusal(reasons)});
    } else if (areWarnings && !hasOthers) {
        receivers_.report({ErrorKind::Check, file, failureOfWarnings(reasons.size())});
    }
    return false;
}

}  // namespace quorvane::cli
