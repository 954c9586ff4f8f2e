#include "zendara/support/color.hpp"

#include <gtest/gtest.h>

#include <set>

using namespace zendara;

TEST(Color, RedStandsInTheLowestByteAndBlueInTheThird)
{
    EXPECT_EQ(rgb(1, 2, 3), 0x030201);
    EXPECT_EQ(rgb(255, 0, 0), 0x0000FF);
    EXPECT_EQ(rgb(0, 0, 255), 0xFF0000);
}

TEST(QBColor, HasBlackDarkRedBlueAndWhiteAtTheirPlaces)
{
    EXPECT_EQ(QBColor(0), rgb(0, 0, 0));
    EXPECT_EQ(QBColor(1), rgb(0, 0, 128));
    EXPECT_EQ(QBColor(4), rgb(128, 0, 0));
    EXPECT_EQ(QBColor(9), rgb(0, 0, 255));
    EXPECT_EQ(QBColor(15), rgb(255, 255, 255));
}

TEST(QBColor, HoldsSixteenDifferentColors)
{
    std::set<Color> colors;
    for (int i = 0; i < 16; ++i)
        colors.insert(QBColor(i));
    EXPECT_EQ(colors.size(), 16u);
}

TEST(QBColor, CountsTheLowFourBitsAlone)
{
    EXPECT_EQ(QBColor(16), QBColor(0));
    EXPECT_EQ(QBColor(-1), QBColor(15));
}

TEST(SystemColor, HasTheTopBitSet)
{
    EXPECT_LT(button_face, 0);
    EXPECT_EQ(static_cast<std::uint32_t>(button_face), 0x8000000Fu);
}

TEST(PlainColor, LooksSystemColorsUp)
{
    EXPECT_EQ(plain_color(button_face), rgb(212, 208, 200));
    EXPECT_EQ(plain_color(window_background), rgb(255, 255, 255));
    EXPECT_EQ(plain_color(window_text), rgb(0, 0, 0));
    EXPECT_EQ(plain_color(system_color(24)), rgb(255, 255, 225));
}

TEST(PlainColor, ASystemColorThatIsNotThereIsBlack)
{
    EXPECT_EQ(plain_color(system_color(25)), rgb(0, 0, 0));
    EXPECT_EQ(plain_color(system_color(0xFFFF)), rgb(0, 0, 0));
}

TEST(PlainColor, ClearsTheTopByteOfAnyOtherColor)
{
    EXPECT_EQ(plain_color(0x7F030201), 0x030201);
    EXPECT_EQ(plain_color(0x030201), 0x030201);
}
