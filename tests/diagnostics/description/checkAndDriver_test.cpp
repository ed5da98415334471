// The check of a text has an error exactly when the library rejects it, and has the library's own.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/description/ViolationReport.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/driverErrorTable.h"
#include "quorvane/stylesheet/stylesheetParser.h"
#include "tests/diagnostics/randomDescriptions.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

bool hasError(const std::vector<Diagnostic>& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::Error;
    });
}

bool has(const std::vector<Diagnostic>& diagnostics, DiagnosticId id) {
    return std::any_of(diagnostics.begin(), diagnostics.end(),
                       [id](const Diagnostic& diagnostic) { return diagnostic.id == id; });
}

/// True when the error itself is reported, on its line if it has one.
bool isReported(const RtfError& error, const std::vector<Diagnostic>& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), [&](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::Error && diagnostic.message == error.description &&
               (error.line == 0 || diagnostic.place.line == error.line);
    });
}

/// Those in the original language; others are compared in tests of their own.
std::vector<std::string> originalTextsBelow(const std::string& folder,
                                            const std::string& extension) {
    std::vector<std::string> texts = textsBelow(folder, extension);
    std::erase_if(texts, [](const std::string& text) { return isMarkedExtended(text); });
    return texts;
}

/// Compares the check of descriptions with a driver that checks.
class CheckAndDriver : public testing::Test {
protected:
    CheckAndDriver() {
        driver->setErroneousInput(true);
        driver->setNotifyErrorHandler(
            [this](CRtfDriver&, const RtfError& error) { errors.push_back(error); });
    }
    ~CheckAndDriver() override { driver->setNotifyErrorHandler({}); }

    void compare(const std::string& text) {
        errors.clear();
        driver->ParseFromMemmory(text);
        ++(errors.empty() ? acceptances : rejections);
        const std::vector<Diagnostic> diagnostics = checkDescription(text);
        ASSERT_EQ(hasError(diagnostics), !errors.empty()) << text;
        if (!errors.empty() && !isReported(errors.front(), diagnostics)) {
            ASSERT_TRUE(isReportedOtherwise(errors.front(), diagnostics))
                << errors.front().line << ": " << errors.front().description << "\n"
                << text;
            ++otherReports;
        }
    }

    /// A misspelled para-text is reported instead of the text that is missing then. The check
    /// applies the rules of its kind to a misplaced node, the driver those of its place.
    static bool isReportedOtherwise(const RtfError& error,
                                    const std::vector<Diagnostic>& diagnostics) {
        const bool lacksText = error.description == driverErrorText(DriverFault::NoParaText);
        return (lacksText && has(diagnostics, DiagnosticId::WrongKeyword)) ||
               has(diagnostics, DiagnosticId::WrongContext) ||
               has(diagnostics, DiagnosticId::NodeInParagraph);
    }

    FakePlatform platform;
    Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    std::vector<RtfError> errors;
    int rejections = 0;
    int acceptances = 0;
    int otherReports = 0;
};

TEST_F(CheckAndDriver, AgreeOnGeneratedDescriptions) {
    RandomDescriptions random(1);
    for (int i = 0; i < 2000; ++i) {
        ASSERT_NO_FATAL_FAILURE(compare(random.description()));
    }
    EXPECT_GT(rejections, 300);
    EXPECT_GT(acceptances, 300);
    EXPECT_LT(otherReports, rejections / 10);
}

TEST_F(CheckAndDriver, AgreeOnMutatedDescriptions) {
    RandomDescriptions random(2);
    for (int i = 0; i < 1500; ++i) {
        std::string text = random.description();
        const std::size_t changes = 1 + random.below(2);
        ASSERT_NO_FATAL_FAILURE(compare(random.mutated(std::move(text), changes)));
    }
    EXPECT_GT(rejections, 300);
    EXPECT_GT(acceptances, 50);
    EXPECT_LT(otherReports, rejections / 10);
}

TEST_F(CheckAndDriver, ReportSomethingWhereADriverThatDoesNotCheckHasAnError) {
    RandomDescriptions random(9);
    driver->setErroneousInput(false);
    for (int i = 0; i < 2000; ++i) {
        errors.clear();
        const std::string text = random.mutated(random.description(), random.below(3));
        driver->ParseFromMemmory(text);
        ++(errors.empty() ? acceptances : rejections);
        if (!errors.empty()) {
            ASSERT_FALSE(checkDescription(text).empty()) << text;
        }
    }
    EXPECT_GT(rejections, 200);
    EXPECT_GT(acceptances, 200);
}

/// A document whose number is not the first one's is not built.
TEST_F(CheckAndDriver, AgreeOnADocumentThatComesAfterANestedOne) {
    compare("(doc=1)\n(r\n(c\n(doc\ndoc)\nc)\nr)\n(doc\n(r\n(c\nc)\nr)\ndoc)");
    EXPECT_EQ(rejections, 1);
}

