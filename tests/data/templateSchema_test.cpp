#include "data/templateSchema.h"

#include <gmock/gmock.h>

#include "tests/data/FilledTemplate.h"

namespace quorvane::data {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string schemaOf(const std::string& text, const Partials& partials = {}) {
    std::vector<TemplateError> errors;
    const Template source =
        compileTemplate(inParagraph(text), TextEncoding::Utf8, sourceOf(partials), errors);
    EXPECT_TRUE(errors.empty()) << text;
    std::string error;
    std::string schema = schemaOfTemplate(source, error);
    EXPECT_EQ(error, "");
    return schema;
}

TEST(TemplateSchema, AsksForEachNameWithItsLine) {
    EXPECT_EQ(schemaOf("(pt={{name}})"), R"({
  "$schema": "http://json-schema.org/draft-07/schema#",
  "type": "object",
  "required": [
    "name"
  ],
  "properties": {
    "name": {
      "description": "Line 6: {{name}}.",
      "type": [
        "string",
        "number",
        "boolean"
      ]
    }
  }
}
)");
}

TEST(TemplateSchema, DoesNotRequireANameWithADefault) {
    EXPECT_EQ(schemaOf("(pt={{a.b|default:x}})"), R"({
  "$schema": "http://json-schema.org/draft-07/schema#",
  "properties": {
    "a": {
      "properties": {
        "b": {
          "description": "Line 6: {{a.b|default:x}}.",
          "type": [
            "string",
            "number",
            "boolean",
            "null"
          ]
        }
      }
    }
  }
}
)");
}

TEST(TemplateSchema, AsksAListForItsItems) {
    EXPECT_EQ(schemaOf("(pt={{#tags}}{{@index}} {{.}}{{/tags}})"), R"({
  "$schema": "http://json-schema.org/draft-07/schema#",
  "type": "object",
  "required": [
    "tags"
  ],
  "properties": {
    "tags": {
      "description": "Line 6: {{#tags}}.",
      "type": [
        "array",
        "string",
        "boolean",
        "null"
      ],
      "maxLength": 0,
      "not": {
        "const": true
      },
      "items": {
        "type": [
          "string",
          "number",
          "boolean"
        ]
      }
    }
  }
}
)");
}

TEST(TemplateSchema, NamesThePartialThatATagStandsIn) {
    EXPECT_THAT(schemaOf("{{> part}}", {{"part.rtfpart", "(pt=x)\n(pt={{a}})\n"}}),
                HasSubstr(R"("description": "part.rtfpart, line 2: {{a}}.")"));
}

TEST(TemplateSchema, AsksForWhatAFilterTakes) {
    EXPECT_THAT(schemaOf("(pt={{a|count}})"), HasSubstr(R"("type": "array")"));
    EXPECT_THAT(schemaOf("(pt={{a|date:yyyy}})"), HasSubstr("\"pattern\": \"^[0-9]{4}-"));
    EXPECT_THAT(schemaOf("(pt={{a|money}})"), HasSubstr("\"pattern\": \"^[-+]?("));
    EXPECT_THAT(schemaOf("(pt={{a|upper}})"), Not(HasSubstr("pattern")));
}

TEST(TemplateSchema, IsTheSameEachTime) {
    const std::string text = "(pt={{#b}}{{c}}{{../a}}{{/b}}{{#b}}{{d}}{{/b}}{{^b}}{{e}}{{/b}})";
    EXPECT_EQ(schemaOf(text), schemaOf(text));
}

TEST(TemplateSchema, SaysWhenSectionsAreNestedTooDeep) {
    std::string text;
    for (int i = 0; i < 40; ++i) {
        text = "{{#a}}" + text + "{{/a}}";
    }
    std::vector<TemplateError> errors;
    const Template source =
        compileTemplate(inParagraph("(pt=" + text + ")"), TextEncoding::Utf8, {}, errors);
    std::string error;
    EXPECT_EQ(schemaOfTemplate(source, error), "");
    EXPECT_EQ(error, "Sections are nested deeper than 32 levels.");
}

TEST(TemplateSchema, SaysWhenTooManySectionsLookOutward) {
    std::string text;
    for (int i = 0; i < 20; ++i) {
        text = "{{#a}}{{../../../../../../../../../../../../b}}" + text + "{{/a}}";
    }
    std::vector<TemplateError> errors;
    const Template source =
        compileTemplate(inParagraph("(pt=" + text + ")"), TextEncoding::Utf8, {}, errors);
    std::string error;
    EXPECT_EQ(schemaOfTemplate(source, error), "");
    EXPECT_EQ(error, "Too many sections in sections look outward with ../.");
}

}  // namespace
}  // namespace quorvane::data
