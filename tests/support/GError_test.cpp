#include "quorvane/support/GError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "quorvane/support/CStringList.h"
#include "quorvane/support/currentError.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class GErrorTest : public testing::Test {
protected:
    GErrorTest() { clearCurrentError(); }

    /// From now on the errors that the observer sees are in `absorbed`.
    void observe() {
        errors.setObserver([this](const AbsorbedError& error) { absorbed.push_back(error); });
    }

    FakePlatform platform;
    GError errors{platform};
    std::vector<AbsorbedError> absorbed;
    const RtfError overflow{6, "Overflow", "CRtfTableCell.Width"};
    const RtfError cannotCreate{429, "ActiveX component can't create object", "Vantrel"};
};

// The report

TEST_F(GErrorTest, FormatsAnErrorInFiveLines) {
    setCurrentError(overflow);

    EXPECT_EQ(GError::formatError(6, "Overflow", "CRtfDoc.cls", "Commit"),
              "Number: 6\r\n"
              "Description: Overflow\r\n"
              "Module: CRtfDoc.cls\r\n"
              "Funtion: Commit\r\n"
              "Source: CRtfTableCell.Width");
}

TEST_F(GErrorTest, FormatsAnEmptyDescriptionAsALineOfItsOwn) {
    EXPECT_EQ(GError::formatError(6, "", "CRtfDoc.cls", "Commit"),
              "Number: 6\r\n"
              "Description: \r\n"
              "Module: CRtfDoc.cls\r\n"
              "Funtion: Commit\r\n"
              "Source: ");
}

TEST_F(GErrorTest, FormatsANegativeNumberInDecimal) {
    EXPECT_THAT(GError::formatError(-2147220012, "", "", ""),
                StartsWith("Number: -2147220012\r\n"));
}

TEST_F(GErrorTest, FormatsTheSourceOfTheCurrentErrorOfWhateverNumber) {
    setCurrentError(RtfError(445, "Bad keyword", "CRtfDriver.ParseFile"));

    EXPECT_EQ(GError::formatError(6, "Overflow", "", ""),
              "Number: 6\r\nDescription: Overflow\r\nModule: \r\nFuntion: \r\n"
              "Source: CRtfDriver.ParseFile");
}

TEST_F(GErrorTest, ShowsAnErrorInAnInformationBoxWithTheProductNameAsItsTitle) {
    setCurrentError(overflow);

    errors.showError(6, "Overflow", "CRtfDoc.cls", "Commit");

    ASSERT_EQ(platform.messageBoxes.size(), 1U);
    EXPECT_EQ(platform.messageBoxes[0].text,
              "Number: 6\r\nDescription: Overflow\r\nModule: CRtfDoc.cls\r\nFuntion: Commit\r\n"
              "Source: CRtfTableCell.Width");
    EXPECT_EQ(platform.messageBoxes[0].style, 64);
    EXPECT_EQ(platform.messageBoxes[0].title, "Quorvane");
}

TEST_F(GErrorTest, TakesTheTitleFromTheStringResource8700) {
    platform.resources = {{8699, "before"}, {8700, "A title"}, {8701, "behind"}};

    errors.showError(6, "Overflow", "CRtfDoc.cls", "Commit");

    EXPECT_EQ(platform.messageBoxes.at(0).title, "A title");
}

TEST_F(GErrorTest, ShowsABoxWithoutTitleWhenThereIsNoStringResource) {
    platform.resources.clear();

    errors.showError(6, "Overflow", "CRtfDoc.cls", "Commit");

    EXPECT_EQ(platform.messageBoxes.at(0).title, "");
}

TEST_F(GErrorTest, PassesAnErrorOfTheMessageBoxWhenAskedToShow) {
    platform.fail("showMessageBox", RunTimeError::DeviceIoError);

    EXPECT_THROW(errors.showError(6, "Overflow", "CRtfDoc.cls", "Commit"), RtfError);
}

// The switch off

TEST_F(GErrorTest, HasTheReporterSwitchOffAtFirst) {
    EXPECT_FALSE(errors.ReporterSwitch());
}

TEST_F(GErrorTest, AnUnexpectedErrorInsideCommitLeavesNoTrace) {
    platform.reporterIsRegistered = true;

    EXPECT_NO_THROW(errors.absorbing("CRtfDoc.cls", "Commit", [&] { raise(overflow); }));

    EXPECT_THAT(platform.operations, IsEmpty());
}

TEST_F(GErrorTest, ShowsError429InAMessageBox) {
    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    ASSERT_EQ(platform.messageBoxes.size(), 1U);
    EXPECT_EQ(platform.messageBoxes[0].text,
              "Number: 429\r\n"
              "Description: ActiveX component can't create object\r\n"
              "Module: CRtfDoc.cls\r\n"
              "Funtion: Commit\r\n"
              "Source: Vantrel");
    EXPECT_EQ(platform.messageBoxes[0].style, 64);
    EXPECT_EQ(platform.messageBoxes[0].title, "Quorvane");
}

