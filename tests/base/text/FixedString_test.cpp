#include "quorvane/base/text/FixedString.h"

#include <gtest/gtest.h>

#include <string_view>
#include <type_traits>

namespace quorvane {
namespace {

TEST(FixedString, IsTheTextThatItWasMadeOf) {
    constexpr FixedString<5> text = "rtf";
    EXPECT_EQ(std::string_view(text), "rtf");
}

TEST(FixedString, HoldsAsManyCharactersAsItsCapacity) {
    constexpr FixedString<5> text = "trowd";
    EXPECT_EQ(std::string_view(text), "trowd");
}

TEST(FixedString, IsNotMadeOfALongerText) {
    EXPECT_FALSE((std::is_constructible_v<FixedString<5>, const char(&)[7]>));
}

TEST(FixedString, IsEmptyByDefault) {
    EXPECT_EQ(std::string_view(FixedString<5>()), "");
}

}  // namespace
}  // namespace quorvane
