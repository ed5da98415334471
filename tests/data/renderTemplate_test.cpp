#include "data/renderTemplate.h"

#include <gtest/gtest.h>

#include <string>

#include "quorvane/compose/Error.h"

namespace quorvane::data {
namespace {

constexpr const char* prices =
    "; quorvane 2\n(doc\n{{#items}}\n(row\n(cell\n(para\n(pt={{price|number:2}})\npara)\ncell)\n"
    "row)\n{{/items}}\ndoc)\n";

std::string errorOf(const std::string& text, const std::string& json) {
    try {
        renderTemplate(text, json, {});
    } catch (const Error& error) {
        return error.identifier() + ": " + error.what();
    }
    return "none";
}

TEST(RenderTemplate, MakesTheDocumentOfTheFilledDescription) {
    std::string error;

    Rendering rendering = renderTemplate(prices, R"({"items": [{"price": 1.5}, {"price": 2}]})",
                                         localeNamed("de-DE", error));

    EXPECT_EQ(rendering.document.size(), 2U);
    EXPECT_NE(rendering.document.rtf().find("1,50\\cell"), std::string::npos);
    EXPECT_NE(rendering.document.rtf().find("2,00\\cell"), std::string::npos);
}

TEST(RenderTemplate, SaysWhatTheDataLack) {
    EXPECT_EQ(errorOf(prices, R"({"items": [{}]})").substr(0, 12), "missing-name");
}

TEST(RenderTemplate, RefusesWhatIsNotJson) {
    EXPECT_EQ(errorOf(prices, "{").substr(0, 11), "wrong-json:");
}

TEST(RenderTemplate, RefusesPartials) {
    EXPECT_NE(errorOf("; quorvane 2\n(doc\n{{>row.rtfpart}}\ndoc)\n", "{}").find("partials"),
              std::string::npos);
}

}  // namespace
}  // namespace quorvane::data