TEST_F(GErrorTest, DoesNotReportError429ToTheReporter) {
    platform.reporterIsRegistered = true;

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(platform.count("createReporter"), 0U);
}

// The switch on

class GErrorReporterTest : public GErrorTest {
protected:
    GErrorReporterTest() {
        platform.reporterIsRegistered = true;
        errors.setReporterSwitch(true);
    }
};

TEST_F(GErrorReporterTest, ItsSwitchCanBeTurnedOnAndOff) {
    EXPECT_TRUE(errors.ReporterSwitch());
    errors.setReporterSwitch(false);
    EXPECT_FALSE(errors.ReporterSwitch());
}

TEST_F(GErrorReporterTest, IsCreatedByItsNameAndReceivesTheProgram) {
    platform.resources[8700] = "A product";
    platform.folder = "C:\\Programs\\Office";
    platform.fileName = "writer.exe";
    platform.version = {7, 12, 345};

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    ASSERT_EQ(platform.introductions.size(), 1U);
    EXPECT_EQ(platform.introductions[0].programId, "Vantrel.CVantrel");
    EXPECT_EQ(platform.introductions[0].product, "A product");
    EXPECT_EQ(platform.introductions[0].applicationId, "C:\\Programs\\Office\\writer.exe7-12-345");
}

TEST_F(GErrorReporterTest, ReceivesTheError) {
    platform.version = {7, 12, 345};

    CStringList extra;
    extra.AddTail("extra");
    errors.handleError(overflow, "CRtfDoc.cls", "Commit",
                       std::make_shared<const CStringList>(extra));

    ASSERT_EQ(platform.reports.size(), 1U);
    const ErrorReport& report = platform.reports[0];
    EXPECT_EQ(report.number, 6);
    EXPECT_EQ(report.description, "Overflow");
    EXPECT_EQ(report.moduleName, "CRtfDoc.cls");
    EXPECT_EQ(report.procedureName, "Commit");
    EXPECT_EQ(report.version, "7.12.345");
    EXPECT_EQ(report.source, "CRtfTableCell.Width");
    ASSERT_NE(report.extraInfo, nullptr);
    EXPECT_EQ(report.extraInfo->Item(1), "extra");
}

TEST_F(GErrorReporterTest, ReceivesNoExtraInformationWhenNoneIsGiven) {
    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(platform.reports.at(0).extraInfo, nullptr);
}

TEST_F(GErrorReporterTest, IsIntroducedBeforeItReceivesAnErrorAndIsReleasedAfterwards) {
    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(platform.operations.front(), "createReporter Vantrel.CVantrel");
    EXPECT_THAT(std::vector<std::string>(platform.operations.end() - 2, platform.operations.end()),
                ElementsAre("Create Quorvane", "sendError 6"));
    EXPECT_EQ(platform.livingReporters, 0);
}

TEST_F(GErrorReporterTest, TakesError429WithoutAMessageBox) {
    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(platform.reports.at(0).number, 429);
    EXPECT_THAT(platform.messageBoxes, IsEmpty());
}

TEST_F(GErrorReporterTest, IsCreatedAnewForEachError) {
    errors.handleError(overflow, "CRtfDoc.cls", "Commit");
    errors.handleError(overflow, "CRtfDoc.cls", "Refresh");

    EXPECT_EQ(platform.count("createReporter"), 2U);
    EXPECT_EQ(platform.reports.size(), 2U);
}

TEST_F(GErrorReporterTest, ReceivesErrorsDirectlyWithTheSwitchOff) {
    errors.setReporterSwitch(false);
    setCurrentError(overflow);

    errors.sendToReporter(6, "Overflow", "CRtfDoc.cls", "Commit", nullptr);

    EXPECT_EQ(platform.reports.at(0).number, 6);
    EXPECT_EQ(platform.reports.at(0).source, "CRtfTableCell.Width");
}

TEST_F(GErrorReporterTest, ThatIsNotRegisteredIsError429WhenUsedDirectly) {
    platform.reporterIsRegistered = false;

    try {
        errors.sendToReporter(6, "Overflow", "CRtfDoc.cls", "Commit", nullptr);
        FAIL() << "nothing was raised";
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, 429);
    }
}

TEST_F(GErrorReporterTest, ThatIsNotRegisteredGivesWayToTheMessageBox) {
    platform.reporterIsRegistered = false;

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(platform.messageBoxes.at(0).text,
              "Number: 429\r\n"
              "Description: ActiveX component can't create object\r\n"
              "Module: CRtfDoc.cls\r\n"
              "Funtion: Commit\r\n"
              "Source: Vantrel");
}