TEST_F(CheckAndDriver, AgreeOnManyErrorsOfTheBuild) {
    std::string cells;
    for (int i = 0; i < 100; ++i) {
        cells += "(c\n(cw=99999999)\nc)\n";
    }
    const std::string text = "(doc\n(r\n" + cells + "r)\ndoc)";
    compare(text);
    const std::vector<Diagnostic> diagnostics = checkDescription(text);
    EXPECT_EQ(
        std::count_if(diagnostics.begin(), diagnostics.end(),
                      [](const Diagnostic& each) { return each.id == DiagnosticId::Overflow; }),
        100);
}

/// What the driver rejects, the tables of diagnostics have in the same words.
TEST(TextsOfErrors, AreThoseOfTheDriver) {
    for (int i = 0; i < static_cast<int>(DriverFault::Other); ++i) {
        const auto fault = static_cast<DriverFault>(i);
        if (diagnosticOf(fault) != DiagnosticId::Rejected) {
            EXPECT_EQ(diagnosticRule(diagnosticOf(fault)).message,
                      driverError(fault, "{0}").description)
                << i;
        }
    }
}

TEST_F(CheckAndDriver, AgreeOnMutatedGoldenDescriptions) {
    RandomDescriptions random(3);
    for (const std::string& text : originalTextsBelow(QUORVANE_GOLDEN_FOLDER, ".rtfspec")) {
        ASSERT_NO_FATAL_FAILURE(compare(text));
        const int times = text.size() > 5000 ? 3 : 40;
        for (int i = 0; i < times; ++i) {
            ASSERT_NO_FATAL_FAILURE(compare(random.mutated(text, 1 + random.below(4))));
        }
    }
    EXPECT_GT(rejections, 200);
    EXPECT_GT(acceptances, 60);
    EXPECT_LT(otherReports, rejections / 10);
}

TEST_F(CheckAndDriver, AgreeOnAnyBytes) {
    RandomDescriptions random(4);
    for (int i = 0; i < 300; ++i) {
        std::string bytes;
        for (std::size_t length = random.below(60); length > 0; --length) {
            bytes += static_cast<char>(random.below(256));
        }
        ASSERT_NO_FATAL_FAILURE(compare(bytes));
        ASSERT_NO_FATAL_FAILURE(compare("(doc\n(r\n(c\n(p\n(pt=" + bytes + ")\np)\nc)\nr)\ndoc)"));
    }
    EXPECT_LT(otherReports, rejections / 10);
}

/// Compares the check of stylesheets with their loading.
class CheckAndLoading : public testing::Test {
protected:
    void compare(const std::string& text) {
        bool rejected = false;
        try {
            parseStyleSheet(text, [](const StyleDefinition&) {});
        } catch (const RtfError&) {
            rejected = true;
        }
        ++(rejected ? rejections : acceptances);
        ASSERT_EQ(hasError(checkStyleSheet(text)), rejected) << text;
    }

    int rejections = 0;
    int acceptances = 0;
};

std::string randomSheet(RandomDescriptions& random) {
    static const std::vector<std::string> parts{
        "{ ",           "{",          " }\n",   "}",          ";",
        "; ",           "name: a",    "name:b", "NAME: C, d", "style-def",
        ": s",          ": cs",       ": cell", ": x",        "format",
        ": \\fs20",     "additive",   ": yes",  ": maybe",    "based-on",
        "next",         ":",          "\n",     " note ",     "^v\\b^f\\i",
        "style-def: s", "format: \\b"};
    std::string text;
    for (std::size_t count = random.below(25); count > 0; --count) {
        text += parts[random.below(parts.size())];
    }
    return text;
}

std::string soundSheet(RandomDescriptions& random) {
    static const std::vector<std::string> kinds{"s", "cs", "cell", "S"};
    std::string text;
    for (std::size_t count = 1 + random.below(4); count > 0; --count) {
        text += "note { name: n" + std::to_string(count) +
                "; style-def: " + kinds[random.below(kinds.size())] + "; format: \\b" +
                (random.below(2) == 0 ? "; next: n1" : ";") + " }\n";
    }
    return text;
}

TEST_F(CheckAndLoading, AgreeOnGeneratedStyleSheets) {
    RandomDescriptions random(5);
    for (int i = 0; i < 4000; ++i) {
        ASSERT_NO_FATAL_FAILURE(compare(randomSheet(random)));
        ASSERT_NO_FATAL_FAILURE(compare("{name: a" + randomSheet(random) + "}"));
        ASSERT_NO_FATAL_FAILURE(compare(random.mutated(soundSheet(random), random.below(3))));
    }
    EXPECT_GT(rejections, 400);
    EXPECT_GT(acceptances, 400);
}

TEST_F(CheckAndLoading, AgreeOnMutatedGoldenStyleSheets) {
    RandomDescriptions random(6);
    for (const std::string& text : originalTextsBelow(QUORVANE_GOLDEN_FOLDER, ".rtfss")) {
        for (int i = 0; i < 50; ++i) {
            ASSERT_NO_FATAL_FAILURE(compare(random.mutated(text, random.below(4))));
        }
    }
    EXPECT_GT(rejections, 20);
    EXPECT_GT(acceptances, 50);
}

}  // namespace
}  // namespace quorvane
