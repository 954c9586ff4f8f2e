#include "zendara/form/check_box.hpp"
#include "zendara/form/option_button.hpp"
#include "zendara/form/window_painter.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/support/color.hpp"

#include <gtest/gtest.h>

namespace zendara
{
namespace
{

constexpr double pixel = 15; // twips

struct PaintedChoices : testing::Test {
    HeadlessPlatform platform;
    Window window{platform, "window"};

    PaintedChoices() { window.Move(0, 0, 100 * pixel, 30 * pixel); }

    int pixels_of(Color color)
    {
        Image const image = paint_child(window, platform.glyphs());
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.row(y)[x] == static_cast<std::uint32_t>(color) ? 1 : 0;
        return count;
    }
};

TEST_F(PaintedChoices, ADotShowsInAnOptionButtonThatIsOnAlone)
{
    OptionButton button(window, "button");
    button.Move(0, 0, 60 * pixel, 16 * pixel);
    EXPECT_EQ(pixels_of(rgb(0, 0, 0)), 0);
    button.Value(true);
    EXPECT_EQ(pixels_of(rgb(0, 0, 0)), 20) << "rows of 4, 6, 6 and 4 pixels";
}

TEST_F(PaintedChoices, ATickShowsInACheckedBoxAlone)
{
    CheckBox box(window, "box");
    box.Move(0, 0, 60 * pixel, 16 * pixel);
    EXPECT_EQ(pixels_of(rgb(0, 0, 0)), 0);
    box.Value(1);
    EXPECT_EQ(pixels_of(rgb(0, 0, 0)), 21) << "seven strokes of three pixels";
}

TEST_F(PaintedChoices, APushButtonLooksOtherWhenItIsDown)
{
    CheckBox box(window, "box");
    box.is_push_button = true;
    box.Move(0, 0, 60 * pixel, 20 * pixel);
    Image const up = paint_child(window, platform.glyphs());
    box.Value(1);
    EXPECT_NE(paint_child(window, platform.glyphs()), up);
}

TEST_F(PaintedChoices, AnAccessKeyIsUnderlined)
{
    Label label(window, "label");
    label.caption("Rotation:");
    label.AutoSize(true);
    int const letters = pixels_of(rgb(0, 0, 0));
    label.access_key = 'R';
    int const with_line = pixels_of(rgb(0, 0, 0));
    label.access_key = 'q'; // not in the caption
    EXPECT_GT(with_line, letters);
    EXPECT_EQ(pixels_of(rgb(0, 0, 0)), letters);
}

TEST_F(PaintedChoices, AHiddenButtonShowsNothing)
{
    OptionButton button(window, "button");
    button.Move(0, 0, 60 * pixel, 16 * pixel);
    button.Value(true);
    button.Visible(false);
    EXPECT_EQ(pixels_of(rgb(0, 0, 0)), 0);
}

} // namespace
} // namespace zendara
