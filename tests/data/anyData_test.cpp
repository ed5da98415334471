// Whatever strings the data holds, and wherever a template puts them, there is an error or a sound
// document that shows them as they are.

#include <gmock/gmock.h>

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "quorvane/base/text/utf8.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/rtf/escape.h"
#include "tests/data/FilledTemplate.h"
#include "tests/rtf/shownText.h"

namespace quorvane::data {
namespace {

using testing::IsEmpty;

/// What could mean something in a template, a description, a page header or a document.
const std::vector<std::string> nastyParts = {
    "{{",     "}}",           "{{a}}",  "{{#a}}",   "{{{",      "\"\"\"",     "\"\"\")", ")",
    "(",      "p)",           "(doc",   "doc)",     "\n",       "\r\n",       "\r",      "\t",
    ";",      "; quorvane 2", "=",      "|",        "{page}",   "{",          "}",       "\\",
    "\\par",  "\\'41",        "\\cell", "<strong=", ">",        "<",          " ",       "  ",
    "#",      "..",           "/",      "\u00A0",   "\u0159",   "\U0001F600", "\u202E",  "e\u0301",
    "\uFFFE", "red",          "0",      "x",        "\\u8364?", "^a",
};

class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}

    std::size_t below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }

    std::string text() {
        std::string made;
        for (std::size_t parts = below(6); parts > 0; --parts) {
            if (below(3) == 0) {
                appendUtf8(static_cast<char32_t>(below(0xD800)), made);
            } else {
                made += nastyParts[below(nastyParts.size())];
            }
        }
        return made;
    }

private:
    std::mt19937 random_;
};

DataValue recordOf(const std::string& text) {
    return {.kind = DataValue::Kind::Object,
            .items = {{.kind = DataValue::Kind::String, .text = text}},
            .names = {"a"}};
}

constexpr const char* styles =
    "; quorvane 2\n{ name: normal; style-def: paragraph }\n"
    "{ name: strong; style-def: character; bold }\n";

/// What comes of a text in a template: the errors, or the document and its first text.
struct Outcome {
    std::string errors;
    std::string document;
    std::string text;
};

class Rendering {
public:
    explicit Rendering(const std::string& text)
        : template_(compileTemplate(text, TextEncoding::Utf8, {}, errors_)),
          filling_(template_, {}) {
        driver_->RtfObject()->setExtendedStyleSheets(true);
        driver_->LoadStyleSheetFromMemmory(styles);
        driver_->setPictureSource([](const std::string&) { return std::string("no picture"); });
        driver_->setNotifyErrorHandler(
            [this](CRtfDriver&, const RtfError& error) { outcome_.errors += error.description; });
        EXPECT_THAT(errors_, IsEmpty());
    }
    Rendering(const Rendering&) = delete;
    Rendering& operator=(const Rendering&) = delete;
    ~Rendering() { driver_->setNotifyErrorHandler({}); }

    Outcome with(const std::string& text) {
        outcome_ = {};
        const DataValue record = recordOf(text);
        std::vector<TemplateError> errors;
        const std::vector<SourceLine>& lines = filling_.fill(record, errors);
        if (!errors.empty()) {
            outcome_.errors = errors.front().message;
            return outcome_;
        }
        parseFilled(*driver_, lines);
        if (outcome_.errors.empty()) {
            outcome_.document = driver_->Contents();
            outcome_.text = driver_->RtfObject()
                                ->TableRows()
                                ->Item(1)
                                ->TableCells()
                                ->Item(1)
                                ->Paragraphs()
                                ->Item(1)
                                ->Text();
        }
        return outcome_;
    }

private:
    std::vector<TemplateError> errors_;
    Template template_;
    TemplateFilling filling_;
    Ref<CRtfDriver> driver_ = CRtfDriver::create();
    Outcome outcome_;
};

std::string withLineFeeds(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') {
            result += text[i];
        } else if (i + 1 == text.size() || text[i + 1] != '\n') {
            result += '\n';
        }
    }
    return result;
}

bool canBeShown(const std::string& text) {
    return !findUnshowable(text);
}

