// The event of the driver, as a host sees it.

#include <gmock/gmock.h>

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "quorvane/support/currentError.h"
#include "tests/driver/ParsedDescription.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string good = paraWithText("good");
const std::string badColor = rowWith("(rb=crimson)");
const std::string threeErrors = lines("(doc|(r|(foo=bar)|(rb=crimson)|(c|c)|r)|doc)");

const ErrorFacts badColorError = driverErrorOf(eWrongValue, "crimson isn't a recognized color.",
                                               "CRtfDriver.treWalkerSemantic", 3);

class NotifyError : public testing::Test {
protected:
    ~NotifyError() override {
        if (driver.get()) {
            driver->setNotifyErrorHandler({});
        }
    }

    FakePlatform platform;
    Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    int events = 0;
};

TEST_F(NotifyError, IsRaisedWithTheDriverAsSender) {
    CRtfDriver* sender = nullptr;
    driver->setNotifyErrorHandler([&](CRtfDriver& Sender, const RtfError&) { sender = &Sender; });
    driver->ParseFromMemmory(badColor);
    EXPECT_EQ(sender, driver.get());
}

TEST_F(NotifyError, ShowsNumberDescriptionSourceAndLineAsTheCurrentError) {
    std::vector<ErrorFacts> errors;
    driver->setErroneousInput(true);
    driver->setNotifyErrorHandler(
        [&](CRtfDriver&, const RtfError& error) { errors.push_back(factsOf(error)); });
    driver->ParseFromMemmory(threeErrors);
    EXPECT_THAT(errors, ElementsAre(ErrorFacts{-2147221498, "foo isn't a valid keyword.",
                                               "CRtfDriver.rowWalkerSyntax", 3},
                                    ErrorFacts{-2147221496, "Value for foo should be numeric.",
                                               "CRtfDriver.treeWalkerSemantic", 3},
                                    ErrorFacts{-2147221496, "crimson isn't a recognized color.",
                                               "CRtfDriver.treWalkerSemantic", 4}));
}

class ThrowingClipboard : public FakePlatform {
public:
    void setClipboardText(const std::string&) override {
        throw RtfError(RunTimeError::PermissionDenied);
    }
};

TEST_F(NotifyError, ShowsAnErrorThatThePlatformThrewWithoutMakingItTheCurrentOne) {
    ThrowingClipboard throwing;
    std::vector<std::int32_t> numbers;
    const Ref<CRtfDriver> other = CRtfDriver::create(throwing);
    other->setNotifyErrorHandler(
        [&](CRtfDriver&, const RtfError& error) { numbers.push_back(error.number); });
    clearCurrentError();
    other->ParseFromMemmory("(r");
    EXPECT_THAT(numbers, ElementsAre(70, -2147221500, -2147221499, 5));
}

TEST_F(NotifyError, IsNotRaisedWhenNothingIsWrong) {
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { ++events; });
    driver->ParseFromMemmory(good);
    EXPECT_EQ(events, 0);
}

TEST_F(NotifyError, IsSilentWhenItIsSwitchedOff) {
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { ++events; });
    driver->setNotifyError(false);
    driver->ParseFromMemmory("");
    driver->ParseFromMemmory(badColor);
    EXPECT_EQ(events, 0);
}

TEST_F(NotifyError, IsSilentWithoutAHandler) {
    driver->ParseFromMemmory("");
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { ++events; });
    driver->setNotifyErrorHandler({});
    driver->ParseFromMemmory("");
    EXPECT_EQ(events, 0);
}

TEST_F(NotifyError, BuildsTheSameDocumentWhetherItIsRaisedOrNot) {
    const ParsedDescription loud(badColor);
    driver->setNotifyError(false);
    driver->ParseFromMemmory(badColor);
    EXPECT_EQ(driver->Contents(), loud.driver->Contents());
}

TEST_F(NotifyError, CanBeSwitchedOffByItsHandler) {
    driver->setNotifyErrorHandler([&](CRtfDriver& Sender, const RtfError&) {
        ++events;
        Sender.setNotifyError(false);
    });
    driver->ParseFromMemmory("");
    EXPECT_EQ(events, 1);
    EXPECT_FALSE(driver->notifyError());
}

TEST_F(NotifyError, LetsItsHandlerPutAnotherInItsPlace) {
    std::vector<std::string> reported;
    driver->setNotifyErrorHandler([&](CRtfDriver& Sender, const RtfError& error) {
        Sender.setNotifyErrorHandler([&](CRtfDriver&, const RtfError& later) {
            reported.push_back("second " + later.description);
        });
        reported.push_back("first " + error.description);
    });
    driver->ParseFromMemmory(lines("(row|row)"));
    ASSERT_EQ(reported.size(), 4u);
    EXPECT_EQ(reported[0], "first The provided file isn't a correct rtfspec file.");
    EXPECT_EQ(reported[3], "second Invalid procedure call or argument");
}

