#include "data/templateSchema.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "data/ObjectNeeds.h"
#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane::data {

namespace {

// A schema is read by programs that call themselves for each level.
constexpr std::size_t maxNesting = 32;
constexpr std::size_t maxDemands = 1000;

constexpr const char* numberPattern = R"(^[-+]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][-+]?[0-9]+)?$)";
constexpr const char* datePattern =
    "^[0-9]{4}-((0[13578]|1[02])-(0[1-9]|[12][0-9]|3[01])|(0[469]|11)-(0[1-9]|[12][0-9]|30)|"
    "02-(0[1-9]|[12][0-9]))"
    "([T ]([01][0-9]|2[0-3]):[0-5][0-9](:([0-5][0-9]|60))?(\\.[0-9]*)?"
    "(Z|[-+]([01][0-9]|2[0-3]):?([0-5][0-9])?)?)?$";

SchemaJson typed(const char* type) {
    return {{"type", type}};
}

SchemaJson typed(std::initializer_list<const char*> types) {
    return {{"type", types}};
}

SchemaJson referenceTo(const std::string& definition) {
    return {{"$ref", "#/definitions/" + definition}};
}

SchemaJson negated(const SchemaJson& schema) {
    return {{"not", schema}};
}

/// What a section does not show.
SchemaJson hidden() {
    return {{"enum", {nullptr, false, "", SchemaJson::array()}}};
}

bool isDefault(const Filter& filter) {
    return filter.kind == FilterKind::Default;
}

/// True if the tag shows something for a name that is missing.
bool allowsMissing(const TagQuery& query) {
    const auto found = std::find_if(query.filters.begin(), query.filters.end(), isDefault);
    if (found == query.filters.end()) {
        return false;
    }
    std::string text = found->argument;
    return std::all_of(found + 1, query.filters.end(), [&](const Filter& filter) {
        FilterResult result = filter.apply(text, {});
        text = std::move(result.text);
        return result.error.empty();
    });
}

/// What a value must be so that a tag can show it.
SchemaJson shownBy(const TagQuery& query) {
    const auto first =
        std::find_if(query.filters.begin(), query.filters.end(), [](const Filter& f) {
            return !isDefault(f) && f.kind != FilterKind::Upper && f.kind != FilterKind::Lower;
        });
    SchemaJson schema = typed({"string", "number", "boolean"});
    if (first != query.filters.end()) {
        switch (first->kind) {
            case FilterKind::Count:
                schema = typed("array");
                break;
            case FilterKind::Date:
                schema = typed("string");
                schema["pattern"] = datePattern;
                break;
            default:
                schema = typed({"number", "string"});
                schema["pattern"] = numberPattern;
        }
    }
    if (allowsMissing(query)) {
        SchemaJson& types = schema["type"];
        types = types.is_array() ? types : SchemaJson::array({types});
        types.push_back("null");
    }
    return schema;
}

/// Something that is asked of the object around the innermost one, or of one further out, and of
/// the innermost one itself: if both meet their conditions, both must meet their demands.
struct OutwardNeed {
    /// How far out, at least 1.
    std::size_t levels = 1;
    SchemaJson outerCondition = SchemaJson::object();
    SchemaJson innerCondition = SchemaJson::object();
    SchemaJson outerDemand = SchemaJson::object();
    SchemaJson innerDemand = SchemaJson::object();
    /// It is an error when there is no such object.
    bool isRequired = false;
    /// The innermost object must meet its demand even so.
    bool holdsWithoutOuter = false;
};

/// What the steps of a section, or of the whole template, ask for.
struct Body {
    /// The index of the section's step.
    std::size_t step = 0;
    /// Of the innermost object.
    ObjectNeeds needs = {};
    /// Of the value of `{{.}}`.
    std::vector<SchemaJson> ofThis = {};
    std::vector<OutwardNeed> outward = {};
    /// A tag asks where it is in a list.
    bool asksForList = false;
};

class SchemaWriter {
public:
    explicit SchemaWriter(const Template& source) : source_(source) {}

