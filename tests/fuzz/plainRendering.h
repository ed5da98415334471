#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "cli/RenderOptions.h"
#include "cli/sourceFile.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/engine/withoutIgnored.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/diagnostics/textFile.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/rtf/unicodeWords.h"
#include "tests/fuzz/documentChecks.h"
#include "tests/fuzz/plainAnalysis.h"

// What a run of `render` comes to as the command's rules state it: every description by itself,
// analyzed as `plainAnalysis.h` does it, and refused for what the check finds.

namespace quorvane::plain {

/// The files of a folder by their names, and those in folders in it by their paths.
using Files = std::map<std::string, std::string>;

/// What is reported about an error: the file, the line and the number, and what went wrong where
/// that is known beforehand.
inline std::string errorLine(const std::string& file, const ErrorFacts& error) {
    return file + ":" + std::to_string(error.line) + ": " + std::to_string(error.number) + " " +
           error.description + "\n";
}

/// A run over a.rtfspec and b.rtfspec with style.rtfss, which are all there, as the folder "out"
/// is.
class Rendering {
public:
    Rendering(const cli::RenderOptions& options, const Files& inputs)
        : files(inputs), options_(options) {
        isRefused = wouldBeRefused();
        if (isRefused) {
            return;
        }
        passesStyleSheet_ = passStyleSheet(inputs);
        for (const std::string& description : options.descriptions) {
            render(description, inputs);
        }
    }

    /// Whether a run is one of those that are modeled here. In files in UTF-8 they have the
    /// characters of Windows-1252 only.
    static bool covers(const cli::RenderOptions& options, const Files& inputs) {
        static const std::set<std::string> descriptions = {"a.rtfspec", "b.rtfspec"};
        static const std::set<std::string> outputs = {"a.rtf",     "b.rtf",      "c.rtf",
                                                      "out/c.rtf", "a.rtfspec",  "b.rtfspec",
                                                      "c.rtfspec", "style.rtfss"};
        return std::all_of(options.descriptions.begin(), options.descriptions.end(),
                           [](const auto& name) { return descriptions.contains(name); }) &&
               !options.data && options.styleSheet.value_or("style.rtfss") == "style.rtfss" &&
               (!options.output || outputs.contains(*options.output)) &&
               options.outputFolder.value_or("out") == "out" &&
               std::all_of(inputs.begin(), inputs.end(), [&](const auto& input) {
                   const TextEncoding encoding = encodingOf(input.second, options.encoding);
                   // Other rules hold for the extended language.
                   return !isMarkedExtended(input.second) &&
                          (!isUtf8(encoding) ||
                           !findBeyondCodePage1252(decodedText(input.second, encoding)));
               });
    }

    /// The command does not begin: nothing is reported about any file, and none is changed.
    bool isRefused = false;
    int status = 0;
    /// A line for each error, in their order.
    std::string reported;
    /// All that is there afterwards.
    Files files;

private:
    std::string outputOf(const std::string& description) const {
        const std::string beside = description.substr(0, description.find('.')) + ".rtf";
        return options_.output         ? *options_.output
               : options_.outputFolder ? *options_.outputFolder + "/" + beside
                                       : beside;
    }

    /// Two documents would go to one file, or one would take the place of what is read, or of any
    /// description or stylesheet.
    bool wouldBeRefused() const {
        std::set<std::string> taken(options_.descriptions.begin(), options_.descriptions.end());
        if (options_.styleSheet) {
            taken.insert(*options_.styleSheet);
        }
        return std::any_of(options_.descriptions.begin(), options_.descriptions.end(),
                           [&](const auto& name) {
                               const std::string output = outputOf(name);
                               return !taken.insert(output).second ||
                                      (files.contains(output) && cli::languageOfSourceFile(output));
                           });
    }

    /// Reports the diagnostics for which the check refuses a file in one line.
    void refuse(const std::string& file, const std::vector<Diagnostic>& diagnostics,
                bool hasErrors) {
        static const std::set<std::string_view> corrupting = {"unbalanced-brace", "lone-backslash"};
        const bool failsOnWarnings = options_.failOn == cli::FailOn::Warning;
        std::vector<Diagnostic> reasons;
        for (const Diagnostic& diagnostic : diagnostics) {
            const bool isError = diagnostic.severity == Severity::Error;
            const bool corrupts =
                options_.check && corrupting.contains(diagnosticRule(diagnostic.id).identifier);
            if (isError ? failsOnWarnings && !hasErrors : failsOnWarnings || corrupts) {
                reasons.push_back(diagnostic);
            }
        }
        if (reasons.empty()) {
            return;
        }
        report(file, lineFor(reasons), 1);
    }

