#include "data/Template.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/unclosedValueHint.h"
#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/driverErrorTable.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/driver/withoutFullStop.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane::data {

namespace {

constexpr std::size_t maxPartialDepth = 50;
// Partials that take others in many times would take memory without end.
constexpr std::size_t maxPartials = 10'000;
constexpr std::size_t maxSteps = 1'000'000;
constexpr std::size_t maxPartialBytes = std::size_t{64} * 1024 * 1024;

bool isStructure(TagKind kind) {
    return kind != TagKind::Value && kind != TagKind::Raw;
}

/// True for a line that holds nothing but tags that show nothing themselves.
bool holdsStructureOnly(std::string_view line, std::span<const TemplateTag> tags) {
    const char* at = line.data();
    const auto isBlankUpTo = [&at](const char* end) {
        return std::all_of(at, end, [](char character) { return isWhitespace(character); });
    };
    for (const TemplateTag& tag : tags) {
        if (!tag.isEnded || !isStructure(tag.kind) || !isBlankUpTo(tag.whole.data())) {
            return false;
        }
        at = tag.whole.data() + tag.whole.size();
    }
    return !tags.empty() && isBlankUpTo(line.data() + line.size());
}

bool isUnendedComment(std::string_view line, std::span<const TemplateTag> tags) {
    return tags.size() == 1 && !tags.front().isEnded && line.starts_with("{{!");
}

ValueUse useIn(DescriptionKey key) {
    constexpr KeySet texts =
        setOf({DescriptionKey::ParaText, DescriptionKey::Header, DescriptionKey::Footer});
    return contains(texts, key)         ? ValueUse::Text
           : key == DescriptionKey::Rtf ? ValueUse::Rtf
                                        : ValueUse::Word;
}

class Compiler {
public:
    Compiler(Template& result, const PartialSource& partials, std::vector<TemplateError>& errors)
        : result_(result), partials_(partials), errors_(errors) {}

    void compile(std::string text, TextEncoding encoding) {
        result_.sources.push_back({.text = std::move(text), .encoding = encoding});
        compileSource(0);
    }

    void compileFileName(std::string name) {
        result_.sources.push_back({.text = std::move(name)});
        const LeafContext leaf{"the name of a file", ValueUse::Name, true};
        add({.kind = TemplateStep::Kind::LeafBegin, .text = textOf(0)});
        compileText(textOf(0), leaf, false);
        leaveUnclosed();
        add({.kind = TemplateStep::Kind::LeafEnd});
    }

private:
    /// A section that is not closed yet.
    struct Open {
        std::size_t step;
        TemplateTag tag;
    };

    /// The key whose value is being read; none for lines.
    struct LeafContext {
        std::string_view key = {};
        ValueUse use = ValueUse::Text;
        bool isLeaf = false;
    };

    std::string_view textOf(std::size_t source) const { return result_.sources[source].text; }

    void compileSource(std::size_t source) {
        source_ = source;
        const std::string_view text = afterByteOrderMark(textOf(source));
        const std::vector<SourceLine> lines =
            PreProcessRawData(text, extendedDialect().marks.block);
        for (auto line = lines.begin(); line != lines.end(); ++line) {
            if (reportsUnclosedValue(*line)) {
                break;
            }
            const std::vector<TemplateTag> tags = tagsIn(line->text);
            if (isUnendedComment(line->text, tags)) {
                const auto end = std::find_if(line, lines.end(), [](const SourceLine& each) {
                    return each.text.ends_with("}}");
                });
                if (end == lines.end()) {
                    reportUnended(tags.front());
                    break;
                }
                line = end;
                continue;
            }
            compileLine(*line, tags);
        }
        leaveUnclosed();
    }

    /// True for a value of several lines that does not end. What its lines hold is not what it
    /// seems.
    bool reportsUnclosedValue(const SourceLine& line) {
        const Dialect& dialect = extendedDialect();
        if (line.text.find(dialect.marks.block) == std::string_view::npos) {
            return false;
        }
        const DescriptionLine parts = unclosedLeaf(line.text, dialect);
        if (!parts.isReadable() || descriptionLine(line.text, dialect).isReadable()) {
            return false;
        }
        errors_.push_back({.id = DiagnosticId::UnclosedValue,
                           .source = source_,
                           .part = parts.value.substr(0, dialect.marks.block.size()),
                           .message = std::string(driverErrorText(DriverFault::UnclosedValue)),
                           .hint = unclosedValueHint(dialect)});
        return true;
    }