TEST_F(NotifyError, LetsItsHandlerSwitchTheChecksOnForTheStepsToCome) {
    std::vector<ErrorFacts> errors;
    driver->setNotifyErrorHandler([&](CRtfDriver& Sender, const RtfError& error) {
        errors.push_back(factsOf(error));
        Sender.setErroneousInput(true);
    });
    driver->ParseFromMemmory(lines("(doc|(r|(title=5)|(c|c)|r)"));
    EXPECT_THAT(errors, ElementsAre(driverErrorOf(eWrongRootNode, "(doc must be the first node.",
                                                  "CRtfDriver.Analysedata", 6),
                                    driverErrorOf(eWrongKeyword, "title isn't a valid keyword.",
                                                  "CRtfDriver.rowWalkerSyntax", 3)));
}

TEST_F(NotifyError, PassesAnErrorOfItsHandlerToTheCallerAndEndsTheAnalysis) {
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) {
        ++events;
        raise(RunTimeError::PermissionDenied);
    });
    EXPECT_EQ(errorOf([&] { driver->ParseFromMemmory("x (doc"); }).number, 70);
    EXPECT_EQ(events, 1);
}

TEST_F(NotifyError, PassesAnyExceptionOfItsHandlerToTheCaller) {
    driver->setNotifyErrorHandler(
        [](CRtfDriver&, const RtfError&) { throw std::runtime_error("handler"); });
    EXPECT_THROW(driver->ParseFromMemmory(""), std::runtime_error);
    platform.files["in"] = "";
    EXPECT_THROW(driver->ParseFile("in"), std::runtime_error);
}

TEST_F(NotifyError, LeavesADriverGoodAfterItsHandlerThrew) {
    driver->setErroneousInput(true);
    driver->setNotifyErrorHandler(
        [](CRtfDriver&, const RtfError&) { throw std::runtime_error("handler"); });
    EXPECT_THROW(driver->ParseFromMemmory(threeErrors), std::runtime_error);
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 0);
    driver->ParseFromMemmory(good);
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
}

TEST_F(NotifyError, LetsItsHandlerAnalyzeAnotherText) {
    std::vector<ErrorFacts> errors;
    driver->setNotifyErrorHandler([&](CRtfDriver& Sender, const RtfError& error) {
        errors.push_back(factsOf(error));
        if (errors.size() == 1) {
            Sender.ParseFromMemmory(paraWithText("inner"));
        }
    });
    driver->ParseFromMemmory(lines("(doc|(r|(c|(p|(pt=outer)|p)|c)|r)|x|doc)"));
    // The outer analysis goes on with a document that is not empty any more.
    ASSERT_EQ(errors.size(), 2u);
    EXPECT_EQ(errors[0].description, "x has a wrong syntax");
    EXPECT_EQ(errors[1], duplicateKey(2));
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 1);
    EXPECT_EQ(driver->RtfObject()
                  ->TableRows()
                  ->Item(1)
                  ->TableCells()
                  ->Item(1)
                  ->Paragraphs()
                  ->Item(1)
                  ->Text(),
              "inner");
}

TEST_F(NotifyError, LetsItsHandlerUseAnotherDriver) {
    const Ref<CRtfDriver> other = CRtfDriver::create(platform);
    std::vector<std::string> descriptions;
    other->setNotifyErrorHandler(
        [&](CRtfDriver&, const RtfError& error) { descriptions.push_back(error.description); });
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError& error) {
        descriptions.push_back(error.description);
        other->ParseFromMemmory(cellWith("(ca=middle)"));
    });
    driver->ParseFromMemmory(badColor);
    EXPECT_THAT(descriptions, ElementsAre("crimson isn't a recognized color.",
                                          "middle isn't a recognized alignment."));
}

TEST_F(NotifyError, LetsItsHandlerReleaseTheDriver) {
    const Ref<CRtfDoc> document = driver->RtfObject();
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) {
        ++events;
        driver = {};
    });
    driver->ParseFromMemmory(lines("(doc|(r|(c|c)|r)|x|doc)"));
    EXPECT_EQ(events, 1);
    EXPECT_EQ(driver.get(), nullptr);
    EXPECT_EQ(document->TableRows()->Count(), 1);
}

TEST_F(NotifyError, LetsItsHandlerReleaseTheDriverWhileItReadsAFile) {
    platform.files["in"] = lines("(row|row)");
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) {
        ++events;
        driver = {};
    });
    driver->ParseFile("in");
    EXPECT_EQ(events, 4);
}

TEST_F(NotifyError, LetsItsHandlerAddToTheDocument) {
    driver->setNotifyErrorHandler([&](CRtfDriver& Sender, const RtfError&) {
        ++events;
        Sender.RtfObject()->TableRows()->AddTail("host");
    });
    driver->ParseFromMemmory(lines("(doc|(r|(rb=gold)|(c|c)|r)|x|doc)"));
    EXPECT_EQ(events, 1);
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 2);
    EXPECT_EQ(driver->RtfObject()->TableRows()->Item(1).get(),
              driver->RtfObject()->TableRows()->Item("host").get());
    EXPECT_EQ(driver->RtfObject()->TableRows()->Item("1001")->BackColor(), eGold);
}

