// The schema of a template takes the data that fills it.

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <random>
#include <string>
#include <utility>

#include "data/DataSchema.h"
#include "data/templateSchema.h"
#include "tests/data/FilledTemplate.h"

namespace quorvane::data {
namespace {

/// What the tags of a template can be.
enum class Tags { ThatASchemaCanDescribe, OfAllKinds };

class Generator {
public:
    Generator(unsigned seed, Tags tags) : random_(seed), tags_(tags) {}

    std::string content(int depth) {
        std::string made;
        for (std::size_t parts = 1 + below(3); parts > 0; --parts) {
            made += part(depth);
        }
        return made;
    }

    DataValue value(int depth) {
        switch (below(depth > 0 ? 9 : 6)) {
            case 0:
                return {};
            case 1:
                return {.kind = DataValue::Kind::Boolean, .text = below(2) == 0 ? "true" : "false"};
            case 2:
                return {.kind = DataValue::Kind::Number, .text = below(2) == 0 ? "0" : "12.5"};
            case 3:
                return {.kind = DataValue::Kind::String};
            case 4:
                return {.kind = DataValue::Kind::String, .text = "2026-11-22"};
            case 5:
                return {.kind = DataValue::Kind::String, .text = "x"};
            case 6: {
                DataValue list{.kind = DataValue::Kind::List};
                const bool hasObjects = below(2) == 0;
                for (std::size_t items = below(4); items > 0; --items) {
                    list.items.push_back(hasObjects ? object(depth - 1) : value(depth - 1));
                }
                return list;
            }
            default:
                return object(depth - 1);
        }
    }

    DataValue object(int depth) {
        DataValue made{.kind = DataValue::Kind::Object};
        for (const char* name : {"a", "b", "c"}) {
            if (below(5) > 0) {
                made.names.emplace_back(name);
                made.items.push_back(value(depth));
            }
        }
        return made;
    }

private:
    std::size_t below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }

    std::string name() {
        const char* const names[] = {"a", "b", "c", "a", "b", "c", "a.b", "b.c"};
        return names[below(8)];
    }

    std::string outward() { return below(4) == 0 ? (below(4) == 0 ? "../../" : "../") : ""; }

    std::string filter() {
        const char* const filters[] = {
            "",       "",       "",           "",       "|default:x",
            "|count", "|money", "|date:yyyy", "|upper", "|default:none|number"};
        return filters[below(10)];
    }

    std::string part(int depth) {
        const std::size_t kinds = tags_ == Tags::OfAllKinds ? 8 : 6;
        switch (below(depth > 0 ? kinds : 2)) {
            case 0:
                return "{{" + outward() + name() + filter() + "}}";
            case 1:
                return below(3) == 0 ? "{{.}}" : "{{" + name() + "}}";
            case 2:
                return section("^", name(), depth);
            case 6:
                return section(below(2) == 0 ? "#" : "^", outward() + name(), depth);
            case 7:
                return section("#", below(2) == 0 ? "." : "@first", depth);
            default:
                return section("#", name(), depth);
        }
    }

    std::string section(const std::string& sign, const std::string& named, int depth) {
        const std::string optional = below(4) == 0 ? "|default:" : "";
        return "{{" + sign + named + optional + "}}" + content(depth - 1) + "{{/" + named + "}}";
    }

    std::mt19937 random_;
    Tags tags_;
};

std::optional<DataSchema> schemaOf(const Template& source) {
    std::string error;
    const std::string text = schemaOfTemplate(source, error);
    EXPECT_EQ(error, "");
    JsonFault fault;
    std::optional<DataSchema> schema = DataSchema::of(jsonValue(text), fault);
    EXPECT_TRUE(schema) << fault.pointer << ": " << fault.message << "\n" << text;
    return schema;
}

/// How often data filled a template, and how often not.
struct Counts {
    std::size_t filled = 0;
    std::size_t failed = 0;
};

/// Calls `check` with the errors of a filling and with the faults by the schema.
template <class Check>
Counts compare(Tags tags, Check check) {
    Generator generator(7, tags);
    Counts counts;
    for (int i = 0; i < 60; ++i) {
        const std::string content = generator.content(3);
        std::vector<TemplateError> errors;
        const Template source =
            compileTemplate(inParagraph("(pt=[" + content + "])"), TextEncoding::Utf8, {}, errors);
        EXPECT_TRUE(errors.empty()) << content;
        const std::optional<DataSchema> schema = schemaOf(source);
        if (!schema) {
            break;
        }
        TemplateFilling filling(source, {});
        for (int j = 0; j < 30; ++j) {
            const DataValue record =
                j == 0 && tags == Tags::OfAllKinds ? generator.value(2) : generator.object(3);
            errors.clear();
            filling.fill(record, errors);
            ++(errors.empty() ? counts.filled : counts.failed);
            check(content, errors, schema->faultsIn(record));
        }
    }
    return counts;
}

std::string messages(const std::vector<JsonFault>& faults) {
    std::string all;
    for (const JsonFault& fault : faults) {
        all += fault.message + " ";
    }
    return all;
}

TEST(SchemaOfATemplate, TakesWhatFillsIt) {
    const Counts counts =
        compare(Tags::ThatASchemaCanDescribe,
                [](const std::string& content, const std::vector<TemplateError>& errors,
                   const std::vector<JsonFault>& faults) {
                    EXPECT_EQ(errors.empty(), faults.empty())
                        << content << "\n"
                        << (errors.empty() ? messages(faults) : errors.front().message);
                });
    EXPECT_GT(counts.filled, 100U);
    EXPECT_GT(counts.failed, 100U);
}

TEST(SchemaOfATemplate, TakesNothingThatLacksAName) {
    const Counts counts = compare(
        Tags::OfAllKinds, [](const std::string& content, const std::vector<TemplateError>& errors,
                             const std::vector<JsonFault>& faults) {
            const auto missing = std::find_if(
                errors.begin(), errors.end(),
                [](const TemplateError& error) { return error.id == DiagnosticId::MissingName; });
            EXPECT_TRUE(missing == errors.end() || !faults.empty()) << content << "\n"
                                                                    << missing->message;
        });
    EXPECT_GT(counts.filled, 100U);
    EXPECT_GT(counts.failed, 100U);
}

}  // namespace
}  // namespace quorvane::data
