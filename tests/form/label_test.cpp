#include "zendara/form/children.hpp"
#include "zendara/form/window_painter.hpp"
#include "zendara/platform/headless/headless_platform.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

namespace
{

/// A label whose letters have fixed extents: 100 twips wide, a line 200 high.
struct AutoSizeLabel : testing::Test {
    HeadlessPlatform platform{Pictures::Recorded};
    Window window{platform, "window"};
    Label label{window, "label"};

    AutoSizeLabel()
    {
        label.Left(1000);
        label.AutoSize(true);
    }
};

/// The first and the last row of an image that hold a pixel of the colour; -1 for none.
std::pair<int, int> rows_with(Image const& image, std::uint32_t color, int from, int to)
{
    std::pair<int, int> found = {-1, -1};
    for (int y = from; y < to; ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.row(y)[x] == color) {
                found.first = found.first < 0 ? y : found.first;
                found.second = y;
            }
    return found;
}

} // namespace

TEST_F(AutoSizeLabel, IsAsWideAsItsWidestLineAndAsHighAsAllLines)
{
    label.caption("X=-75.00\nY=0.00");
    EXPECT_EQ(label.Width(), 800);
    EXPECT_EQ(label.Height(), 400);
    label.caption("one\n\nthree");
    EXPECT_DOUBLE_EQ(label.Width(), 500);
    EXPECT_EQ(label.Height(), 600);
    label.caption("one");
    EXPECT_EQ(label.Height(), 200);
}

TEST_F(AutoSizeLabel, KeepsTheEdgeOrTheMiddleWhereItsTextIsAligned)
{
    label.caption("1234");
    EXPECT_EQ(label.Left(), 1000);
    label.alignment = Alignment::Right;
    label.caption("12");
    EXPECT_EQ(label.Left(), 1200);
    label.alignment = Alignment::Center;
    label.caption("1234");
    EXPECT_EQ(label.Left(), 1100);
}

TEST(PaintedLabel, ShowsEachLineUnderTheOneBefore)
{
    HeadlessPlatform platform;
    Window window(platform, "window");
    window.Move(0, 0, 3000, 1500);
    Label label(window, "label");
    label.ForeColor(0x0000FF);
    label.AutoSize(true);
    label.caption("H");
    int const line_height = static_cast<int>(label.Height() / 15);
    auto const one = rows_with(paint_child(window, platform.glyphs()), 0x0000FF, 0, 100);
    label.caption("H\nH");
    auto const image = paint_child(window, platform.glyphs());
    auto const upper = rows_with(image, 0x0000FF, 0, line_height);
    auto const lower = rows_with(image, 0x0000FF, line_height, 100);
    ASSERT_GE(one.first, 0);
    EXPECT_EQ(upper, one);
    EXPECT_EQ(lower, std::pair(one.first + line_height, one.second + line_height));
}

} // namespace zendara::test
