#include "zendara/form/children.hpp"
#include "zendara/form/line_shape.hpp"
#include "zendara/form/window_painter.hpp"
#include "zendara/platform/headless/headless_platform.hpp"
#include "zendara/support/interface.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

namespace
{

constexpr std::uint32_t red = 0x0000FF;

struct OneLine : testing::Test {
    HeadlessPlatform platform;
    Window window{platform, "window"};
    LineShape line{window, "Line1"};
};

/// What a plot routine does with a line.
void write_points(LineWidget& line)
{
    line.X1 = 1;
    line.Y1 = 2;
    line.X2 = 3;
    line.Y2 = 4;
}

} // namespace

TEST_F(OneLine, HostsReadAndWriteItsPointsByName)
{
    put_member(*window.find_child("line1", {}), "X1", 15.0);
    put_member(line, "y2", 30.5);
    EXPECT_EQ(line.X1(), 15);
    EXPECT_EQ(line.Y2(), 30.5);
    EXPECT_EQ(to_double(get_member(line, "X1")), 15);
    put_member(line, "ForeColor", 255);
    EXPECT_EQ(line.ForeColor(), 255);
    EXPECT_THROW(get_member(line, "Left"), Failure); // it has no place beyond its points
}

TEST_F(OneLine, PlotRoutinesTakeItAsALineWidget)
{
    write_points(line);
    EXPECT_EQ(line.X1(), 1);
    EXPECT_EQ(line.Y2(), 4);
    write_points(*from_value<LineWidget*>(Value(static_cast<Object*>(&line))));
}

TEST_F(OneLine, AMovedPointIsToldToTheContainersSide)
{
    struct CountingPeer : Peer {
        int changes = 0;
        void child_changed(Child&) override { ++changes; }
        void refresh(Child&) override {}
    } peer;
    line.set_peer(&peer);
    line.X1(5);
    line.place(1, 2, 3, 4);
    EXPECT_EQ(peer.changes, 2);
    EXPECT_EQ(line.X1(), 1);
}

TEST_F(OneLine, IsPaintedInItsColourWithoutItsLastPoint)
{
    window.Move(0, 0, 150, 150); // 10 x 10 pixels
    line.ForeColor(red);
    line.place(30, 60, 90, 60);
    Image const image = paint_child(window, platform.glyphs());
    for (int x = 0; x < 10; ++x)
        EXPECT_EQ(image.row(4)[x] == red, x >= 2 && x < 6) << x;
}

TEST_F(OneLine, APictureScaledInPixelsPlacesItsChildrenInPixels)
{
    window.Move(0, 0, 300, 300);
    PictureBox outer(window, "outer");
    outer.inner_unit(ScaleUnit::Pixels);
    outer.Move(75, 75, 225, 225);
    PictureBox inner(outer, "inner");
    inner.inner_unit(ScaleUnit::Pixels);
    inner.BackColor(0x00FF00);
    inner.Move(2, 3, 8, 6);
    LineShape edge(inner, "edge");
    edge.ForeColor(red);
    edge.place(1, 0, 1, 6);
    inner.Cls();
    Image const image = paint_child(window, platform.glyphs());
    int green = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            green += image.row(y)[x] == 0x00FF00 ? 1 : 0;
    EXPECT_EQ(green, 8 * 6 - 6);
    EXPECT_EQ(image.row(5 + 3)[5 + 2 + 1], red);
    EXPECT_EQ(image.row(5 + 3)[5 + 2], 0x00FF00u);
    EXPECT_EQ(paint_child(inner, platform.glyphs()).width(), 8);
}

TEST(ScaleUnits, ARecordingPictureInPixelsHasItsOwnSizeAsScale)
{
    HeadlessPlatform platform(Pictures::Recorded);
    Window window(platform, "window");
    PictureBox outer(window, "outer");
    outer.inner_unit(ScaleUnit::Pixels);
    PictureBox inner(outer, "inner");
    outer.Move(0, 0, 300, 450);
    inner.Move(1, 2, 123.4, 56.7);
    EXPECT_EQ(outer.surface().ScaleWidth(), 20);
    EXPECT_EQ(inner.surface().ScaleWidth(), 123.4);
    EXPECT_EQ(inner.surface().ScaleHeight(), 56.7);
    EXPECT_EQ(inner.surface().left, 1);
}

TEST(ScaleUnits, ALabelInPixelsFitsItsCaptionInPixels)
{
    HeadlessPlatform platform(Pictures::Recorded);
    Window window(platform, "window");
    Frame frame(window, "frame");
    frame.inner_unit(ScaleUnit::Pixels);
    Label label(frame, "label");
    label.AutoSize(true);
    label.caption("abc");
    EXPECT_EQ(label.Width(), 20); // 300 twips
}

} // namespace zendara::test
