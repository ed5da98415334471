// Memory runs out at every place of a run, from the driver's creation to the written file. The call
// that it runs out in throws std::bad_alloc; nothing is lost for it, and whoever goes on gets all
// that he would have got without.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/support/currentError.h"
#include "tests/outOfMemory/withoutMemory.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/failingAllocations.h"

namespace quorvane {

bool isOutOfMemory(const std::function<void()>& call) {
    bool isThrown = false;
    failingAllocations::successesLeft = 0;
    try {
        call();
    } catch (const std::bad_alloc&) {
        isThrown = true;
    }
    failingAllocations::successesLeft = -1;
    return isThrown;
}

namespace {

constexpr const char* styleSheet =
    "{ name: normal; style-def: s; format: \\f9\\fs20 }"
    "{ name: title, heading; style-def: s; format: \\f0\\fs28\\b; based-on: normal; next: normal }"
    "{ name: strong; style-def: cs; format: \\b; additive: yes }"
    "{ name: mild; style-def: cs; format: \\i }"
    "{ name: shaded; style-def: cell; format: navy-blue }";

constexpr const char* description =
    "(doc\n(paper-width=11906)\n(left-margin=1000)\n"
    "(r ; the first row\n(rb=light-yellow)\n(rbb=thin)\n(row-key=7)\n"
    "(c\n(cw=40)\n(cell-key=8)\n(cmf=data of the marked cell)\n"
    "(p\n(pt=a long text with a <strong=style> and an \xC3\xA9 in it)\n(ps=title)\n(pa=right)\n"
    "(pmf=data of the marked paragraph)\n(para-key=9)\np)\n"
    "(p\n(pt=0012)\np)\nc)\n(c\n(cs=shaded)\n(p\n(pt=second)\np)\nc)\n"
    "(r\n(c\n(p\n(pt=third)\np)\nc)\nr)\n"
    // So many rows that there are tables of their keys, with keys that take memory of their own.
    "(r\n(row-key=1000000000)\n(c\n(p\n(pt=fourth)\np)\nc)\nr)\n"
    "(r\n(row-key=1000000001)\n(c\n(p\n(pt=fifth)\np)\nc)\nr)\n"
    "(r\n(row-key=1000000002)\n(c\n(p\n(pt=sixth)\np)\nc)\nr)\n"
    "(r\n(row-key=1000000003)\n(c\n(p\n(pt=seventh)\np)\nc)\nr)\n"
    "(r\n(row-key=1000000004)\n(c\n(p\n(pt=eighth)\np)\nc)\nr)\n"
    "(r\n(row-key=1000000005)\n(c\n(p\n(pt=ninth)\np)\nc)\nr)\n"
    "(r\n(row-key=1000000006)\n(c\n(p\n(pt=tenth)\np)\nc)\nr)\n"
    "(r\n(row-key=1000000007)\n(c\n(p\n(pt=eleventh)\np)\nc)\nr)\n"
    "(r\n(row-key=1000000008)\n(c\n(p\n(pt=twelfth)\np)\nc)\nr)\n"
    "doc)\n";

constexpr const char* faultyDescription =
    "(doc\n(r\n(rb=crimson)\n(c\n(cw=wide)\n(p\n(pt=text)\n(px=1)\np)\nc)\n(c\n(p\n(pt=text)\np)"
    "\nc)\nr)\n"
    "(r\n(c\n(p\n(pt=text)\n(qx=1)\np)\nc)\nr)\ndoc)\n";

// Inline styles that cannot be replaced one after the other: a stray "<", one within another and
// one whose token is there twice; and a text that is not ASCII, with its places counted otherwise.
constexpr const char* overlappingStyles =
    "(doc\n(r\n(c\n"
    "(p\n(pt=5 < 7 <strong=x<mild=q>> <strong=y> > 3 and <strong=y> once more)\np)\n"
    "(p\n(pt=\xC3\xA9 < 7 <strong=x<foreign=q>> <strong=y> <mild=\xE2\x82\xAC>)\np)\n"
    "c)\nr)\ndoc)\n";

constexpr const char* path = "document.rtf";

/// A driver with a stylesheet, its events counted, and with a document that it made before.
struct Subject {
    Subject() {
        platform.files["description.rtfspec"] = codePage1252FromUtf8(description);
        platform.files["style.rtfss"] = styleSheet;
        driver->setErroneousInput(true);
        driver->setNotifyErrorHandler([this](CRtfDriver&, const RtfError& error) {
            ++events;
            lastError = error.number;
        });
        driver->LoadStyleSheetFromMemmory(styleSheet);
        driver->ParseFromMemmory("(doc\n(r\n(c\n(p\n(pt=before)\np)\nc)\nr)\ndoc)");
        before = driver->Contents();
    }
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    ~Subject() { driver->setNotifyErrorHandler({}); }

