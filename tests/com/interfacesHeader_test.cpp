#include "quorvaneInterfaces.h"

#include <gtest/gtest.h>

namespace quorvane::host {
namespace {

TEST(InterfacesHeader, HasAnIncludeGuardOfItsOwnName) {
#ifdef __quorvaneinterfaces_h__
    const bool isGuarded = true;
#else
    const bool isGuarded = false;
#endif
    EXPECT_TRUE(isGuarded);
}

}  // namespace
}  // namespace quorvane::host
