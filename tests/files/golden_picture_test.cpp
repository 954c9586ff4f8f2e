#include "golden_picture.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

TEST(GoldenPicture, OneOtherPixelIsADifference)
{
    Image expected(4, 3), actual(4, 3);
    EXPECT_EQ(count_of_red(difference_of(expected, actual)), 0u);
    actual.row(1)[2] = 0x123456;
    EXPECT_EQ(count_of_red(difference_of(expected, actual)), 1u);
    EXPECT_EQ(difference_of(expected, actual).row(1)[2], 0x0000FFu);
}

TEST(GoldenPicture, AnotherSizeIsADifference)
{
    EXPECT_EQ(count_of_red(difference_of(Image(4, 3), Image(5, 3))), 3u);
    EXPECT_EQ(count_of_red(difference_of(Image(4, 3), Image(4, 2))), 4u);
}

TEST(GoldenPicture, AMissingGoldenPictureIsAFailure)
{
    if (std::getenv("ZENDARA_ACCEPT_GOLDENS") != nullptr)
        GTEST_SKIP() << "goldens are being made";
    EXPECT_FALSE(matches_golden(Image(4, 3), "no_such_picture"));
}

} // namespace zendara::test