TEST_F(GErrorReporterTest, ThatIsNotRegisteredShowsTheErrorThatItWasToTake) {
    platform.reporterIsRegistered = false;

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    ASSERT_EQ(platform.messageBoxes.size(), 1U);
    EXPECT_EQ(platform.messageBoxes[0].text,
              "Number: 6\r\n"
              "Description: Overflow\r\n"
              "Module: CRtfDoc.cls\r\n"
              "Funtion: Commit\r\n"
              "Source: CRtfTableCell.Width");
    EXPECT_EQ(platform.messageBoxes[0].style, 64);
}

TEST_F(GErrorReporterTest, ThatFailsWithError429AtAnyStepShowsTheErrorThatItWasToTake) {
    for (const char* step : {"Create", "sendError", "programFolder"}) {
        platform.messageBoxes.clear();
        platform.fail(step, RunTimeError::CannotCreateObject);

        errors.handleError(overflow, "CRtfDoc.cls", "Commit");

        platform.repair(step);
        ASSERT_EQ(platform.messageBoxes.size(), 1U) << step;
        EXPECT_THAT(platform.messageBoxes[0].text, StartsWith("Number: 6\r\n"));
    }
}

TEST_F(GErrorReporterTest, ThatFailsWithAnotherErrorLeavesAnyErrorBut429WithoutATrace) {
    platform.fail("sendError", RtfError(438, "No such method", "Reporter"));

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    EXPECT_THAT(platform.messageBoxes, IsEmpty());
}

TEST_F(GErrorReporterTest, ThatFailsToBeIntroducedGivesWayToTheMessageBox) {
    platform.fail("Create", RtfError(438, "No such method", "Reporter"));

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    ASSERT_EQ(platform.messageBoxes.size(), 1U);
    EXPECT_THAT(platform.messageBoxes[0].text, StartsWith("Number: 429\r\n"));
    EXPECT_EQ(platform.livingReporters, 0);
}

TEST_F(GErrorReporterTest, ThatFailsToTakeTheErrorGivesWayToTheMessageBox) {
    platform.fail("sendError", RtfError(438, "No such method", "Reporter"));

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    ASSERT_EQ(platform.messageBoxes.size(), 1U);
    EXPECT_THAT(platform.messageBoxes[0].text, testing::EndsWith("\r\nSource: Vantrel"));
    EXPECT_EQ(platform.livingReporters, 0);
}

// Never raising

TEST_F(GErrorTest, PromisesNotToRaise) {
    EXPECT_TRUE(noexcept(errors.handleError(overflow, std::string(), std::string())));
}

TEST_F(GErrorTest, SwallowsWhatTheMessageBoxRaises) {
    platform.fail("showMessageBox", RunTimeError::DeviceIoError);

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(platform.count("showMessageBox"), 1U);
    EXPECT_EQ(currentError()->number, 429);
}

TEST_F(GErrorTest, SwallowsAFailingStringResource) {
    platform.fail("resourceString", RunTimeError::DeviceIoError);

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    EXPECT_THAT(platform.messageBoxes, IsEmpty());
    EXPECT_EQ(currentError()->number, 429);
}

TEST_F(GErrorTest, SwallowsWhatTheObserverThrowsAndGoesOn) {
    const std::vector<GError::Observer> observers{
        [](const AbsorbedError&) { raise(RunTimeError::TypeMismatch); },
        [](const AbsorbedError&) { throw std::runtime_error("observer"); },
        [](const AbsorbedError&) { throw 1; }};

    for (const GError::Observer& observer : observers) {
        platform.messageBoxes.clear();
        errors.setObserver(observer);
        errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");
        EXPECT_EQ(platform.messageBoxes.size(), 1U);
        EXPECT_EQ(currentError()->number, 429);
    }
}

// The thread's current error

TEST_F(GErrorTest, LeavesTheErrorAsTheCurrentOne) {
    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 6);
    EXPECT_EQ(currentError()->description, "Overflow");
    EXPECT_EQ(currentError()->source, "CRtfTableCell.Width");
}

TEST_F(GErrorReporterTest, ThatFailsLeavesTheReportedErrorAsTheCurrentOne) {
    platform.reporterIsRegistered = false;

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(currentError()->number, 6);
}

TEST_F(GErrorTest, LeavesTheErrorAsTheCurrentOneWhenTheObserverForgetsIt) {
    errors.setObserver([](const AbsorbedError&) { clearCurrentError(); });

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 6);
}

