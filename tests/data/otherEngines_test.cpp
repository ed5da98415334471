// Where all names exist, a template shows what another implementation of Mustache shows.

#include <gmock/gmock.h>

#include <kainjow/mustache.hpp>
#include <random>
#include <string>
#include <utility>

#include "tests/data/FilledTemplate.h"

namespace quorvane::data {
namespace {

using kainjow::mustache::mustache;
using OtherData = kainjow::mustache::data;

OtherData otherData(const DataValue& value) {
    switch (value.kind) {
        case DataValue::Kind::Boolean:
            return OtherData(value.text == "true");
        case DataValue::Kind::List: {
            OtherData list(OtherData::type::list);
            for (const DataValue& item : value.items) {
                list.push_back(otherData(item));
            }
            return list;
        }
        case DataValue::Kind::Object: {
            OtherData object(OtherData::type::object);
            for (std::size_t i = 0; i < value.names.size(); ++i) {
                object.set(value.names[i], otherData(value.items[i]));
            }
            return object;
        }
        default:
            return OtherData(value.text);
    }
}

/// Makes templates and data for them: in each object are the texts a and b, the condition c, the
/// object o and the list l, except in the innermost ones.
class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}

    DataValue object(int depth) {
        DataValue made{.kind = DataValue::Kind::Object};
        made.names = {"a", "b", "c"};
        made.items = {text(), text(), condition()};
        if (depth > 0) {
            DataValue list{.kind = DataValue::Kind::List};
            for (std::size_t items = below(4); items > 0; --items) {
                list.items.push_back(object(depth - 1));
            }
            made.names.insert(made.names.end(), {"l", "o"});
            made.items.push_back(std::move(list));
            made.items.push_back(object(depth - 1));
        }
        return made;
    }

    std::string content(int depth) {
        std::string made;
        for (std::size_t parts = below(5); parts > 0; --parts) {
            made += part(depth);
        }
        return made;
    }

private:
    std::size_t below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }

    DataValue text() {
        const char* const texts[] = {"x", "<&>", "{{b}}", " y ", "žluť"};
        return {.kind = DataValue::Kind::String, .text = texts[below(5)]};
    }

    DataValue condition() {
        return {.kind = DataValue::Kind::Boolean, .text = below(2) == 0 ? "true" : "false"};
    }

    std::string part(int depth) {
        switch (below(depth > 0 ? 8 : 5)) {
            case 0:
                return "{{a}}";
            case 1:
                return "{{ b }}";
            case 2:
                return " text, ";
            case 3:
                return "{{! comment }}";
            case 4:
                return (below(2) == 0 ? "{{#c}}" : "{{^c}}") + content(depth) + "{{/c}}";
            case 5:
                return "{{o.a}}";
            case 6:
                return "{{#o}}" + content(depth - 1) + "{{/o}}";
            default:
                return below(3) == 0 ? "{{^l}}" + content(depth) + "{{/l}}"
                                     : "{{#l}}" + content(depth - 1) + "{{/l}}";
        }
    }

    std::mt19937 random_;
};

TEST(OtherEngines, ShowTheSameForNamesThatExist) {
    Generator generator(1);
    for (int i = 0; i < 3000; ++i) {
        const std::string content = "[" + generator.content(3) + "]";
        const DataValue record = generator.object(3);
        std::vector<TemplateError> errors;
        const Template source =
            compileTemplate(inParagraph("(pt=" + content + ")"), TextEncoding::Utf8, {}, errors);
        TemplateFilling filling(source, {});
        const std::vector<SourceLine>& lines = filling.fill(record, errors);
        ASSERT_TRUE(errors.empty()) << content << errors.front().message;
        const std::string_view shown =
            lines[4].filled ? lines[4].filled->text : lines[4].text.substr(4);

        mustache other(content);
        other.set_custom_escape([](const std::string& text) { return text; });
        const std::string expected = other.render(otherData(record));
        EXPECT_EQ(std::string(shown.substr(0, expected.size())), expected) << content;
        EXPECT_EQ(shown.size(), expected.size() + (lines[4].filled ? 0 : 1)) << content;
    }
}

}  // namespace
}  // namespace quorvane::data