TEST_F(NotifyError, MeetsARowThatItsHandlerPutInTheWay) {
    std::vector<ErrorFacts> errors;
    driver->setNotifyErrorHandler([&](CRtfDriver& Sender, const RtfError& error) {
        errors.push_back(factsOf(error));
        if (errors.size() == 1) {
            Sender.RtfObject()->TableRows()->AddTail("1002");
        }
    });
    driver->ParseFromMemmory(lines("(doc|(r|(c|c)|r)|(r|(c|c)|r)|x|doc)"));
    ASSERT_EQ(errors.size(), 2u);
    EXPECT_EQ(errors[1], duplicateKey(6));
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 2);
}

TEST_F(NotifyError, LetsItsHandlerEmptyTheDocumentThatTheBuildLeft) {
    driver->setNotifyErrorHandler([&](CRtfDriver& Sender, const RtfError&) {
        ++events;
        Sender.RtfObject()->ClearStructure();
    });
    driver->ParseFromMemmory(badColor);
    EXPECT_EQ(events, 1);
    EXPECT_EQ(driver->RtfObject()->TableRows()->Count(), 0);
}

TEST_F(NotifyError, LetsItsHandlerReadTheDocument) {
    std::string text;
    driver->setNotifyErrorHandler(
        [&](CRtfDriver& Sender, const RtfError&) { text = Sender.Contents(); });
    driver->ParseFromMemmory(badColor);
    EXPECT_EQ(text, driver->Contents());
}

// A refused marked field is absorbed, and the observer can do what it likes.
TEST_F(NotifyError, SurvivesAnObserverThatTakesTheDocumentApartDuringTheBuild) {
    std::vector<ErrorFacts> errors;
    driver->setNotifyErrorHandler(
        [&](CRtfDriver&, const RtfError& error) { errors.push_back(factsOf(error)); });
    driver->setAbsorbedErrorObserver([&](const AbsorbedError&) {
        driver->RtfObject()->TableRows()->Item(1)->TableCells()->removeTail();
    });
    driver->ParseFromMemmory(lines("(doc|(r|(c|(cmf=1)|(cw=5)|c)|(c|(cb=gold)|c)|r)|doc)"));
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].number, 5);
    EXPECT_EQ(driver->RtfObject()->TableRows()->Item(1)->TableCells()->Count(), 1);
}

TEST_F(NotifyError, SurvivesAnObserverThatReleasesTheDriverDuringTheBuild) {
    const Ref<CRtfDoc> document = driver->RtfObject();
    driver->setAbsorbedErrorObserver([&](const AbsorbedError&) { driver = {}; });
    driver->ParseFromMemmory(lines("(doc|(r|(c|(cmf=1)|(cw=50)|c)|r)|doc)"));
    EXPECT_EQ(driver.get(), nullptr);
    EXPECT_EQ(document->TableRows()->Item(1)->TableCells()->Item(1)->Width(ePercent), 50);
}

TEST_F(NotifyError, LeavesTheErrorReadableUntilTheNextCall) {
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { ++events; });
    driver->ParseFromMemmory(badColor);
    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(factsOf(*currentError()), badColorError);
}

using Call = std::function<void(CRtfDriver&)>;

TEST_F(NotifyError, IsForgottenByTheNextCallWhateverItIs) {
    platform.files["in"] = good;
    platform.files["a.rtfss"] = "{name:normal;style-def:s}";
    const Call calls[] = {
        [](CRtfDriver& d) { d.ParseFromMemmory(good); },
        [](CRtfDriver& d) { d.ParseFile("in"); },
        [](CRtfDriver& d) { d.LoadStyleSheetFromMemmory("{name:normal;style-def:s}"); },
        [](CRtfDriver& d) { d.Commit("out"); },
        [](CRtfDriver& d) { d.Contents(); },
        [](CRtfDriver& d) { d.setStyleSheetFile("a.rtfss"); },
        [](CRtfDriver& d) { d.setStyleSheetFile("ignored"); },
        [](CRtfDriver& d) { d.RtfObject()->TableRows()->AddTail(); },
    };
    for (const Call& call : calls) {
        driver->ParseFromMemmory(badColor);
        EXPECT_NE(currentError(), nullptr);
        call(*driver);
        EXPECT_EQ(currentError(), nullptr);
    }
}

TEST_F(NotifyError, ForgetsAnErrorOfACallerWhenAnAnalysisBegins) {
    EXPECT_THROW(driver->ParseFile(""), RtfError);
    driver->ParseFromMemmory(good);
    EXPECT_EQ(currentError(), nullptr);
}

}  // namespace
}  // namespace quorvane