    void compileLine(SourceLine line, std::span<const TemplateTag> tags) {
        if (source_ == 0) {
            line_ = line.number;
        }
        // What stands in a partial stands where the template takes it in.
        line.number = line_;
        if (tags.empty()) {
            add({.kind = TemplateStep::Kind::Line, .line = line});
        } else if (holdsStructureOnly(line.text, tags)) {
            for (const TemplateTag& each : tags) {
                compileTag(each, {});
            }
        } else {
            compileLeaf(line, tags);
        }
    }

    void compileLeaf(const SourceLine& line, std::span<const TemplateTag> tags) {
        const Dialect& dialect = extendedDialect();
        const DescriptionLine parts = descriptionLine(line.text, dialect);
        const bool isLeaf =
            parts.type == LineType::Leaf && parts.value.data() <= tags.front().whole.data();
        if (!isLeaf) {
            report(DiagnosticId::WrongTag, tags.front().whole,
                   "A tag stands in the value of a key, such as (pt={{name}}), or on a line of its "
                   "own.");
            return;
        }
        const DescriptionKey key = dialect.vocabulary.leafKey(parts.key).known;
        const bool isBlock = key == DescriptionKey::ParaText &&
                             dialect.marks.beginsBlock(parts.value) &&
                             dialect.marks.endsBlock(parts.value);
        const std::size_t base = std::exchange(base_, open_.size());
        add({.kind = TemplateStep::Kind::LeafBegin,
             .isBlock = isBlock,
             .line = line,
             .text = parts.value});
        const LeafContext leaf{parts.key, useIn(key), true};
        if (isBlock) {
            for (const std::string_view each : blockLines(parts.value, dialect.marks.block)) {
                compileBlockLine(each, leaf);
            }
        } else {
            compileText(parts.value, leaf, false);
        }
        leaveUnclosed();
        base_ = base;
        add({.kind = TemplateStep::Kind::LeafEnd});
    }

    /// A line of tags that show nothing leaves no line.
    void compileBlockLine(std::string_view line, const LeafContext& leaf) {
        const bool isStructure = holdsStructureOnly(line, tagsIn(line));
        compileText(line, leaf, isStructure);
        if (!isStructure) {
            add({.kind = TemplateStep::Kind::Text, .text = "\n"});
        }
    }

    void compileText(std::string_view text, const LeafContext& leaf, bool isStructureOnly) {
        const char* at = text.data();
        const auto addText = [&](const char* end) {
            if (end > at && !isStructureOnly) {
                add({.kind = TemplateStep::Kind::Text,
                     .text = {at, static_cast<std::size_t>(end - at)}});
            }
        };
        for (const TemplateTag& each : tagsIn(text)) {
            addText(each.whole.data());
            compileTag(each, leaf);
            at = each.whole.data() + each.whole.size();
        }
        addText(text.data() + text.size());
    }

    void compileTag(const TemplateTag& tag, const LeafContext& leaf) {
        if (!tag.isEnded) {
            reportUnended(tag);
            return;
        }
        switch (tag.kind) {
            case TagKind::Comment:
                break;
            case TagKind::Partial:
                compilePartial(tag, leaf);
                break;
            case TagKind::Close:
                closeSection(tag);
                break;
            case TagKind::Section:
            case TagKind::Inverted:
                openSection(tag, leaf);
                break;
            case TagKind::Value:
            case TagKind::Raw:
                compileValue(tag, leaf);
                break;
        }
    }

    void compileValue(const TemplateTag& tag, const LeafContext& leaf) {
        if (tag.kind == TagKind::Raw && leaf.use != ValueUse::Rtf) {
            report(
                DiagnosticId::WrongTag, tag.whole,
                "Only (rtf=…) takes a value as it is; write {{" + std::string(tag.content) + "}}.");
            return;
        }
        if (const std::optional<std::size_t> query = addQuery(tag, leaf)) {
            add({.kind = TemplateStep::Kind::Value, .use = leaf.use, .query = *query});
        }
    }

