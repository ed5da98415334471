// Where all names exist, a template shows what other implementations of Mustache show.

#include <gmock/gmock.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <kainjow/mustache.hpp>
#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <utility>
#include <vector>

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

struct Case {
    std::string content;
    DataValue record;
};

std::vector<Case> cases() {
    Generator generator(1);
    std::vector<Case> made;
    for (int i = 0; i < 3000; ++i) {
        std::string content = "[" + generator.content(3) + "]";
        made.push_back({std::move(content), generator.object(3)});
    }
    return made;
}

/// The text of a paragraph that a template with the content shows.
std::string shown(const Case& made) {
    std::vector<TemplateError> errors;
    const Template source =
        compileTemplate(inParagraph("(pt=" + made.content + ")"), TextEncoding::Utf8, {}, errors);
    TemplateFilling filling(source, {});
    const SourceLine& line = filling.fill(made.record, errors)[4];
    EXPECT_TRUE(errors.empty()) << made.content << errors.front().message;
    // A line without tags stands as it is written: "(pt=[...])".
    return std::string(line.filled ? line.filled->text : line.text.substr(4, line.text.size() - 5));
}

nlohmann::json json(const DataValue& value) {
    switch (value.kind) {
        case DataValue::Kind::Boolean:
            return value.text == "true";
        case DataValue::Kind::List: {
            nlohmann::json list = nlohmann::json::array();
            for (const DataValue& item : value.items) {
                list.push_back(json(item));
            }
            return list;
        }
        case DataValue::Kind::Object: {
            nlohmann::json object = nlohmann::json::object();
            for (std::size_t i = 0; i < value.names.size(); ++i) {
                object[value.names[i]] = json(value.items[i]);
            }
            return object;
        }
        default:
            return value.text;
    }
}

/// What mustache.js makes of all cases, in one run of Node.
nlohmann::json shownByMustacheJs(const std::vector<Case>& all) {
    namespace fs = std::filesystem;
    const fs::path file =
        fs::path(testing::TempDir()) / ("quorvane-mustache-" + std::to_string(::getpid()));
    nlohmann::json asked = nlohmann::json::array();
    for (const Case& each : all) {
        asked.push_back({{"content", each.content}, {"record", json(each.record)}});
    }
    std::ofstream(file) << asked;
    const std::string command =
        "NODE_PATH=/usr/share/nodejs node " QUORVANE_MUSTACHE_JS " " + file.string();
    std::string output;
    if (std::FILE* const pipe = ::popen(command.c_str(), "r")) {
        char block[4096];
        while (const std::size_t size = std::fread(block, 1, sizeof block, pipe)) {
            output.append(block, size);
        }
        EXPECT_EQ(::pclose(pipe), 0);
    }
    fs::remove(file);
    return nlohmann::json::parse(output, nullptr, false);
}

TEST(OtherEngines, ShowTheSameForNamesThatExist) {
    for (const Case& each : cases()) {
        mustache other(each.content);
        other.set_custom_escape([](const std::string& text) { return text; });
        EXPECT_EQ(shown(each), other.render(otherData(each.record))) << each.content;
    }
}

TEST(OtherEngines, OnNodeShowTheSameForNamesThatExist) {
    const std::vector<Case> all = cases();
    const nlohmann::json others = shownByMustacheJs(all);
    ASSERT_EQ(others.size(), all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(shown(all[i]), others[i].get<std::string>()) << all[i].content;
    }
}

}  // namespace
}  // namespace quorvane::data
