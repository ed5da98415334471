#include "quorvane/base/values/RtfError.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <exception>
#include <memory>
#include <ostream>
#include <string>

namespace quorvane {
namespace {

struct StandardError {
    RunTimeError error;
    std::int32_t number;
    const char* description;
};

void PrintTo(const StandardError& standard, std::ostream* out) {
    *out << standard.number;
}

class StandardErrors : public testing::TestWithParam<StandardError> {};

TEST_P(StandardErrors, HaveTheirNumberAndText) {
    const RtfError error(GetParam().error);

    EXPECT_EQ(error.number, GetParam().number);
    EXPECT_EQ(error.description, GetParam().description);
    EXPECT_EQ(error.source, "");
}

INSTANTIATE_TEST_SUITE_P(
    All, StandardErrors,
    testing::Values(
        StandardError{RunTimeError::InvalidProcedureCall, 5, "Invalid procedure call or argument"},
        StandardError{RunTimeError::Overflow, 6, "Overflow"},
        StandardError{RunTimeError::SubscriptOutOfRange, 9, "Subscript out of range"},
        StandardError{RunTimeError::DivisionByZero, 11, "Division by zero"},
        StandardError{RunTimeError::TypeMismatch, 13, "Type mismatch"},
        StandardError{RunTimeError::FileNotFound, 53, "File not found"},
        StandardError{RunTimeError::DeviceIoError, 57, "Device I/O error"},
        StandardError{RunTimeError::DiskFull, 61, "Disk full"},
        StandardError{RunTimeError::TooManyFiles, 67, "Too many files"},
        StandardError{RunTimeError::PermissionDenied, 70, "Permission denied"},
        StandardError{RunTimeError::PathFileAccessError, 75, "Path/File access error"},
        StandardError{RunTimeError::PathNotFound, 76, "Path not found"},
        StandardError{RunTimeError::ObjectNotSet, 91,
                      "Object variable or With block variable not set"},
        StandardError{RunTimeError::CannotCreateObject, 429,
                      "ActiveX component can't create object"},
        StandardError{RunTimeError::DuplicateKey, 457,
                      "This key is already associated with an element of this collection"}),
    [](const auto& instance) { return "Error" + std::to_string(instance.param.number); });

TEST(RtfError, HasNoTextForANumberThatTheLibraryDoesNotRaise) {
    const RtfError error(static_cast<RunTimeError>(438));

    EXPECT_EQ(error.number, 438);
    EXPECT_EQ(error.description, "");
}

TEST(RtfError, KeepsNumberDescriptionAndSource) {
    const RtfError error(445, "Bad keyword", "CRtfDriver.ParseFile");

    EXPECT_EQ(error.number, 445);
    EXPECT_EQ(error.description, "Bad keyword");
    EXPECT_EQ(error.source, "CRtfDriver.ParseFile");
}

TEST(RtfError, HasNoLineAndNoCauseByDefault) {
    const RtfError error(445, "Bad keyword");

    EXPECT_EQ(error.source, "");
    EXPECT_EQ(error.line, 0);
    EXPECT_EQ(error.cause, nullptr);
}

TEST(RtfError, ReturnsItsDescriptionAsAnyException) {
    const RtfError error(445, "Bad keyword");

    EXPECT_STREQ(static_cast<const std::exception&>(error).what(), "Bad keyword");
}

TEST(RtfError, IsTheRunTimeErrorOfItsNumberOnly) {
    const RtfError error(75, "Error accessing a.rtf");

    EXPECT_TRUE(error.is(RunTimeError::PathFileAccessError));
    EXPECT_FALSE(error.is(RunTimeError::PathNotFound));
}

TEST(RtfError, KeepsItsCauseWhenItIsCopied) {
    RtfError error(RunTimeError::DiskFull);
    error.cause = std::make_shared<const RtfError>(RunTimeError::DeviceIoError);
    error.line = 7;

    const RtfError copy = error;

    EXPECT_EQ(copy.line, 7);
    ASSERT_NE(copy.cause, nullptr);
    EXPECT_TRUE(copy.cause->is(RunTimeError::DeviceIoError));
}

TEST(RtfError, IsThrownAsItIs) {
    try {
        raise(RtfError(445, "Bad keyword", "CRtfDriver.ParseFile"));
    } catch (const RtfError& caught) {
        EXPECT_EQ(caught.number, 445);
        EXPECT_EQ(caught.description, "Bad keyword");
        EXPECT_EQ(caught.source, "CRtfDriver.ParseFile");
        return;
    }
    FAIL();
}

TEST(RtfError, IsRaisedByItsNumberWithItsStandardText) {
    try {
        raise(RunTimeError::Overflow);
    } catch (const RtfError& caught) {
        EXPECT_EQ(caught.number, 6);
        EXPECT_EQ(caught.description, "Overflow");
        return;
    }
    FAIL() << "nothing was raised";
}

}  // namespace
}  // namespace quorvane