    std::string text(std::string& error) {
        open_.emplace_back();
        for (std::size_t i = 0; i < source_.steps.size() && error_.empty(); ++i) {
            takeStep(i);
        }
        error = error_;
        return error_.empty() ? rootSchema().dump(2) + "\n" : std::string();
    }

private:
    void takeStep(std::size_t index) {
        const TemplateStep& step = source_.steps[index];
        if (step.kind == TemplateStep::Kind::Value) {
            takeValue(source_.queries[step.query]);
        } else if (step.kind == TemplateStep::Kind::Section) {
            requireFewLevels(open_.size(), "Sections");
            open_.push_back({.step = index});
        } else if (step.kind == TemplateStep::Kind::SectionEnd) {
            Body body = std::move(open_.back());
            open_.pop_back();
            closeSection(body, source_.queries[source_.steps[body.step].query]);
        }
    }

    void requireFewLevels(std::size_t levels, const char* what) {
        if (levels > maxNesting && error_.empty()) {
            error_ = std::string(what) + " are nested deeper than " + std::to_string(maxNesting) +
                     " levels.";
        }
    }

    Body& parent() { return open_.back(); }

    void takeValue(const TemplateQuery& query) {
        const TagPath& path = query.query.path;
        switch (path.kind) {
            case TagPath::Kind::Names:
                addValue(query, shownBy(query.query));
                break;
            case TagPath::Kind::This:
                if (path.outward == 0) {
                    parent().ofThis.push_back(shownBy(query.query));
                }
                break;
            default:
                parent().asksForList = parent().asksForList || path.outward == 0;
        }
    }

    /// Asks for the value of a name, in the innermost object or further out.
    void addValue(const TemplateQuery& query, const SchemaJson& demand) {
        const TagPath& path = query.query.path;
        const bool isRequired = !allowsMissing(query.query);
        asksForNames_ = asksForNames_ || isRequired;
        requireFewLevels(path.names.size(), "Names");
        requireFewLevels(path.outward, "Names");
        if (path.outward == 0) {
            parent().needs.addValue(path.names, isRequired, demand, noteOn(query));
            return;
        }
        ObjectNeeds needs;
        needs.addValue(path.names, isRequired, demand, noteOn(query));
        addOutward(
            {.levels = path.outward, .outerDemand = needs.schema(), .isRequired = isRequired});
    }

    void addOutward(OutwardNeed need) {
        if (++demandCount_ > maxDemands && error_.empty()) {
            error_ = "Too many sections in sections look outward with ../.";
        }
        if (need.levels > 0) {
            parent().outward.push_back(std::move(need));
            return;
        }
        parent().needs.addDemand(implied(allOf({need.outerCondition, need.innerCondition}),
                                         allOf({need.outerDemand, need.innerDemand})));
    }

    void closeSection(Body& body, const TemplateQuery& query) {
        const TagPath& path = query.query.path;
        if (path.kind == TagPath::Kind::Names) {
            if (query.isInverted) {
                closeInverted(body, query);
            } else if (path.outward == 0) {
                closeNamed(body, query);
            } else {
                closeOutward(body, query);
            }
        } else if (path.kind == TagPath::Kind::This && !query.isInverted) {
            closeThis(body, path.outward);
        } else {
            parent().asksForList = parent().asksForList || path.kind != TagPath::Kind::This;
            takeOver(body, SchemaJson::object());
        }
    }

    /// Asks what the section asks of the same objects as what is around it, where the innermost
    /// object meets the condition.
    void takeOver(Body& body, const SchemaJson& condition) {
        parent().needs.addDemand(implied(condition, body.needs.schema()));
        for (const SchemaJson& each : body.ofThis) {
            parent().ofThis.push_back(implied(anyUnlessObject(condition), each));
        }
        for (OutwardNeed& need : body.outward) {
            need.innerCondition = allOf({condition, need.innerCondition});
            addOutward(std::move(need));
        }
        parent().asksForList = parent().asksForList || body.asksForList;
    }