TEST_F(GErrorTest, HandlesTheCurrentErrorItself) {
    observe();
    setCurrentError(cannotCreate);

    errors.handleError(*currentError(), "CRtfDoc.cls", "Commit");

    EXPECT_EQ(absorbed.at(0).error.description, "ActiveX component can't create object");
    EXPECT_EQ(platform.messageBoxes.size(), 1U);
    EXPECT_EQ(currentError()->description, "ActiveX component can't create object");
}

// The observer

TEST_F(GErrorTest, ReportsToTheObserverAnErrorThatLeavesNoOtherTrace) {
    observe();

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    ASSERT_EQ(absorbed.size(), 1U);
    EXPECT_EQ(absorbed[0].error.number, 6);
    EXPECT_EQ(absorbed[0].error.description, "Overflow");
    EXPECT_EQ(absorbed[0].error.source, "CRtfTableCell.Width");
    EXPECT_EQ(absorbed[0].moduleName, "CRtfDoc.cls");
    EXPECT_EQ(absorbed[0].procedureName, "Commit");
}

TEST_F(GErrorTest, ReportsError429ToTheObserverToo) {
    observe();

    errors.handleError(cannotCreate, "CRtfDoc.cls", "Commit");

    ASSERT_EQ(absorbed.size(), 1U);
    EXPECT_EQ(absorbed[0].error.number, 429);
    EXPECT_EQ(platform.messageBoxes.size(), 1U);
}

TEST_F(GErrorReporterTest, ReceivesAnErrorThatTheObserverReceivedToo) {
    observe();

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(absorbed.size(), 1U);
    EXPECT_EQ(platform.reports.size(), 1U);
}

TEST_F(GErrorReporterTest, ThatFailsIsNotAnErrorOfTheObserver) {
    platform.reporterIsRegistered = false;
    observe();

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    ASSERT_EQ(absorbed.size(), 1U);
    EXPECT_EQ(absorbed[0].error.number, 6);
}

TEST_F(GErrorTest, LetsTheObserverReadTheCurrentError) {
    int number = 0;
    errors.setObserver([&number](const AbsorbedError&) { number = currentError()->number; });

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(number, 6);
}

TEST_F(GErrorTest, LetsTheObserverReplaceItself) {
    int callsOfTheSecond = 0;
    auto witness = std::make_shared<int>(0);
    errors.setObserver([&, witness](const AbsorbedError&) {
        errors.setObserver([&callsOfTheSecond](const AbsorbedError&) { ++callsOfTheSecond; });
        ++*witness;
    });

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");
    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    EXPECT_EQ(*witness, 1);
    EXPECT_EQ(callsOfTheSecond, 1);
}

TEST_F(GErrorTest, CallsNoObserverAfterItsRemoval) {
    observe();
    errors.setObserver({});

    errors.handleError(overflow, "CRtfDoc.cls", "Commit");

    EXPECT_THAT(absorbed, IsEmpty());
}

// Absorbing

TEST_F(GErrorTest, AbsorbsNothingWhenTheBodyRaisesNothing) {
    observe();
    bool ran = false;

    EXPECT_FALSE(errors.absorbing("CRtfDoc.cls", "Commit", [&ran] { ran = true; }));

    EXPECT_TRUE(ran);
    EXPECT_THAT(absorbed, IsEmpty());
    EXPECT_EQ(currentError(), nullptr);
}

TEST_F(GErrorTest, AbsorbsAnErrorOfTheBodyUnderTheTwoNamesAndReturnsIt) {
    observe();
    RtfError error(445, "Bad keyword", "CRtfDriver.ParseFile");
    error.line = 12;

    const auto returned =
        errors.absorbing("CStringList.cls", "AddTail", [&error] { raise(error); });

    ASSERT_TRUE(returned);
    EXPECT_EQ(returned->number, 445);
    EXPECT_EQ(returned->description, "Bad keyword");
    ASSERT_EQ(absorbed.size(), 1U);
    EXPECT_EQ(absorbed[0].error.number, 445);
    EXPECT_EQ(absorbed[0].error.line, 12);
    EXPECT_EQ(absorbed[0].moduleName, "CStringList.cls");
    EXPECT_EQ(absorbed[0].procedureName, "AddTail");
}

TEST_F(GErrorTest, MakesAnErrorTheCurrentOneThatTheBodyOnlyThrew) {
    errors.absorbing("CRtfDoc.cls", "Commit", [&] { throw overflow; });

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 6);
}

TEST_F(GErrorTest, LetsAnyOtherExceptionPass) {
    observe();

    EXPECT_THROW(errors.absorbing("CRtfDoc.cls", "Commit", [] { throw std::bad_alloc(); }),
                 std::bad_alloc);

    EXPECT_THAT(absorbed, IsEmpty());
}

}  // namespace
}  // namespace quorvane
