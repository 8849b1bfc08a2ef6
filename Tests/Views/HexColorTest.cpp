#include "Views/Tokens/HexColor.hpp"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(HexColor, ReadsSixDigitsHoweverTheyAreWritten) {
    for (const char* text : {"#F4AB34", "F4AB34", "f4ab34", " \n#f4AB34\t"}) {
        EXPECT_EQ(hexColor(text, 1), QColor(0xF4, 0xAB, 0x34)) << text;
    }
    EXPECT_NEAR(hexColor("#F4AB34", 0.5)->alphaF(), 0.5, 0.01);
}

TEST(HexColor, KeepsToTheLengthAndToWhatIsHexadecimal) {
    for (const char* text : {"", "#", "#FFF", "FFAABBCC", "#F4AB34#", "12 34"}) {
        EXPECT_EQ(hexColor(text, 1), std::nullopt) << text;
    }
    EXPECT_EQ(hexColor("zzzzzz", 1), QColor(0, 0, 0));
    EXPECT_EQ(hexColor("12zz34", 1), QColor(0, 0, 0x12));
}

} // namespace
} // namespace quillet