    std::string contentsOf(const std::string& text) {
        events = 0;
        driver->ParseFromMemmory(text);
        return driver->Contents();
    }

    FakePlatform platform;
    Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    int events = 0;
    std::int32_t lastError = 0;
    std::string before;
};

/// Lets each allocation of an attempt fail, calls `check` after each failure, and expects that at
/// least so many places could fail and that each subject gave back all that it took.
template <class Attempt, class Check>
void expectNothingLost(Attempt attempt, Check check, int fewestFailures) {
    // The test library takes memory of its own with the first of these.
    ASSERT_NO_FATAL_FAILURE(failingAllocations::successesLeft = -1);
    long livingBefore = 0;
    const auto prepare = [&livingBefore] {
        clearCurrentError();
        livingBefore = failingAllocations::living;
        return std::make_unique<Subject>();
    };
    const auto tryIt = [&attempt](const std::unique_ptr<Subject>& subject) { attempt(*subject); };
    const auto checkAndCount = [&](std::unique_ptr<Subject>& subject) {
        ASSERT_NO_FATAL_FAILURE(check(*subject));
        subject.reset();
        clearCurrentError();
        ASSERT_EQ(failingAllocations::living, livingBefore);
    };

    EXPECT_GE(failEachAllocation(prepare, tryIt, checkAndCount), fewestFailures);
}

TEST(WholeRunsOutOfMemory, MakeNoDriver) {
    const auto prepare = [] { return Ref<CRtfDriver>(); };
    const auto attempt = [](Ref<CRtfDriver>& driver) { driver = CRtfDriver::create(); };
    const long livingBefore = failingAllocations::living;
    const auto check = [livingBefore](const Ref<CRtfDriver>& driver) {
        ASSERT_EQ(driver, nullptr);
        ASSERT_EQ(failingAllocations::living, livingBefore);
    };

    EXPECT_GE(failEachAllocation(prepare, attempt, check), 5);
}

TEST(WholeRunsOutOfMemory, CanBeBegunAnewWithTheSameDriver) {
    const std::string expected = Subject().contentsOf(description);

    expectNothingLost([](Subject& subject) { subject.driver->ParseFromMemmory(description); },
                      [&expected](Subject& subject) {
                          ASSERT_TRUE(subject.driver->RtfObject()->StyleSheetOk());
                          ASSERT_EQ(subject.contentsOf(description), expected);
                          ASSERT_EQ(subject.events, 0);
                      },
                      100);
}

TEST(WholeRunsOutOfMemory, CanBeBegunAnewWithTheSameFile) {
    const std::string expected = Subject().contentsOf(description);

    expectNothingLost([](Subject& subject) { subject.driver->ParseFile("description.rtfspec"); },
                      [&expected](Subject& subject) {
                          subject.events = 0;
                          subject.driver->ParseFile("description.rtfspec");
                          ASSERT_EQ(subject.driver->Contents(), expected);
                          ASSERT_EQ(subject.events, 0);
                      },
                      100);
}

TEST(WholeRunsOutOfMemory, ReportTheirErrorsWhenTheyAreBegunAnew) {
    Subject undisturbed;
    const std::string expected = undisturbed.contentsOf(faultyDescription);
    ASSERT_GT(undisturbed.events, 2);

    expectNothingLost([](Subject& subject) { subject.driver->ParseFromMemmory(faultyDescription); },
                      [&](Subject& subject) {
                          ASSERT_EQ(subject.contentsOf(faultyDescription), expected);
                          ASSERT_EQ(subject.events, undisturbed.events);
                          ASSERT_EQ(subject.lastError, undisturbed.lastError);
                      },
                      50);
}

TEST(WholeRunsOutOfMemory, LeaveAWholeDocumentToRender) {
    expectNothingLost(
        [](Subject& subject) {
            try {
                subject.driver->ParseFromMemmory(description);
            } catch (const std::bad_alloc&) {
                failingAllocations::successesLeft = -1;
                ASSERT_NO_THROW(subject.driver->Contents());
                throw;
            }
        },
        [](Subject& subject) {
            const std::string text = subject.driver->Contents();
            ASSERT_TRUE(text.starts_with("{\\rtf1"));
            ASSERT_TRUE(text.ends_with("}"));
        },
        100);
}

/// Lets memory run out in rendering a document, at `fewestFailures` places or more: it counts as
/// changed and can be rendered later.
void expectRenderedLater(const std::string& text, int fewestFailures) {
    const std::string expected = Subject().contentsOf(text);
    expectNothingLost(
        [&text](Subject& subject) {
            const long successes = std::exchange(failingAllocations::successesLeft, -1);
            subject.driver->ParseFromMemmory(text);
            failingAllocations::successesLeft = successes;
            subject.driver->Contents();
        },
        [&expected](Subject& subject) {
            ASSERT_TRUE(subject.driver->RtfObject()->Changed());
            ASSERT_EQ(subject.driver->Contents(), expected);
        },
        fewestFailures);
}

TEST(WholeRunsOutOfMemory, KeepTheDocumentThatCouldNotBeRendered) {
    expectRenderedLater(description, 3);
}

TEST(WholeRunsOutOfMemory, KeepTheTextsWhoseInlineStylesCouldNotBeReplaced) {
    ASSERT_NE(Subject().contentsOf(overlappingStyles).find("\\b x{"), std::string::npos);

    expectRenderedLater(overlappingStyles, 50);
}

TEST(WholeRunsOutOfMemory, WriteTheFileWhenTheyAreCalledAgain) {
    expectNothingLost(
        [](Subject& subject) {
            subject.driver->RtfObject()->setChanged(true);
            subject.driver->Commit(path);
        },
        [](Subject& subject) {
            ASSERT_EQ(subject.platform.openFiles, 0);
            subject.driver->Commit(path);
            ASSERT_EQ(subject.platform.files[path], subject.before);
        },
        5);
}

TEST(WholeRunsOutOfMemory, LoadTheStylesheetWhenTheyAreCalledAgain) {
    const std::string expected = Subject().contentsOf(description);

    expectNothingLost(
        [](Subject& subject) { subject.driver->LoadStyleSheetFromMemmory(styleSheet); },
        [&expected](Subject& subject) {
            ASSERT_FALSE(subject.driver->RtfObject()->StyleSheetOk());
            subject.driver->LoadStyleSheetFromMemmory(styleSheet);
            ASSERT_TRUE(subject.driver->RtfObject()->StyleSheetOk());
            ASSERT_EQ(subject.contentsOf(description), expected);
        },
        20);
}

TEST(WholeRunsOutOfMemory, LoadAnExtendedStylesheetWhenTheyAreCalledAgain) {
    constexpr const char* extended =
        "; quorvane 2\n"
        "{ name: normal; style-def: paragraph; font: A font with a long name; color: #010203 }\n"
        "{ name: a style with a long name; style-def: paragraph; based-on: normal; bold }\n"
        "{ name: shaded; style-def: cell; background: #040506 }\n";
    const auto load = [](Subject& subject) {
        subject.driver->RtfObject()->setExtendedStyleSheets(true);
        subject.driver->LoadStyleSheetFromMemmory(extended);
    };
    Subject whole;
    load(whole);
    const std::string expected = whole.contentsOf(description);

    expectNothingLost(
        load,
        [&](Subject& subject) {
            ASSERT_FALSE(subject.driver->RtfObject()->StyleSheetOk());
            load(subject);
            ASSERT_TRUE(subject.driver->RtfObject()->StyleSheetOk());
            ASSERT_EQ(subject.contentsOf(description), expected);
        },
        20);
}

TEST(WholeRunsOutOfMemory, LoadTheStylesheetsFileWhenTheyAreCalledAgain) {
    const std::string expected = Subject().contentsOf(description);

    expectNothingLost([](Subject& subject) { subject.driver->setStyleSheetFile("style.rtfss"); },
                      [&expected](Subject& subject) {
                          subject.driver->setStyleSheetFile("style.rtfss");
                          ASSERT_TRUE(subject.driver->RtfObject()->StyleSheetOk());
                          ASSERT_EQ(subject.driver->StyleSheetFile(), "style.rtfss");
                          ASSERT_EQ(subject.contentsOf(description), expected);
                      },
                      20);
}

}  // namespace
}  // namespace quorvane
