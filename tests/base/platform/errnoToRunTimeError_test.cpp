#include "quorvane/base/platform/errnoToRunTimeError.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace quorvane {
namespace {

TEST(ErrnoToRunTimeError, WhatIsNotPermittedIsAPathFileAccessError) {
    for (const int code : {EACCES, EPERM, EROFS}) {
        EXPECT_EQ(errnoToRunTimeError(code), RunTimeError::PathFileAccessError) << code;
    }
}

TEST(ErrnoToRunTimeError, WhatIsInUseIsAPathFileAccessError) {
    for (const int code : {EBUSY, ETXTBSY}) {
        EXPECT_EQ(errnoToRunTimeError(code), RunTimeError::PathFileAccessError) << code;
    }
}

TEST(ErrnoToRunTimeError, AFolderIsAPathFileAccessError) {
    EXPECT_EQ(errnoToRunTimeError(EISDIR), RunTimeError::PathFileAccessError);
}

TEST(ErrnoToRunTimeError, AMissingEntryIsAFileThatIsNotFound) {
    EXPECT_EQ(errnoToRunTimeError(ENOENT), RunTimeError::FileNotFound);
}

TEST(ErrnoToRunTimeError, AFileInPlaceOfAFolderIsAPathThatIsNotFound) {
    EXPECT_EQ(errnoToRunTimeError(ENOTDIR), RunTimeError::PathNotFound);
}

TEST(ErrnoToRunTimeError, NoMoreRoomIsAFullDisk) {
    for (const int code : {ENOSPC, EDQUOT, EFBIG}) {
        EXPECT_EQ(errnoToRunTimeError(code), RunTimeError::DiskFull) << code;
    }
}

TEST(ErrnoToRunTimeError, NoMoreDescriptorsAreTooManyFiles) {
    for (const int code : {EMFILE, ENFILE}) {
        EXPECT_EQ(errnoToRunTimeError(code), RunTimeError::TooManyFiles) << code;
    }
}

TEST(ErrnoToRunTimeError, AnythingElseIsADeviceError) {
    for (const int code : {EIO, ENAMETOOLONG, ELOOP, EPIPE, 0, -1}) {
        EXPECT_EQ(errnoToRunTimeError(code), RunTimeError::DeviceIoError) << code;
    }
}

}  // namespace
}  // namespace quorvane