TEST(AnyText, IsShownInAParagraphAsItIs) {
    Generator generator(1);
    Rendering rendering(inParagraph("(pt=[{{a}}])"));
    for (int i = 0; i < 5000; ++i) {
        const std::string text = generator.text();
        const Outcome outcome = rendering.with(text);
        if (!canBeShown(text)) {
            EXPECT_NE(outcome.errors, "") << text;
            continue;
        }
        ASSERT_EQ(outcome.errors, "") << text;
        EXPECT_EQ(shownText(outcome.text), "[" + withLineFeeds(text) + "]");
        EXPECT_THAT(checkRtf(outcome.document), IsEmpty()) << text;
    }
}

TEST(AnyText, IsShownInAValueOfSeveralLinesAsItIs) {
    Generator generator(2);
    Rendering rendering(inParagraph("(pt=\"\"\"\n  {{a}}\n  {{a}}\n  \"\"\")"));
    for (int i = 0; i < 2000; ++i) {
        const std::string text = generator.text();
        const Outcome outcome = rendering.with(text);
        if (canBeShown(text)) {
            EXPECT_EQ(shownText(outcome.text), withLineFeeds(text) + "\n" + withLineFeeds(text));
            EXPECT_THAT(checkRtf(outcome.document), IsEmpty()) << text;
        }
    }
}

TEST(AnyText, IsShownInAnInlineStyleAsItIs) {
    Generator generator(3);
    Rendering rendering(inParagraph("(pt=<strong={{a}}>)"));
    const std::string empty = rendering.with("").text;
    const std::string before = empty.substr(0, empty.size() - 1);
    for (int i = 0; i < 2000; ++i) {
        const std::string text = generator.text();
        const Outcome outcome = rendering.with(text);
        if (canBeShown(text)) {
            ASSERT_EQ(outcome.text.substr(0, before.size()), before);
            ASSERT_TRUE(outcome.text.ends_with('}'));
            const std::string inner =
                outcome.text.substr(before.size(), outcome.text.size() - before.size() - 1);
            EXPECT_EQ(shownText(inner), withLineFeeds(text));
        }
    }
}

class AnyTextIn : public testing::TestWithParam<const char*> {};

TEST_P(AnyTextIn, MakesAnErrorOrASoundDocument) {
    Generator generator(4);
    Rendering rendering(GetParam());
    for (int i = 0; i < 1000; ++i) {
        const std::string text = generator.text();
        const Outcome outcome = rendering.with(text);
        if (outcome.errors.empty()) {
            std::vector<std::string> errors;
            for (const Diagnostic& diagnostic : checkRtf(outcome.document)) {
                if (diagnostic.severity == Severity::Error) {
                    errors.push_back(diagnostic.message);
                }
            }
            EXPECT_THAT(errors, IsEmpty()) << GetParam() << "\nwith " << text;
        }
    }
}

std::string page(const std::string& leaf) {
    return "; quorvane 2\n(doc\n" + leaf +
           "\n(r\n(row-key=a{{a}})\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)\n";
}

const std::string header = page("(header={{a}}|{page}|{{a}})");
const std::string footer = page("(footer=a {{a}} {pages})");
const std::string paper = page("(page={{a}})");
const std::string fonts = page("(fonts=Arial,{{a}})");
const std::string styleOf = inParagraph("(ps={{a}})\n(pt=x)");
const std::string rtf = inParagraph("(rtf=\\b{{a}})\n(pt=x)");
const std::string rawRtf = inParagraph("(rtf={{{a}}})\n(pt=x)");
const std::string picture = inParagraph("(picture={{a}})");
const std::string field = inParagraph("(pmf={{a}})\n(pt=x)");

INSTANTIATE_TEST_SUITE_P(Places, AnyTextIn,
                         testing::Values(header.c_str(), footer.c_str(), paper.c_str(),
                                         fonts.c_str(), styleOf.c_str(), rtf.c_str(),
                                         rawRtf.c_str(), picture.c_str(), field.c_str()));

}  // namespace
}  // namespace quorvane::data
