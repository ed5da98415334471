// A text has an error for the check exactly when the library rejects it.

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/description/judgement.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/stylesheet/stylesheetParser.h"
#include "tests/diagnostics/randomDescriptions.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;

bool hasError(const std::vector<Diagnostic>& findings) {
    return std::any_of(findings.begin(), findings.end(), [](const Diagnostic& finding) {
        return finding.severity == Severity::Error;
    });
}

// What becomes of findings where the library judges otherwise, which no text is known for.
class JudgedFindings : public testing::Test {
protected:
    /// The findings that are left, each as its line, its identifier and its message.
    std::vector<std::string> judged(const std::vector<Diagnostic>& findings,
                                    const std::vector<RtfError>& errors) const {
        std::vector<std::string> list;
        for (const Diagnostic& finding :
             judgedFindings(findings, errors, DiagnosticId::Rejected, source)) {
            list.push_back(std::to_string(finding.place.line) + " " +
                           std::string(diagnosticRule(finding.id).identifier) + " " +
                           finding.message);
        }
        return list;
    }

    static RtfError errorIn(int line) {
        RtfError error(4711, "A new error");
        error.line = line;
        return error;
    }

    const SourceText source{"(doc\n(row\ndoc)"};
    const Diagnostic error{DiagnosticId::NoRow, Severity::Error, source.place(0, 4), "none", ""};
    const Diagnostic warning{DiagnosticId::EmptyText, Severity::Warning, source.place(5, 9),
                             "empty", ""};
};

TEST_F(JudgedFindings, HaveNoErrorInWhatTheLibraryAccepts) {
    EXPECT_THAT(judged({error, warning}, {}), ElementsAre("2 empty-text empty"));
}

TEST_F(JudgedFindings, StayWhereTheLibraryRejectsTheTextToo) {
    EXPECT_THAT(judged({error, warning}, {errorIn(3)}),
                ElementsAre("1 no-row none", "2 empty-text empty"));
}

TEST_F(JudgedFindings, HoldTheLibrarysErrorsInTheirPlacesWhereNoneIsAnError) {
    EXPECT_THAT(
        judged({warning}, {errorIn(3), errorIn(1)}),
        ElementsAre("1 rejected A new error", "2 empty-text empty", "3 rejected A new error"));
}

TEST_F(JudgedFindings, PutAnErrorWithoutALineIntoTheFirstAndOneBeyondTheEndIntoTheLast) {
    EXPECT_THAT(judged({}, {errorIn(4), errorIn(0)}),
                ElementsAre("1 rejected A new error", "3 rejected A new error"));
}

/// Compares the check with a driver that checks.
class Judgement : public testing::Test {
protected:
    Judgement() {
        driver->setErroneousInput(true);
        driver->setNotifyErrorHandler([this](CRtfDriver&) { rejected = true; });
    }
    ~Judgement() override { driver->setNotifyErrorHandler({}); }

    void compare(const std::string& text) {
        rejected = false;
        driver->ParseFromMemmory(text);
        ++(rejected ? rejections : acceptances);
        ASSERT_EQ(hasError(checkDescription(text)), rejected) << text;
        const bool foundAlone = hasError(findingsWithoutDriver(text));
        ASSERT_FALSE(foundAlone && !rejected) << "an error in what is accepted:\n" << text;
        missed += rejected && !foundAlone ? 1 : 0;
    }

    FakePlatform platform;
    Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    bool rejected = false;
    int rejections = 0;
    int acceptances = 0;
    int missed = 0;
};

TEST_F(Judgement, OfGeneratedDescriptionsIsTheDrivers) {
    RandomDescriptions random(1);
    for (int i = 0; i < 2000; ++i) {
        ASSERT_NO_FATAL_FAILURE(compare(random.description()));
    }
    EXPECT_GT(rejections, 300);
    EXPECT_GT(acceptances, 300);
    EXPECT_EQ(missed, 0);
}

TEST_F(Judgement, OfMutatedDescriptionsIsTheDrivers) {
    RandomDescriptions random(2);
    for (int i = 0; i < 1500; ++i) {
        std::string text = random.description();
        const std::size_t changes = 1 + random.below(2);
        ASSERT_NO_FATAL_FAILURE(compare(random.mutated(std::move(text), changes)));
    }
    EXPECT_GT(rejections, 300);
    EXPECT_GT(acceptances, 50);
    EXPECT_EQ(missed, 0);
}

/// A driver that does not check rejects nothing that the check finds nothing in, not even a
/// warning.
TEST_F(Judgement, OfADriverThatDoesNotCheckIsNotStricter) {
    RandomDescriptions random(9);
    driver->setErroneousInput(false);
    for (int i = 0; i < 2000; ++i) {
        rejected = false;
        const std::string text = random.mutated(random.description(), random.below(3));
        driver->ParseFromMemmory(text);
        ++(rejected ? rejections : acceptances);
        if (rejected) {
            ASSERT_FALSE(checkDescription(text).empty()) << text;
        }
    }
    EXPECT_GT(rejections, 200);
    EXPECT_GT(acceptances, 200);
}

TEST_F(Judgement, OfMutatedGoldenDescriptionsIsTheDrivers) {
    RandomDescriptions random(3);
    for (const std::string& text : textsBelow(QUORVANE_GOLDEN_FOLDER, ".rtfspec")) {
        ASSERT_NO_FATAL_FAILURE(compare(text));
        const int times = text.size() > 5000 ? 3 : 40;
        for (int i = 0; i < times; ++i) {
            ASSERT_NO_FATAL_FAILURE(compare(random.mutated(text, 1 + random.below(4))));
        }
    }
    EXPECT_GT(rejections, 200);
    EXPECT_GT(acceptances, 60);
    EXPECT_EQ(missed, 0);
}

TEST_F(Judgement, OfAnyBytesIsTheDrivers) {
    RandomDescriptions random(4);
    for (int i = 0; i < 300; ++i) {
        std::string bytes;
        for (std::size_t length = random.below(60); length > 0; --length) {
            bytes += static_cast<char>(random.below(256));
        }
        ASSERT_NO_FATAL_FAILURE(compare(bytes));
        ASSERT_NO_FATAL_FAILURE(compare("(doc\n(r\n(c\n(p\n(pt=" + bytes + ")\np)\nc)\nr)\ndoc)"));
    }
    EXPECT_EQ(missed, 0);
}

/// Compares the check of stylesheets with their loading.
class SheetJudgement : public testing::Test {
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

TEST_F(SheetJudgement, OfGeneratedStyleSheetsIsThatOfLoadingThem) {
    RandomDescriptions random(5);
    for (int i = 0; i < 4000; ++i) {
        ASSERT_NO_FATAL_FAILURE(compare(randomSheet(random)));
        ASSERT_NO_FATAL_FAILURE(compare("{name: a" + randomSheet(random) + "}"));
        ASSERT_NO_FATAL_FAILURE(compare(random.mutated(soundSheet(random), random.below(3))));
    }
    EXPECT_GT(rejections, 400);
    EXPECT_GT(acceptances, 400);
}

TEST_F(SheetJudgement, OfMutatedGoldenStyleSheetsIsThatOfLoadingThem) {
    RandomDescriptions random(6);
    for (const std::string& text : textsBelow(QUORVANE_GOLDEN_FOLDER, ".rtfss")) {
        for (int i = 0; i < 50; ++i) {
            ASSERT_NO_FATAL_FAILURE(compare(random.mutated(text, random.below(4))));
        }
    }
    EXPECT_GT(rejections, 20);
    EXPECT_GT(acceptances, 50);
}

}  // namespace
}  // namespace quorvane
