#include "quorvane/support/currentError.h"

#include <gtest/gtest.h>

#include <thread>

namespace quorvane {
namespace {

TEST(CurrentError, IsNullOnANewThread) {
    setCurrentError(RtfError(RunTimeError::Overflow));
    bool hasError = true;

    std::thread([&hasError] { hasError = currentError() != nullptr; }).join();

    EXPECT_FALSE(hasError);
}

TEST(CurrentError, IsTheOneThatWasSetLast) {
    setCurrentError(RtfError(RunTimeError::Overflow));
    setCurrentError(RtfError(RunTimeError::TypeMismatch));

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 13);
}

TEST(CurrentError, IsACopyOfWhatWasSet) {
    {
        RtfError error(445, "Bad keyword");
        setCurrentError(error);
        error.description = "changed";
    }

    EXPECT_EQ(currentError()->description, "Bad keyword");
}

TEST(CurrentError, IsNullOnceItWasCleared) {
    setCurrentError(RtfError(RunTimeError::Overflow));

    clearCurrentError();

    EXPECT_EQ(currentError(), nullptr);
}

TEST(CurrentError, MayBeClearedWhenThereIsNone) {
    clearCurrentError();
    clearCurrentError();

    EXPECT_EQ(currentError(), nullptr);
}

TEST(CurrentError, CanBeSetAfterItWasCleared) {
    setCurrentError(RtfError(RunTimeError::Overflow));
    clearCurrentError();

    setCurrentError(RtfError(RunTimeError::DiskFull));

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 61);
}

TEST(CurrentError, CanBeSetToItself) {
    setCurrentError(RtfError(445, "Bad keyword", "CRtfDriver.ParseFile"));

    setCurrentError(*currentError());

    EXPECT_EQ(currentError()->number, 445);
    EXPECT_EQ(currentError()->description, "Bad keyword");
    EXPECT_EQ(currentError()->source, "CRtfDriver.ParseFile");
}

TEST(CurrentError, IsNotTouchedByAnotherThread) {
    setCurrentError(RtfError(RunTimeError::Overflow));

    std::thread([] {
        setCurrentError(RtfError(RunTimeError::DiskFull));
        clearCurrentError();
    }).join();

    ASSERT_NE(currentError(), nullptr);
    EXPECT_EQ(currentError()->number, 6);
}

}  // namespace
}  // namespace quorvane
