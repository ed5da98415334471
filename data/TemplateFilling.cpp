#include "data/TemplateFilling.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/rtf/escape.h"

namespace quorvane::data {

namespace {

constexpr std::size_t maxRepeatedSteps = 10'000'000;
constexpr std::size_t megabyte = std::size_t{1024} * 1024;
constexpr std::size_t maxTextBytes = 256 * megabyte;

const DataValue& booleanValue(bool value) {
    static const DataValue yes{.kind = DataValue::Kind::Boolean, .text = "true"};
    static const DataValue no{.kind = DataValue::Kind::Boolean, .text = "false"};
    return value ? yes : no;
}

/// What a section leaves out: false, null, an empty text and an empty list.
bool isFalse(const DataValue& value) {
    switch (value.kind) {
        case DataValue::Kind::Null:
            return true;
        case DataValue::Kind::Boolean:
            return value.text == booleanValue(false).text;
        case DataValue::Kind::String:
            return value.text.empty();
        case DataValue::Kind::List:
            return value.items.empty();
        default:
            return false;
    }
}

const Filter* defaultOf(const TemplateQuery& query) {
    for (const Filter& filter : query.query.filters) {
        if (filter.kind == FilterKind::Default) {
            return &filter;
        }
    }
    return nullptr;
}

/// Passes over defaults of a value that is there; true where its items are counted next.
bool counts(std::vector<Filter>::const_iterator& filter, std::vector<Filter>::const_iterator end) {
    filter = std::find_if(filter, end,
                          [](const Filter& each) { return each.kind != FilterKind::Default; });
    return filter != end && filter->kind == FilterKind::Count;
}

std::string joinedByDots(const std::vector<std::string>& names) {
    std::string joined;
    for (const std::string& name : names) {
        joined += (joined.empty() ? "" : ".") + name;
    }
    return joined;
}

/// "; the data has: Name, [Nr.]". Of many names, the first ones.
std::string namesThere(const std::vector<std::string_view>& names) {
    constexpr std::size_t most = 8;
    std::string list;
    for (std::size_t i = 0; i < std::min(names.size(), most); ++i) {
        list += (list.empty() ? "; the data has: " : ", ") + writtenName(names[i]);
    }
    return list + (names.size() > most ? ", …" : "");
}

bool isControl(char character) {
    constexpr char firstPrintable = ' ';
    constexpr char del = 0x7F;
    const auto byte = static_cast<unsigned char>(character);
    return byte < static_cast<unsigned char>(firstPrintable) || character == del;
}

/// Appends a text with LF for each of its line breaks: what stands beside it changes none of them.
void appendWithLineFeeds(std::string_view text, std::string& all) {
    for (;;) {
        const std::size_t end = std::min(text.find('\r'), text.size());
        all += text.substr(0, end);
        if (end == text.size()) {
            return;
        }
        all += '\n';
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
}

std::string_view nameOfControl(char character) {
    return character == '\n' || character == '\r' ? "a line break"
           : character == '\t'                    ? "a tab"
                                                  : "a control character";
}

bool isColumnsLine(const SourceLine& line) {
    const Dialect& dialect = extendedDialect();
    const DescriptionLine parts = descriptionLine(line.text, dialect);
    return parts.type == LineType::Leaf &&
           dialect.vocabulary.leafKey(parts.key).known == DescriptionKey::Columns;
}

}  // namespace

TemplateFilling::TemplateFilling(const Template& source, Locale locale)
    : template_(source), locale_(std::move(locale)), areReported_(source.queries.size()) {}

const std::vector<SourceLine>& TemplateFilling::fill(const DataValue& record,
                                                     std::vector<TemplateError>& errors,
                                                     std::size_t number) {
    static const DataValue records{.kind = DataValue::Kind::List};
    isDataKnown_ = true;
    errors_ = &errors;
    begin();
    contexts_.push_back({.value = &record});
    if (number > 0) {
        contexts_.back().list = &records;
        contexts_.back().item = number - 1;
    }
    run();
    return finish();
}

const std::vector<SourceLine>& TemplateFilling::fillUnknown() {
    isDataKnown_ = false;
    begin();
    run();
    return finish();
}

void TemplateFilling::begin() {
    areReported_.assign(areReported_.size(), false);
    contexts_.clear();
    lines_.clear();
    pending_.clear();
    texts_.clear();
    ranges_.clear();
    repeatedSteps_ = 0;
}

void TemplateFilling::run() {
    for (std::size_t index = 0; index < template_.steps.size();) {
        index = runStep(index);
    }
}

/// Returns the step that comes next.
std::size_t TemplateFilling::runStep(std::size_t index) {
    const TemplateStep& step = template_.steps[index];
    switch (step.kind) {
        case TemplateStep::Kind::Line:
            addLine(step);
            break;
        case TemplateStep::Kind::LeafBegin:
            beginLeaf(step);
            break;
        case TemplateStep::Kind::LeafEnd:
            endLeaf();
            break;
        case TemplateStep::Kind::Text:
            texts_ += step.text;
            break;
        case TemplateStep::Kind::Value:
            addValue(step);
            break;
        case TemplateStep::Kind::Section:
            return enter(index, step);
        case TemplateStep::Kind::SectionEnd:
            return leave(index, step);
    }
    return index + 1;
}

std::size_t TemplateFilling::enter(std::size_t index, const TemplateStep& step) {
    if (!isDataKnown_) {
        contexts_.push_back({.section = &step});
        return index + 1;
    }
    const TemplateQuery& query = template_.queries[step.query];
    const Found found = find(query);
    if (!found.value && !defaultOf(query)) {
        reportMissing(query, found);
        return step.other + 1;
    }
    const bool isShown = found.value && !isFalse(*found.value);
    if (isShown == query.isInverted) {
        return step.other + 1;
    }
    if (query.isInverted) {
        contexts_.push_back({.section = &step});
    } else if (found.value->isList()) {
        contexts_.push_back(
            {.value = found.value->items.data(), .section = &step, .list = found.value});
    } else {
        const bool isAbout = query.query.path.kind == TagPath::Kind::Names ||
                             query.query.path.kind == TagPath::Kind::This;
        contexts_.push_back({.value = isAbout ? found.value : nullptr, .section = &step});
    }
    return index + 1;
}

std::size_t TemplateFilling::leave(std::size_t index, const TemplateStep& step) {
    Context& context = contexts_.back();
    if (context.list && context.item + 1 < context.list->items.size()) {
        repeatedSteps_ += index - step.other;
        if (repeatedSteps_ > maxRepeatedSteps || texts_.size() > maxTextBytes) {
            return refuseSize(template_.queries[step.query]);
        }
        ++context.item;
        context.value = &context.list->items[context.item];
        return step.other + 1;
    }
    contexts_.pop_back();
    return index + 1;
}

/// Ends a filling that would take memory without end, as lists within themselves do.
std::size_t TemplateFilling::refuseSize(const TemplateQuery& query) {
    reportWrong(query,
                "The lists of the data make more than " + std::to_string(maxRepeatedSteps) +
                    " lines, texts and values, or more than " +
                    std::to_string(maxTextBytes / megabyte) + " MB of text.",
                "make several documents of them");
    begin();
    return template_.steps.size();
}

/// Without data it is not known which columns count.
void TemplateFilling::addLine(const TemplateStep& step) {
    const bool isUnknown = !isDataKnown_ && !contexts_.empty() && isColumnsLine(step.line);
    if (isUnknown) {
        beginLeaf(step);
        endLeaf();
    } else {
        lines_.push_back(step.line);
    }
}

void TemplateFilling::beginLeaf(const TemplateStep& step) {
    pending_.push_back({.line = lines_.size(),
                        .text = texts_.size(),
                        .range = ranges_.size(),
                        .written = step.text,
                        .isBlock = step.isBlock,
                        .isUnknown = !isDataKnown_});
    lines_.push_back(step.line);
}

void TemplateFilling::endLeaf() {
    Pending& leaf = pending_.back();
    // Each line of a value of several lines ends with a line break of the template, the last one
    // not. A section can have left it out.
    const std::size_t size = texts_.size() - leaf.text;
    const bool endsInData = ranges_.size() > leaf.range && ranges_.back().end == size;
    if (leaf.isBlock && size > 0 && texts_.back() == '\n' && !endsInData) {
        texts_.pop_back();
    }
    leaf.textEnd = texts_.size();
    leaf.rangeEnd = ranges_.size();
}

void TemplateFilling::addValue(const TemplateStep& step) {
    if (!isDataKnown_) {
        return;
    }
    const TemplateQuery& query = template_.queries[step.query];
    text_.clear();
    if (makeText(query, text_)) {
        addText(text_, step, query);
    }
}

/// Reports a text that cannot stand there.
bool TemplateFilling::refuses(std::string_view text, const TemplateStep& step,
                              const TemplateQuery& query) {
    if (step.use == ValueUse::Name) {
        return false;
    }
    if (step.use == ValueUse::Word || query.isRaw) {
        const auto* const control = std::find_if(text.begin(), text.end(), isControl);
        if (control == text.end()) {
            return false;
        }
        reportWrong(query, shownPath(query) + " holds " + std::string(nameOfControl(*control)) +
                               ", which cannot stand in " + std::string(query.key) + ".");
        return true;
    }
    const std::optional<Unshowable> unshowable = findUnshowable(text);
    if (unshowable) {
        reportWrong(query, shownPath(query) + " cannot be shown: " + unshowable->message + ".");
    }
    return unshowable.has_value();
}

void TemplateFilling::addText(std::string_view text, const TemplateStep& step,
                              const TemplateQuery& query) {
    if (refuses(text, step, query)) {
        return;
    }
    const std::size_t begin = texts_.size();
    if (step.use == ValueUse::Rtf && !query.isRaw) {
        texts_ += '{' + rtfText(text) + '}';
    } else {
        appendWithLineFeeds(text, texts_);
    }
    const std::size_t first = pending_.back().text;
    ranges_.push_back({begin - first, texts_.size() - first});
}

/// Makes the text of a value; false where that was reported.
bool TemplateFilling::makeText(const TemplateQuery& query, std::string& text) {
    const Found found = find(query);
    const bool isMissing = !found.value || found.value->isNull();
    if (isMissing && !defaultOf(query)) {
        reportMissing(query, found);
        return false;
    }
    return applyFilters(query, isMissing ? nullptr : found.value, text);
}

/// A value that is missing begins with its default.
bool TemplateFilling::applyFilters(const TemplateQuery& query, const DataValue* value,
                                   std::string& text) {
    const std::vector<Filter>& filters = query.query.filters;
    auto filter = filters.begin();
    if (!value) {
        filter += defaultOf(query) - filters.data();
        text = filter->argument;
        ++filter;
    } else if (value->isList() && counts(filter, filters.end())) {
        text = std::to_string(value->items.size());
        ++filter;
    } else if (value->isList() || value->isObject()) {
        reportWrong(query, shownPath(query) + (value->isList() ? " is a list." : " is an object."),
                    value->isList() ? "write {{#" + std::string(query.query.written) +
                                          "}} and {{/" + std::string(query.query.written) +
                                          "}} around what is shown of each item, or {{" +
                                          std::string(query.query.written) + "|count}}"
                                    : "write the name of one of its values after a dot");
        return false;
    } else {
        text = value->text;
    }
    for (; filter != filters.end(); ++filter) {
        FilterResult result = filter->apply(text, locale_);
        if (!result.error.empty()) {
            reportWrong(query, shownPath(query) + ": " + result.error + ".");
            return false;
        }
        text = std::move(result.text);
    }
    return true;
}

TemplateFilling::Found TemplateFilling::find(const TemplateQuery& query) {
    const TagPath& path = query.query.path;
    if (path.kind == TagPath::Kind::Names) {
        return findNames(path);
    }
    if (path.kind == TagPath::Kind::This) {
        // What a condition is about hides nothing.
        const auto context = std::find_if(contexts_.rbegin(), contexts_.rend(),
                                          [](const Context& each) { return each.value; });
        const Context* const outer = path.outward == 0 ? &*context : objectContext(path.outward);
        return outer ? Found{.value = outer->value} : Found{.reason = "No object is around this."};
    }
    const Context* const list = listContext(path.outward);
    if (list && !list->section && path.kind == TagPath::Kind::Last) {
        return {.reason = "Which record is the last one is not known before all are read."};
    }
    return list ? Found{.value = itemValue(path, *list)}
                : Found{.reason = std::string(query.query.written) +
                                  " stands outside a section for a list."};
}

TemplateFilling::Found TemplateFilling::findNames(const TagPath& path) {
    const Context* const context = objectContext(path.outward);
    if (!context) {
        return {.reason = path.outward == 0 ? "The data is not an object, and has no names."
                                            : "No object is around this one."};
    }
    Found found{.value = context->value};
    for (const std::string& name : path.names) {
        found.in = found.value;
        found.name = name;
        if (!found.in->isObject()) {
            found.value = nullptr;
            return found;
        }
        found.value = found.in->find(name);
        if (!found.value) {
            return found;
        }
    }
    return found;
}

/// The innermost object, or one further out; null when there is none.
const TemplateFilling::Context* TemplateFilling::objectContext(std::size_t outward) const {
    for (auto context = contexts_.rbegin(); context != contexts_.rend(); ++context) {
        if (context->value && context->value->isObject() && outward-- == 0) {
            return &*context;
        }
    }
    return nullptr;
}

const TemplateFilling::Context* TemplateFilling::listContext(std::size_t outward) const {
    for (auto context = contexts_.rbegin(); context != contexts_.rend(); ++context) {
        if (context->list && outward-- == 0) {
            return &*context;
        }
    }
    return nullptr;
}

const DataValue* TemplateFilling::itemValue(const TagPath& path, const Context& context) {
    switch (path.kind) {
        case TagPath::Kind::First:
            return &booleanValue(context.item == 0);
        case TagPath::Kind::Last:
            return &booleanValue(context.item + 1 == context.list->items.size());
        default:
            number_.kind = DataValue::Kind::Number;
            number_.text = std::to_string(context.item + 1);
            return &number_;
    }
}

/// True for the first error of a tag. The key that it stands in gets no value.
bool TemplateFilling::isFirstReport(const TemplateQuery& query) {
    if (!query.key.empty()) {
        pending_.back().isUnknown = true;
    }
    const auto index = static_cast<std::size_t>(&query - template_.queries.data());
    const bool isFirst = !areReported_[index];
    areReported_[index] = true;
    return isFirst;
}

void TemplateFilling::reportMissing(const TemplateQuery& query, const Found& found) {
    if (!found.reason.empty()) {
        reportWrong(query, found.reason);
        return;
    }
    if (!isFirstReport(query)) {
        return;
    }
    const bool isNull = found.value != nullptr;
    errors_->push_back(
        {.id = DiagnosticId::MissingName,
         .source = query.source,
         .part = query.tag,
         .message = shownPath(query) + (isNull ? " is null in the data." : " is not in the data."),
         .hint = missingHint(query, found)});
}

std::string TemplateFilling::missingHint(const TemplateQuery& query, const Found& found) const {
    const std::string written(query.query.written);
    const bool isSection = query.tag.starts_with("{{#") || query.tag.starts_with("{{^");
    std::string optional = isSection
                               ? "write " + std::string(query.tag.substr(0, 3)) + written +
                                     "|default:}} for a section whose name can be missing"
                               : "write {{" + written + "|default:…}} for what can be missing";
    if (found.value || !found.in) {
        return optional;
    }
    if (!found.in->isObject()) {
        return found.in->isList() ? "a list has no names; write a section around the name"
                                  : "a single value has no names";
    }
    const TagPath& path = query.query.path;
    if (const std::string dotted = joinedByDots(path.names); found.in->find(dotted)) {
        return "a name in the data has the dot in it; write " + writtenName(dotted);
    }
    const std::vector<std::string_view> names(found.in->names.begin(), found.in->names.end());
    if (const std::string_view nearest = nearestWord(found.name, names); !nearest.empty()) {
        const std::string guess = "did you mean " + writtenName(nearest) + "?";
        return isSection ? guess + " If not, " + optional : guess;
    }
    if (const std::size_t colon = written.find(':'); colon != std::string::npos) {
        return "filters stand after |: {{" + written.substr(0, colon) + "|" +
               written.substr(colon + 1) + "}}";
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        const DataValue& inner = found.in->items[i];
        if (inner.isObject() && inner.find(found.name)) {
            return "did you mean " + writtenName(names[i]) + "." + writtenName(found.name) + "?";
        }
    }
    for (std::size_t outward = path.outward + 1; path.names.size() == 1; ++outward) {
        const Context* const context = objectContext(outward);
        if (!context) {
            break;
        }
        if (context->value->find(found.name)) {
            std::string out;
            for (std::size_t i = 0; i < outward; ++i) {
                out += "../";
            }
            return "an object around this one has the name; write {{" + out +
                   writtenName(found.name) + "}} if you mean that";
        }
    }
    return optional + namesThere(names);
}

void TemplateFilling::reportWrong(const TemplateQuery& query, std::string message,
                                  std::string hint) {
    if (!isFirstReport(query)) {
        return;
    }
    errors_->push_back({.id = DiagnosticId::WrongData,
                        .source = query.source,
                        .part = query.tag,
                        .message = std::move(message),
                        .hint = std::move(hint)});
}

/// The path with the items of the lists that it is in: "lines[3].price".
std::string TemplateFilling::shownPath(const TemplateQuery& query) const {
    const TagPath& path = query.query.path;
    const Context* const innermost =
        path.kind == TagPath::Kind::This ? &contexts_.back() : objectContext(path.outward);
    std::string shown;
    for (const Context& context : contexts_) {
        if (context.section && context.value) {
            const TagQuery& section = template_.queries[context.section->query].query;
            for (const std::string& name : section.path.names) {
                shown += (shown.empty() ? "" : ".") + name;
            }
            shown += context.list ? "[" + std::to_string(context.item + 1) + "]" : "";
        }
        if (&context == innermost) {
            break;
        }
    }
    for (const std::string& name : path.names) {
        shown += (shown.empty() ? "" : ".") + name;
    }
    return shown.empty() ? std::string(query.query.written) : shown;
}

const std::vector<SourceLine>& TemplateFilling::finish() {
    values_.clear();
    values_.reserve(pending_.size());
    for (const Pending& leaf : pending_) {
        values_.push_back(
            {.text = std::string_view(texts_).substr(leaf.text, leaf.textEnd - leaf.text),
             .data = std::span(ranges_).subspan(leaf.range, leaf.rangeEnd - leaf.range),
             .written = leaf.written,
             .isUnknown = leaf.isUnknown});
        lines_[leaf.line].filled = &values_.back();
    }
    return lines_;
}

}  // namespace quorvane::data