    void closeInverted(Body& body, const TemplateQuery& query) {
        const TagPath& path = query.query.path;
        const SchemaJson condition = allowsMissing(query.query)
                                         ? negated(objectWith(path.names, negated(hidden())))
                                         : objectWith(path.names, hidden());
        addValue(query, SchemaJson::object());
        if (path.outward == 0) {
            takeOver(body, condition);
            return;
        }
        addOutward({.levels = path.outward,
                    .outerCondition = condition,
                    .innerDemand = body.needs.schema(),
                    .holdsWithoutOuter = allowsMissing(query.query)});
        body.needs = {};
        takeOver(body, SchemaJson::object());
    }

    void closeNamed(Body& body, const TemplateQuery& query) {
        const std::vector<std::string>& names = query.query.path.names;
        const SchemaJson demand = definitionOf(body, query);
        const bool isForList = body.asksForList && !isWithinList();
        addValue(query, sectionSchema(body, demand, isForList));
        if (!demand.empty()) {
            parent().needs.addDemand(implied(objectWith(names, condition()), demand));
        }
        for (const OutwardNeed& need : body.outward) {
            const SchemaJson inner = allOf({typed("object"), need.innerCondition});
            const SchemaJson some = {{"anyOf", {inner, {{"type", "array"}, {"contains", inner}}}}};
            const SchemaJson each = implied(need.innerCondition, need.innerDemand);
            OutwardNeed asObject = need;
            --asObject.levels;
            asObject.innerCondition = objectWith(names, some);
            asObject.innerDemand = whereThere(names, eachObject(each));
            addOutward(std::move(asObject));
            OutwardNeed asCondition = need;
            asCondition.innerCondition =
                allOf({objectWith(names, condition()), need.innerCondition});
            addOutward(std::move(asCondition));
        }
    }

    /// A section for a name of an object further out. What it asks of others is asked always.
    void closeOutward(Body& body, const TemplateQuery& query) {
        const TagPath& path = query.query.path;
        const SchemaJson own = definitionOf(body, query);
        std::vector<SchemaJson> all = {own};
        for (const OutwardNeed& need : body.outward) {
            all.push_back(need.innerDemand);
        }
        addValue(query, sectionSchema(body, allOf(all), false));
        if (!own.empty()) {
            addOutward({.levels = path.outward,
                        .outerCondition = objectWith(path.names, condition()),
                        .innerDemand = own});
        }
        addUnconditionally(body);
        for (OutwardNeed& need : body.outward) {
            addOutward(std::move(need));
        }
    }

    /// A section for `{{.}}`, or for the object further out. Names are asked of objects only.
    void closeThis(Body& body, std::size_t outward) {
        if (outward > 0) {
            addOutward({.levels = outward, .outerDemand = body.needs.schema()});
        } else {
            const SchemaJson demand = body.needs.schema();
            parent().ofThis.push_back(sectionSchema(body, demand, false));
            if (!demand.empty()) {
                parent().ofThis.push_back(negated(condition()));
            }
        }
        addUnconditionally(body);
    }

    /// Asks what a section asks of the objects around it, whatever the data is.
    void addUnconditionally(const Body& body) {
        for (const OutwardNeed& need : body.outward) {
            addOutward({.levels = need.levels - 1,
                        .outerDemand = need.outerDemand,
                        .isRequired = need.isRequired});
        }
    }

    /// What must hold for the value of a section: `demand` for the objects that it is about.
    SchemaJson sectionSchema(const Body& body, const SchemaJson& demand, bool isForList) {
        const SchemaJson shown = allOf(body.ofThis);
        const SchemaJson item = allOf({demand, shown});
        SchemaJson schema = SchemaJson::object();
        if (isForList) {
            schema = typed({"array", "string", "boolean", "null"});
            schema["maxLength"] = 0;
            schema["not"] = {{"const", true}};
        } else {
            const SchemaJson single = negated({{"anyOf", {typed("array"), hidden()}}});
            schema = allOf({demand, implied(single, shown)});
        }
        if (item.empty()) {
            return schema;
        }
        if (schema.contains("$ref")) {
            schema = SchemaJson{{"allOf", SchemaJson::array({schema})}};
        }
        schema["items"] = item;
        return schema;
    }

