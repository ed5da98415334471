#pragma once

#include <gtest/gtest.h>

#include <string>

#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {

/// The description of the error 5 that an action raises.
template <class Action>
std::string errorOf(Action action) {
    try {
        action();
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, 5);
        return error.description;
    }
    return "no error";
}

}  // namespace quorvane::data