    void openSection(const TemplateTag& tag, const LeafContext& leaf) {
        // One with a wrong name is opened nonetheless: its end is not to be wrong too.
        const std::optional<std::size_t> query = addQuery(tag, leaf);
        if (query) {
            for (const Filter& filter : result_.queries[*query].query.filters) {
                if (filter.kind != FilterKind::Default || !filter.argument.empty()) {
                    report(DiagnosticId::WrongTag, tag.whole,
                           "A section takes no filter but default: for a name that can be "
                           "missing.");
                    break;
                }
            }
        }
        open_.push_back({result_.steps.size(), tag});
        add({.kind = TemplateStep::Kind::Section, .query = query.value_or(0)});
    }

    void closeSection(const TemplateTag& tag) {
        if (open_.size() == base_) {
            report(
                DiagnosticId::WrongTag, tag.whole,
                "No section is open here that {{/" + std::string(tag.content) + "}} could close.");
            return;
        }
        if (!opens(open_.back().tag, tag.content) && isOpen(tag.content)) {
            while (!opens(open_.back().tag, tag.content)) {
                const std::string name(nameOf(open_.back().tag));
                report(DiagnosticId::WrongTag, open_.back().tag.whole,
                       "The section that begins here does not end; write {{/" + name +
                           "}} before {{/" + std::string(tag.content) + "}}.");
                endInnermost();
            }
        }
        if (const TemplateTag& open = open_.back().tag; !opens(open, tag.content)) {
            report(DiagnosticId::WrongTag, tag.whole,
                   "This closes another section than " + std::string(open.whole) +
                       ", which is open; give both the same name.");
        }
        endInnermost();
    }

    static std::string_view nameOf(const TemplateTag& opener) {
        std::string error;
        return tagQuery(opener.content, error).written;
    }

    static bool opens(const TemplateTag& opener, std::string_view name) {
        return nameOf(opener) == name;
    }

    /// True for the name of one of the innermost sections of this text or value. Looking at all
    /// would take too long where everything is wrong.
    bool isOpen(std::string_view name) const {
        constexpr std::size_t most = 32;
        const std::size_t first = std::max(base_, open_.size() - std::min(open_.size(), most));
        return std::any_of(open_.begin() + static_cast<std::ptrdiff_t>(first), open_.end(),
                           [&](const Open& open) { return opens(open.tag, name); });
    }

    void endInnermost() {
        const std::size_t step = open_.back().step;
        open_.pop_back();
        if (step < result_.steps.size()) {
            result_.steps[step].other = result_.steps.size();
        }
        add({.kind = TemplateStep::Kind::SectionEnd, .other = step});
    }

    /// Closes the sections that a text or a value leaves open, each of which is an error.
    void leaveUnclosed() {
        while (open_.size() > base_) {
            report(DiagnosticId::WrongTag, open_.back().tag.whole,
                   "The section that begins here does not end.");
            endInnermost();
        }
    }

    void compilePartial(const TemplateTag& tag, const LeafContext& leaf) {
        if (leaf.isLeaf) {
            report(DiagnosticId::WrongTag, tag.whole, "A partial stands on a line of its own.");
            return;
        }
        const std::string name = fileNameOf(tag.content);
        if (std::find(names_.begin(), names_.end(), name) != names_.end() ||
            names_.size() == maxPartialDepth || result_.sources.size() > maxPartials) {
            report(DiagnosticId::WrongPartial, tag.whole,
                   name + " takes itself in, maybe through others.");
            return;
        }
        std::string text;
        try {
            text = partials_(name);
        } catch (const RtfError& error) {
            report(DiagnosticId::WrongPartial, tag.whole,
                   name + ": " + std::string(withoutFullStop(error.description)) + ".");
            return;
        }
        const TextEncoding encoding = encodingOf(text, EncodingChoice::Utf8);
        if (findNotUtf8(text)) {
            report(DiagnosticId::WrongPartial, tag.whole, name + " is not UTF-8.");
            return;
        }
        partialBytes_ += text.size();
        if (partialBytes_ > maxPartialBytes) {
            report(DiagnosticId::WrongPartial, tag.whole,
                   "The partials have more than 64 MB together; take in fewer.");
            return;
        }
        const std::string_view outermost = source_ == 0 ? tag.whole : result_.sources[source_].tag;
        result_.sources.push_back(
            {name, decodedText(std::move(text), encoding), encoding, outermost});
        names_.push_back(name);
        const std::size_t source = std::exchange(source_, result_.sources.size() - 1);
        const std::size_t base = std::exchange(base_, open_.size());
        compileSource(result_.sources.size() - 1);
        base_ = base;
        source_ = source;
        names_.pop_back();
    }

