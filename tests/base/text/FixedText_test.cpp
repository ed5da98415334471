#include "quorvane/base/text/FixedText.h"

#include <gtest/gtest.h>

#include <string_view>
#include <type_traits>

namespace quorvane {
namespace {

TEST(FixedText, IsTheTextThatItWasMadeOf) {
    constexpr FixedText<5> text = "rtf";
    EXPECT_EQ(std::string_view(text), "rtf");
}

TEST(FixedText, HoldsAsManyCharactersAsItsCapacity) {
    constexpr FixedText<5> text = "trowd";
    EXPECT_EQ(std::string_view(text), "trowd");
}

TEST(FixedText, IsNotMadeOfALongerText) {
    EXPECT_FALSE((std::is_constructible_v<FixedText<5>, const char(&)[7]>));
}

TEST(FixedText, IsEmptyByDefault) {
    EXPECT_EQ(std::string_view(FixedText<5>()), "");
}

}  // namespace
}  // namespace quorvane