    /// What a value meets that is not an object, and so not what the condition is about.
    static SchemaJson anyUnlessObject(const SchemaJson& condition) {
        return condition.empty() ? condition
                                 : SchemaJson{{"anyOf", {negated(typed("object")), condition}}};
    }

    static SchemaJson eachObject(const SchemaJson& schema) {
        return schema.empty()
                   ? schema
                   : SchemaJson{{"allOf", SchemaJson::array({schema})}, {"items", schema}};
    }

    /// A value that a section is shown for without being about an object.
    SchemaJson condition() {
        const std::string name = "condition";
        if (!definitions_.contains(name)) {
            definitions_[name] = {
                {"description",
                 "Shows a section, whose names are those of the object around it: true, a number, "
                 "a text, or a list of other things than objects."},
                {"anyOf",
                 {SchemaJson{{"const", true}}, typed("number"),
                  SchemaJson{{"type", "string"}, {"minLength", 1}},
                  SchemaJson{{"type", "array"}, {"contains", negated(typed("object"))}}}}};
        }
        return referenceTo(name);
    }

    /// What a section asks of the object that it is about, under a name of its own.
    SchemaJson definitionOf(const Body& body, const TemplateQuery& query) {
        if (body.needs.isEmpty()) {
            return SchemaJson::object();
        }
        std::string name = "in";
        for (const std::string& each : query.query.path.names) {
            name += '-';
            std::copy_if(each.begin(), each.end(), std::back_inserter(name), [](char character) {
                return (character >= 'a' && character <= 'z') ||
                       (character >= 'A' && character <= 'Z') ||
                       (character >= '0' && character <= '9');
            });
        }
        std::string unique = name;
        for (std::size_t i = 2; definitions_.contains(unique); ++i) {
            unique = name + "-" + std::to_string(i);
        }
        definitions_[unique] = body.needs.schema();
        return referenceTo(unique);
    }

    /// True if a section around the one that was closed may be for a list.
    bool isWithinList() const {
        return std::any_of(open_.begin() + 1, open_.end(), [this](const Body& each) {
            const TemplateQuery& query = source_.queries[source_.steps[each.step].query];
            return !query.isInverted && (query.query.path.kind == TagPath::Kind::Names ||
                                         query.query.path.kind == TagPath::Kind::This);
        });
    }

    /// "Line 7: {{price}}."
    std::string noteOn(const TemplateQuery& query) {
        const auto text =
            texts_.try_emplace(query.source, source_.sources[query.source].text).first;
        const std::string& partial = source_.sources[query.source].name;
        return (partial.empty() ? "Line " : partial + ", line ") +
               std::to_string(text->second.placeOf(query.tag).line) + ": " +
               std::string(query.tag) + ".";
    }

    SchemaJson rootSchema() {
        Body& root = open_.front();
        for (const OutwardNeed& need : root.outward) {
            if (need.isRequired) {
                root.needs.addDemand(implied(need.innerCondition, negated(SchemaJson::object())));
            } else if (need.holdsWithoutOuter) {
                root.needs.addDemand(implied(need.innerCondition, need.innerDemand));
            }
        }
        SchemaJson schema = {{"$schema", "http://json-schema.org/draft-07/schema#"}};
        const SchemaJson shown = allOf(root.ofThis);
        if (!shown.empty()) {
            root.needs.addDemand(shown);
        }
        if (asksForNames_) {
            schema["type"] = "object";
        }
        schema.update(root.needs.schema());
        if (!definitions_.empty()) {
            schema["definitions"] = definitions_;
        }
        return schema;
    }

    const Template& source_;
    std::vector<Body> open_;
    SchemaJson definitions_ = SchemaJson::object();
    std::map<std::size_t, SourceText> texts_;
    std::size_t demandCount_ = 0;
    bool asksForNames_ = false;
    std::string error_;
};

}  // namespace

std::string schemaOfTemplate(const Template& source, std::string& error) {
    return SchemaWriter(source).text(error);
}

}  // namespace quorvane::data
