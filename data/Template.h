#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "data/TemplateError.h"
#include "data/TemplateTag.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/support/SourceLine.h"

namespace quorvane::data {

/// Of the files of partials.
inline constexpr std::string_view partialExtension = ".rtfpart";

/// What a value is put into, which decides what it can hold.
enum class ValueUse : std::uint8_t {
    /// A text that is shown: anything that a document can show.
    Text,
    /// Control words: `{{{name}}}` puts in control words, `{{name}}` a group that shows the value.
    Rtf,
    /// Any other value, on one line.
    Word,
    /// A part of the name of a file: any text, as it is.
    Name,
};

/// A text that a template is made of: its own or that of a partial.
struct TemplateSource {
    /// The name of a partial; empty for the template.
    std::string name = {};
    std::string text = {};
    /// Of the file.
    TextEncoding encoding = TextEncoding::Utf8;
    /// The tag in the template that takes the partial in, maybe through others.
    std::string_view tag = {};
};

/// A step of filling a template.
struct TemplateStep {
    enum class Kind : std::uint8_t {
        /// A line as it is written.
        Line,
        /// A line with a key whose value is filled with the steps up to `LeafEnd`.
        LeafBegin,
        LeafEnd,
        Text,
        Value,
        /// What is between it and its end is repeated, or left out.
        Section,
        SectionEnd,
    };

    Kind kind{};
    /// Of `Value`.
    ValueUse use{};
    /// Of `LeafBegin`: the value goes on over several lines.
    bool isBlock = false;
    /// Of `Line` and `LeafBegin`.
    SourceLine line = {};
    /// Of `LeafBegin` the value as it is written, of `Text` the text.
    std::string_view text = {};
    /// Of `Section` the step with its end, and the other way round.
    std::size_t other = 0;
    /// Of `Value` and `Section`: the index of the query.
    std::size_t query = 0;
};

/// What a tag asks for, and where it stands.
struct TemplateQuery {
    TagQuery query;
    std::string_view tag;
    std::size_t source = 0;
    /// The key whose value the tag stands in; empty for a section of lines.
    std::string_view key;
    bool isRaw = false;
    bool isInverted = false;
};

/// A description with tags, ready to be filled. Steps view the texts: it can be moved, not copied.
struct Template {
    Template() = default;
    Template(Template&&) = default;
    Template& operator=(Template&&) = default;
    Template(const Template&) = delete;
    Template& operator=(const Template&) = delete;
    ~Template() = default;

    /// The template's own text first.
    std::deque<TemplateSource> sources;
    std::vector<TemplateStep> steps;
    std::vector<TemplateQuery> queries;
};

/// Reads the bytes of a partial by its name. Raises an `RtfError` when there is none.
using PartialSource = std::function<std::string(const std::string& name)>;

/// Reads a template, a description of the extended language: the text of a file in that encoding,
/// which is one of UTF-8. Reports everything that is
/// wrong with its tags and partials; with errors the result can be used to look for more of them
/// only.
Template compileTemplate(std::string text, TextEncoding encoding, const PartialSource& partials,
                         std::vector<TemplateError>& errors);

/// Reads the name of a file with tags. Filled, it is one line, whose value is the name with the
/// values as they are.
Template compileFileName(std::string name, std::vector<TemplateError>& errors);

/// True for a description of the extended language that was most likely written as a template: a
/// line is a tag, or a text holds one.
bool looksLikeTemplate(std::string_view text);

}  // namespace quorvane::data
