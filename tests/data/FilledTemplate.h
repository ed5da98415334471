#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "data/Template.h"
#include "data/TemplateFilling.h"
#include "data/json.h"
#include "data/templateCheck.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/parseFilled.h"

namespace quorvane::data {

using Partials = std::map<std::string, std::string>;

inline PartialSource sourceOf(const Partials& partials) {
    return [partials](const std::string& name) {
        const auto found = partials.find(name);
        if (found == partials.end()) {
            raise(RunTimeError::FileNotFound);
        }
        return found->second;
    };
}

inline DataValue jsonValue(const std::string& json) {
    JsonError error;
    const std::optional<DataValue> value = readJson(json, error);
    EXPECT_TRUE(value) << json << ": " << error.message;
    return value.value_or(DataValue());
}

/// A template and what data makes of it.
class FilledTemplate {
public:
    FilledTemplate(const std::string& text, const std::string& json, const Partials& partials = {},
                   const Locale& locale = {})
        : source(compileTemplate(text, TextEncoding::Utf8, sourceOf(partials), templateErrors)),
          record(jsonValue(json)),
          filling(source, locale) {
        if (templateErrors.empty()) {
            lines = &filling.fill(record, templateErrors);
        }
    }
    FilledTemplate(const FilledTemplate&) = delete;
    FilledTemplate& operator=(const FilledTemplate&) = delete;

    /// What is wrong, as "line:column: message (hint)", the name of a partial before it.
    std::vector<std::string> errors() const {
        std::vector<std::string> shown;
        for (const auto& [index, diagnostic] : templateDiagnostics(source, templateErrors)) {
            const std::string file = source.sources[index].name;
            shown.push_back((file.empty() ? "" : file + ":") +
                            std::to_string(diagnostic.place.line) + ":" +
                            std::to_string(diagnostic.place.column) + ": " + diagnostic.message +
                            (diagnostic.hint.empty() ? "" : " (" + diagnostic.hint + ")"));
        }
        return shown;
    }

    /// The lines with the values that they are filled with.
    std::vector<std::string> shownLines() const {
        std::vector<std::string> shown;
        for (const SourceLine& line : *lines) {
            if (line.filled) {
                const DescriptionLine parts = descriptionLine(line, extendedDialect());
                shown.push_back("(" + std::string(parts.key) + "=" + std::string(parts.value) +
                                ")");
            } else {
                shown.emplace_back(line.text);
            }
        }
        return shown;
    }

    std::vector<TemplateError> templateErrors;
    Template source;
    DataValue record;
    TemplateFilling filling;
    const std::vector<SourceLine>* lines = nullptr;
};

/// A document with a paragraph for each line of the template between the first and the last, which
/// are written with "|" between them.
inline std::string inParagraph(const std::string& leaf) {
    return "; quorvane 2\n(doc\n(r\n(c\n(p\n" + leaf + "\np)\nc)\nr)\ndoc)\n";
}

/// The errors of a text in a paragraph, whose tag stands on line 6.
inline std::vector<std::string> errorsIn(const std::string& text, const std::string& json,
                                         const Partials& partials = {}) {
    return FilledTemplate(inParagraph("(pt=" + text + ")"), json, partials).errors();
}

/// What a text shows with the data.
inline std::string shown(const std::string& text, const std::string& json,
                         const Locale& locale = {}) {
    const FilledTemplate filled(inParagraph("(pt=" + text + ")"), json, {}, locale);
    EXPECT_EQ(filled.errors(), std::vector<std::string>()) << text << " with " << json;
    for (const SourceLine& line : filled.lines ? *filled.lines : std::vector<SourceLine>()) {
        if (line.filled) {
            return std::string(line.filled->text);
        }
        if (line.text.starts_with("(pt=")) {
            return std::string(line.text.substr(4, line.text.size() - 5));
        }
    }
    return "no text";
}

/// The RTF of a paragraph's text with the data; errors of the driver instead, if there are any.
inline std::string rtfOf(const std::string& leaf, const std::string& json,
                         const std::string& styleSheet = {}) {
    const FilledTemplate filled(inParagraph(leaf), json);
    EXPECT_EQ(filled.errors(), std::vector<std::string>());
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->RtfObject()->setExtendedStyleSheets(true);
    driver->LoadStyleSheetFromMemmory(styleSheet);
    std::string errors;
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError& error) {
        errors += std::to_string(error.line) + ": " + error.description;
    });
    if (filled.lines) {
        parseFilled(*driver, *filled.lines);
    }
    driver->setNotifyErrorHandler({});
    return !errors.empty() ? errors
                           : driver->RtfObject()
                                 ->TableRows()
                                 ->Item(1)
                                 ->TableCells()
                                 ->Item(1)
                                 ->Paragraphs()
                                 ->Item(1)
                                 ->Text();
}

}  // namespace quorvane::data
