#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/DataValue.h"
#include "data/Template.h"
#include "data/TemplateError.h"
#include "data/locale.h"
#include "quorvane/support/FilledValue.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane::data {

/// Fills a template with one record after the other. It keeps its memory for the next one.
class TemplateFilling {
public:
    /// The template must outlive the filling, and have no errors.
    TemplateFilling(const Template& source, Locale locale);
    TemplateFilling(const TemplateFilling&) = delete;
    TemplateFilling& operator=(const TemplateFilling&) = delete;

    /// The lines of the description that the template and the record make. They are valid until the
    /// template is filled again, and view the texts of the template. Every tag that cannot be
    /// filled is reported, once; its key then has a value that is not known. Outside lists,
    /// `@index` is the number of the record among others, from 1, if it has one.
    const std::vector<SourceLine>& fill(const DataValue& record, std::vector<TemplateError>& errors,
                                        std::size_t number = 0);

    /// The lines without data: each section once, and values that are not known.
    const std::vector<SourceLine>& fillUnknown();

private:
    /// What a section is about, the record first.
    struct Context {
        const DataValue* value = nullptr;
        const TemplateStep* section = nullptr;
        /// Of a list, the item; the value is its. A record with a number is an item of a list of
        /// which nothing else is known.
        const DataValue* list = nullptr;
        std::size_t item = 0;
    };

    /// A value that was looked for.
    struct Found {
        const DataValue* value = nullptr;
        /// Why there is none; empty for a name that is not in the data.
        std::string reason = {};
        /// Where the name was looked for, and which one it was.
        const DataValue* in = nullptr;
        std::string_view name = {};
    };

    /// A value that is filled in. Texts and ranges still move.
    struct Pending {
        std::size_t line;
        std::size_t text;
        std::size_t textEnd = 0;
        std::size_t range;
        std::size_t rangeEnd = 0;
        std::string_view written;
        bool isBlock = false;
        bool isUnknown = false;
    };

    void begin();
    void run();
    std::size_t runStep(std::size_t index);
    std::size_t enter(std::size_t index, const TemplateStep& step);
    std::size_t leave(std::size_t index, const TemplateStep& step);
    std::size_t refuseSize(const TemplateQuery& query);
    void addLine(const TemplateStep& step);
    void beginLeaf(const TemplateStep& step);
    void endLeaf();
    void addValue(const TemplateStep& step);
    bool refuses(std::string_view text, const TemplateStep& step, const TemplateQuery& query);
    void addText(std::string_view text, const TemplateStep& step, const TemplateQuery& query);
    bool makeText(const TemplateQuery& query, std::string& text);
    bool applyFilters(const TemplateQuery& query, const DataValue* value, std::string& text);
    Found find(const TemplateQuery& query);
    Found findNames(const TagPath& path);
    const Context* objectContext(std::size_t outward) const;
    const Context* listContext(std::size_t outward) const;
    const DataValue* itemValue(const TagPath& path, const Context& context);
    bool isFirstReport(const TemplateQuery& query);
    void reportMissing(const TemplateQuery& query, const Found& found);
    void reportWrong(const TemplateQuery& query, std::string message, std::string hint = {});
    std::string shownPath(const TemplateQuery& query) const;
    std::string missingHint(const TemplateQuery& query, const Found& found) const;
    const std::vector<SourceLine>& finish();

    const Template& template_;
    Locale locale_;
    bool isDataKnown_ = true;
    std::vector<TemplateError>* errors_ = nullptr;
    std::vector<bool> areReported_;
    std::vector<Context> contexts_;
    DataValue number_;
    std::vector<SourceLine> lines_;
    std::vector<Pending> pending_;
    std::string texts_;
    std::vector<TextRange> ranges_;
    // How many steps the repetitions of sections were.
    std::size_t repeatedSteps_ = 0;
    std::vector<FilledValue> values_;
    std::string text_;
};

}  // namespace quorvane::data