    static std::string fileNameOf(std::string_view name) {
        return std::string(name) +
               (name.ends_with(partialExtension) ? "" : std::string(partialExtension));
    }

    std::optional<std::size_t> addQuery(const TemplateTag& tag, const LeafContext& leaf) {
        std::string error;
        TagQuery query = tagQuery(tag.content, error);
        if (!error.empty()) {
            report(DiagnosticId::WrongTag, tag.whole, error + (error.ends_with('?') ? "" : "."));
            return std::nullopt;
        }
        result_.queries.push_back({.query = std::move(query),
                                   .tag = tag.whole,
                                   .source = source_,
                                   .key = leaf.key,
                                   .isRaw = tag.kind == TagKind::Raw,
                                   .isInverted = tag.kind == TagKind::Inverted});
        return result_.queries.size() - 1;
    }

    void add(const TemplateStep& step) {
        if (result_.steps.size() < maxSteps) {
            result_.steps.push_back(step);
        } else if (!std::exchange(isTooLong_, true)) {
            report(DiagnosticId::WrongPartial, result_.sources[source_].tag,
                   "With all its partials, the template is longer than " +
                       std::to_string(maxSteps) + " lines and tags; take in fewer.");
        }
    }

    void reportUnended(const TemplateTag& tag) {
        report(DiagnosticId::WrongTag, tag.whole.substr(0, tag.whole.find_first_of("\r\n")),
               "The tag that begins here does not end; write }} after it.");
    }

    void report(DiagnosticId id, std::string_view part, std::string message) {
        errors_.push_back(
            {.id = id, .source = source_, .part = part, .message = std::move(message)});
    }

    Template& result_;
    const PartialSource& partials_;
    std::vector<TemplateError>& errors_;
    std::size_t source_ = 0;
    // The line of the template that is read, or that takes in the partial that is read.
    int line_ = 0;
    std::vector<Open> open_;
    // How many sections are open outside the text or the value that is read.
    std::size_t base_ = 0;
    // Of the partials that are being read.
    std::vector<std::string> names_;
    bool isTooLong_ = false;
    std::size_t partialBytes_ = 0;
};

}  // namespace

Template compileTemplate(std::string text, TextEncoding encoding, const PartialSource& partials,
                         std::vector<TemplateError>& errors) {
    Template result;
    if (!isMarkedExtended(text)) {
        result.sources.push_back({.text = std::move(text), .encoding = encoding});
        const std::string_view own = result.sources.front().text;
        errors.push_back({.id = DiagnosticId::WrongTag,
                          .part = own.substr(0, own.find_first_of("\r\n")),
                          .message = "A description that is filled with data is written in the "
                                     "extended language; its first line is ; quorvane 2."});
        return result;
    }
    Compiler(result, partials, errors).compile(std::move(text), encoding);
    return result;
}

Template compileFileName(std::string name, std::vector<TemplateError>& errors) {
    Template result;
    Compiler(result, {}, errors).compileFileName(std::move(name));
    return result;
}

bool looksLikeTemplate(std::string_view text) {
    if (text.find("{{") == std::string_view::npos || !isMarkedExtended(text)) {
        return false;
    }
    const Dialect& dialect = extendedDialect();
    const std::vector<SourceLine> lines =
        PreProcessRawData(afterByteOrderMark(text), dialect.marks.block);
    return std::any_of(lines.begin(), lines.end(), [&](const SourceLine& line) {
        const std::vector<TemplateTag> tags = tagsIn(line.text);
        if (tags.empty() || !tags.front().isEnded) {
            return false;
        }
        // There, two braces are a brace.
        constexpr KeySet pageLines = setOf({DescriptionKey::Header, DescriptionKey::Footer});
        const DescriptionLine parts = descriptionLine(line.text, dialect);
        const bool isLeaf = parts.type == LineType::Leaf;
        return isLeaf ? !contains(pageLines, dialect.vocabulary.leafKey(parts.key).known)
                      : line.text.starts_with("{{");
    });
}

}  // namespace quorvane::data