    /// The first of several diagnostics, and how many there are.
    static ErrorFacts lineFor(const std::vector<Diagnostic>& reasons) {
        const Diagnostic& first = reasons.front();
        std::string text = first.message;
        text += " [" + std::string(diagnosticRule(first.id).identifier) + "]";
        if (reasons.size() > 1) {
            text += " (and " + std::to_string(reasons.size() - 1) + " more)";
        }
        return {5, text, "", static_cast<int>(first.place.line)};
    }

    TextEncoding encodingOfFile(const std::string& name, const Files& inputs) const {
        return encodingOf(inputs.at(name), options_.encoding);
    }

    /// The text of a file as the library gets it: a stylesheet in UTF-8 by way of Windows-1252.
    std::string textOf(const std::string& name, const Files& inputs) const {
        return utf8FromCodePage1252(
            codePage1252FromUtf8(decodedText(inputs.at(name), encodingOfFile(name, inputs))));
    }

    bool isChecked() const { return options_.check || options_.failOn == cli::FailOn::Warning; }

    /// Whether the check lets the stylesheet pass, which it is asked once.
    bool passStyleSheet(const Files& inputs) {
        if (!options_.styleSheet) {
            return true;
        }
        const TextEncoding encoding = encodingOfFile("style.rtfss", inputs);
        if (const auto unreadable = findUnreadableText(inputs.at("style.rtfss"), encoding)) {
            report("style.rtfss", lineFor({*unreadable}), 1);
            return false;
        }
        if (!isChecked()) {
            return true;
        }
        const std::string sheet = textOf("style.rtfss", inputs);
        const std::string before = reported;
        refuse("style.rtfss",
               withoutIgnored(checkStyleSheet(sheet, encoding), sheet, CheckedLanguage::StyleSheet),
               !StyleSheet(sheet).isLoaded());
        return reported == before;
    }

    void report(const std::string& file, const ErrorFacts& error, int worth) {
        reported += errorLine(file, error);
        status = std::max(status, worth);
    }

    void render(const std::string& description, const Files& inputs) {
        const Ref<CRtfDoc> original = CRtfDoc::create();
        StyleSheet styles;
        bool isWell = passesStyleSheet_;
        if (options_.styleSheet) {
            const std::string sheet = textOf("style.rtfss", inputs);
            styles = StyleSheet(sheet);
            errorOfCall([&] { original->LoadStyleSheetFromMemmory(sheet); });
            if (!styles.isLoaded()) {
                report("style.rtfss",
                       driverErrorOf(eWrongFileType, "style.rtfss isn't a valid stylesheet.", ""),
                       1);
                isWell = false;
            }
        }
        const TextEncoding encoding = encodingOfFile(description, inputs);
        const auto unreadable = findUnreadableText(inputs.at(description), encoding);
        if (unreadable && unreadable->id == DiagnosticId::NotUtf8) {
            report(description, lineFor({*unreadable}), 1);
            return;
        }
        Analysis analysis(textOf(description, inputs), options_.check, *original, styles);
        for (const ErrorFacts& error : analysis.errors) {
            report(description, error, 1);
            isWell = false;
        }
        if (isChecked()) {
            const std::string before = reported;
            check(description, inputs, !analysis.errors.empty());
            isWell = isWell && reported == before;
        }
        if (isWell) {
            write(outputOf(description), *analysis.document);
        } else if (options_.keepGoing && analysis.document->rows->rows.entries.empty()) {
            report(description,
                   {5, "Nothing could be built; " + outputOf(description) + " was not written.", "",
                    0},
                   1);
        } else if (options_.keepGoing) {
            write(outputOf(description), *analysis.document);
        }
    }

    void check(const std::string& description, const Files& inputs, bool hasErrors) {
        std::optional<KnownStyles> known;
        if (options_.styleSheet) {
            known.emplace(textOf("style.rtfss", inputs));
            if (!openingOfDescription(known->text()).empty()) {
                known.reset();
            }
        }
        const std::string text = textOf(description, inputs);
        refuse(description,
               withoutIgnored(checkDescription(text, known ? &*known : nullptr,
                                               encodingOfFile(description, inputs)),
                              text, CheckedLanguage::Description),
               hasErrors);
    }

    void write(const std::string& output, Document& document) {
        // A document in which nothing was ever done has no text.
        if (!document.styles.isLoaded() && !document.changed) {
            files[output] = document.contents;
            return;
        }
        if (!document.refresh()) {
            report(output, {6, "Overflow", "", 0}, 2);
            return;
        }
        files[output] = codePage1252FromUtf8(document.contents);
    }

    const cli::RenderOptions& options_;
    bool passesStyleSheet_ = true;
};

}  // namespace quorvane::plain
