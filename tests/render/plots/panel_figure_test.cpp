#include "panels.hpp"
#include "trace_text.hpp"
#include "zendara/render/plots/panel_figure.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/failure.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace zendara::test
{

namespace
{

struct PlainWidget : Widget {
    Interface const& host_interface() const override { throw Failure(FailureKind::NoSuchMember, "none"); }
};

std::vector<std::int32_t> corners(std::vector<TraceRecord> const& records, std::size_t polygon)
{
    return item<std::vector<std::int32_t>>(only(records, "Polygon").at(polygon), 0);
}

std::vector<TraceRecord> show(panel const& record, double alpha, double theta, Widget* label = nullptr)
{
    auto const surface = Recorder::picture({0, 0, 64, 44});
    record.GridPosShow(label, *surface, alpha, theta);
    return surface->take_record();
}

} // namespace

TEST(GridPosShow, ShowsAPanelThatLiesFlatWithItsMarkInTheMiddleOfTheLowerEdge)
{
    auto const record = make_panel(300, 200, {});
    // Room 60 x 40 for 300 x 200: a fifth of a pixel to the millimetre.
    EXPECT_EQ(text_of(show(*record, 0, 90)),
              (std::vector<std::string>{"Cls", "Polygon [62,2,2,2,2,42,62,42] 16777215 0 0 1 0",
                                        "Polygon [34,42,32,40,30,42,32,44] 128 0 0 1 128", "Refresh"}));
}

TEST(GridPosShow, AQuarterTurnIsExact)
{
    auto const record = make_panel(300, 200, {});
    // 300 high on 40 pixels.
    EXPECT_EQ(corners(show(*record, 90, 90), 0), (std::vector<std::int32_t>{19, 2, 19, 42, 45, 42, 45, 2}));
    EXPECT_EQ(corners(show(*record, 90, 90), 1), (std::vector<std::int32_t>{47, 22, 45, 20, 43, 22, 45, 24}));
    EXPECT_EQ(corners(show(*record, 180, 90), 0), (std::vector<std::int32_t>{2, 42, 62, 42, 62, 2, 2, 2}));
    EXPECT_EQ(corners(show(*record, 270, 90), 0), (std::vector<std::int32_t>{45, 42, 45, 2, 19, 2, 19, 42}));
}

TEST(GridPosShow, BeyondTheCircleTheAngleIsCorrectedByTwoPiDegreesOnly)
{
    auto const record = make_panel(300, 200, {});
    double const two_pi = 8 * std::atan(1.0);
    EXPECT_EQ(text_of(show(*record, 360, 90)), text_of(show(*record, 360 - two_pi, 90)));
    EXPECT_NE(text_of(show(*record, 360, 90)), text_of(show(*record, 0, 90)));
    EXPECT_EQ(text_of(show(*record, -3, 90)), text_of(show(*record, -3 + two_pi, 90)));
}

TEST(GridPosShow, ATiltForeshortensTheHeight)
{
    auto const record = make_panel(300, 200, {});
    // sin 30 = 0.5: 100 high, so the width decides: 60 / 300.
    EXPECT_EQ(corners(show(*record, 0, 30), 0), (std::vector<std::int32_t>{62, 12, 2, 12, 2, 32, 62, 32}));
}

TEST(GridPosShow, APanelWithoutSizeCollapsesToAPointWithItsMark)
{
    auto const record = make_panel(0, 0, {});
    EXPECT_EQ(corners(show(*record, 0, 90), 0), (std::vector<std::int32_t>{32, 22, 32, 22, 32, 22, 32, 22}));
    EXPECT_EQ(corners(show(*record, 0, 90), 1), (std::vector<std::int32_t>{34, 22, 32, 20, 30, 22, 32, 24}));
}

TEST(GridPosShow, CaptionsTheFrameWhereThereIsOne)
{
    auto const record = make_panel(300, 200, {});
    PlainWidget label;
    label.caption("before");
    show(*record, 0, 90, nullptr);
    EXPECT_EQ(label.caption(), "before");
    show(*record, 0, 90, &label);
    EXPECT_EQ(label.caption(), "Panel");
}

TEST(GridPosShow, LeavesAWhiteFillAndABlackPen)
{
    auto const record = make_panel(300, 200, {});
    auto const surface = Recorder::picture({0, 0, 64, 44});
    record->GridPosShow(nullptr, *surface, 0, 90);
    EXPECT_EQ(surface->ForeColor, QBColor(0));
    EXPECT_EQ(surface->FillColor, QBColor(15));
    EXPECT_EQ(surface->FillStyle, 0);
}

TEST(GridPosShow, AnAngleThatIsNoNumberFailsToTheCaller)
{
    auto const record = make_panel(300, 200, {});
    EXPECT_THROW(show(*record, std::nan(""), 90), Failure);
}

TEST(DrawFlatPicture, ShowsAPanelOf200By150)
{
    auto const surface = Recorder::picture({0, 0, 104, 79});
    DrawFlatPicture(*surface, 0, 90);
    // Half of 79 rounds to 40; 100 / 200 and 75 / 150 give half a pixel to the unit.
    EXPECT_EQ(text_of(surface->take_record()),
              (std::vector<std::string>{"Cls", "Polygon [102,2,2,2,2,78,102,78] 16777215 0 0 1 0",
                                        "Polygon [54,78,52,76,50,78,52,80] 128 0 0 1 128", "Refresh"}));
}

} // namespace zendara::test
