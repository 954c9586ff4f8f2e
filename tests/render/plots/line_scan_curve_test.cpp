#include "listening_container.hpp"
#include "panels.hpp"
#include "support/failure_kind.hpp"
#include "trace_text.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

namespace
{

constexpr Color red = QBColor(4);

/// What a test passes to D1Plot; a scan along y = 0 from the left to the right on the screen by default.
struct Call {
    std::int16_t resol = 4;
    std::int16_t phi = 270;
    std::int16_t is_angle = -1;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double left = 0, top = 0, width = 0, height = 0;
    std::int16_t show_disp = 0;
    Color color = red;

    void run(panel& record, Surface& surface)
    {
        record.D1Plot(surface, resol, phi, is_angle, x1, y1, x2, y2, color, left, top, width, height, show_disp);
    }
};

std::vector<TraceRecord> plot(panel& record, Call call = {})
{
    auto const surface = Recorder::picture({0, 0, 400, 300});
    call.run(record, *surface);
    return surface->take_record();
}

// A value of its own at each fifth of a horizontal scan.
std::vector<Site> const five_sites = {{-150, 0, 0}, {-75, 0, 40}, {0, 0, 20}, {75, 0, 10}, {150, 0, 30}};

} // namespace

TEST(D1Plot, JoinsTheValuesAtEqualStepsAlongTheLine)
{
    auto const record = make_panel(300, 200, five_sites);
    EXPECT_EQ(text_of(plot(*record)), (std::vector<std::string>{
                                          "Line 0 300 100 0 128 1 0",
                                          "Line 100 0 200 150 128 1 0",
                                          "Line 200 150 300 225 128 1 0",
                                          "Line 300 225 400 75 128 1 0",
                                      }));
}

TEST(D1Plot, ALineFromTheRightToTheLeftTurnsTheCurveRound)
{
    auto const record = make_panel(300, 200, five_sites);
    Call call;
    call.phi = 90;
    EXPECT_EQ(text_of(plot(*record, call)), (std::vector<std::string>{
                                                "Line 0 75 100 225 128 1 0",
                                                "Line 100 225 200 150 128 1 0",
                                                "Line 200 150 300 0 128 1 0",
                                                "Line 300 0 400 300 128 1 0",
                                            }));
}

TEST(D1Plot, TakesTheInterpolationAtEveryStepOfASlopedLine)
{
    auto const record = make_panel(300, 200, random_sites(40, 300, 200, 5));
    Call call;
    call.resol = 88;
    call.is_angle = 0;
    call.x1 = -3, call.y1 = 1, call.x2 = 7, call.y2 = 6;
    auto const records = plot(*record, call);
    ASSERT_EQ(records.size(), 88u);
    // m 0.5, b 2.5: from the left edge at -72.5 to the right edge at 77.5.
    double const low = record->mini, high = record->maxi;
    for (int i = 1; i <= 88; ++i) {
        auto const& line = records[static_cast<std::size_t>(i - 1)];
        double const x = -150 + 300.0 * i / 88, y = -72.5 + 150.0 * i / 88;
        double const value = interpolation_step_by_step(*record, x, y);
        EXPECT_NEAR(item<double>(line, 2), 400.0 * i / 88, 1e-9);
        EXPECT_NEAR(item<double>(line, 3), 300 - (value - low) * 300 / (high - low), 1e-6) << i;
        if (i < 88) {
            EXPECT_EQ(item<double>(line, 2), item<double>(records[static_cast<std::size_t>(i)], 0));
            EXPECT_EQ(item<double>(line, 3), item<double>(records[static_cast<std::size_t>(i)], 1));
        }
    }
}

TEST(D1Plot, OnPaperItFillsTheBoxThatItIsGiven)
{
    auto const record = make_panel(300, 200, five_sites);
    Call call;
    call.show_disp = 1;
    call.left = 1000, call.top = 500, call.width = 4000, call.height = 2000;
    EXPECT_EQ(text_of(plot(*record, call)), (std::vector<std::string>{
                                                "Line 1000 2500 2000 500 128 1 0",
                                                "Line 2000 500 3000 1500 128 1 0",
                                                "Line 3000 1500 4000 2000 128 1 0",
                                                "Line 4000 2000 5000 1000 128 1 0",
                                            }));
}

TEST(D1Plot, OnTheScreenTheBoxIsNotRead)
{
    auto const record = make_panel(300, 200, five_sites);
    Call call;
    call.show_disp = 2;
    call.left = 1000, call.top = 500, call.width = 4000, call.height = 2000;
    EXPECT_EQ(plot(*record, call), plot(*record));
}

TEST(D1Plot, DrawsInTheColourThatItIsGiven)
{
    auto const record = make_panel(300, 200, five_sites);
    Call call;
    call.color = 77;
    for (auto const& line : plot(*record, call))
        EXPECT_EQ(item<std::int32_t>(line, 4), 77);
}

TEST(D1Plot, ThreeSitesDrawNothingAndLeaveTheScaleAlone)
{
    auto const record = make_panel(300, 200, {{-150, 0, 1}, {0, 0, 2}, {150, 0, 3}});
    record->Low = 99;
    EXPECT_TRUE(plot(*record).empty());
    EXPECT_EQ(record->Low, 99);
}

TEST(D1Plot, ALineOutsideThePanelDrawsNothing)
{
    auto const record = make_panel(300, 200, five_sites);
    ListeningContainer container;
    record->container = &container;
    Call call;
    call.is_angle = 0;
    call.x1 = 0, call.y1 = 300, call.x2 = 10, call.y2 = 310;
    EXPECT_TRUE(plot(*record, call).empty());
    EXPECT_EQ(container.messages.size(), 1u);
}

TEST(D1Plot, ValuesBeyondThePlotLimitsRunOutOfTheRectangle)
{
    auto const record = make_panel(300, 200, five_sites);
    record->setMaximalMinial(15, 5);
    auto const records = plot(*record);
    EXPECT_EQ(text_of(records[0]), "Line 0 450 100 -750 128 1 0"); // 0 and 40 on a scale of 5 to 15
    EXPECT_EQ(record->Low, 5);
}

TEST(D1Plot, AFlatPanelShowsALineAtTheTopWithAFloorALittleUnderIt)
{
    auto const flat = [](double value) {
        auto sites = five_sites;
        for (auto& site : sites)
            site.z = value;
        return make_panel(300, 200, sites);
    };
    auto const positive = flat(7);
    auto const records = plot(*positive);
    EXPECT_EQ(positive->Low, 0.9 * 7 - 0.001);
    ASSERT_EQ(records.size(), 4u);
    for (auto const& line : records)
        EXPECT_NEAR(item<double>(line, 3), 0, 1e-9);

    auto const negative = flat(-7);
    EXPECT_EQ(plot(*negative).size(), 4u);
    EXPECT_EQ(negative->Low, 1.1 * -7 - 0.001);
}

TEST(D1Plot, TheFloorOfOneLimitTakesItsSideFromTheLowestValueOfTheData)
{
    auto sites = five_sites;
    sites[0].z = -1;
    auto const record = make_panel(300, 200, sites);
    record->setMaximalMinial(5, 5);
    plot(*record);
    EXPECT_EQ(record->Low, 1.1 * 5 - 0.001);
}

TEST(D1Plot, GivesTheRunTimeFailuresOfItsArgumentsToTheCaller)
{
    auto const record = make_panel(300, 200, five_sites);
    Call call;
    call.resol = 0;
    EXPECT_EQ(failure_of([&] { plot(*record, call); }), FailureKind::DivisionByZero);
    call.resol = 88;
    call.phi = -90;
    EXPECT_EQ(failure_of([&] { plot(*record, call); }), FailureKind::DivisionByZero);
}

TEST(D1Plot, ANegativeCountOfStepsDrawsNothing)
{
    auto const record = make_panel(300, 200, five_sites);
    Call call;
    call.resol = -1;
    EXPECT_TRUE(plot(*record, call).empty());
}

// --- The grid ------------------------------------------------------------------------------------------------------

namespace
{

std::vector<TraceRecord> grid(std::unique_ptr<Recorder> const& surface, double left, double top, double width,
                              double height)
{
    panel record;
    record.D1Plot_AdjustLines(*surface, left, top, width, height);
    return surface->take_record();
}

} // namespace

TEST(D1Plot_AdjustLines, EndsOnTheLastPixelOfAPictureAndBecomesItsBackground)
{
    EXPECT_EQ(text_of(grid(Recorder::picture({0, 0, 400, 300}), 0, 0, 6000, 4500)),
              (std::vector<std::string>{
                  "Line 0 0 0 4500 8388608 1 0",
                  "Line 1496.25 0 1496.25 4500 8388608 1 0",
                  "Line 2992.5 0 2992.5 4500 8388608 1 0",
                  "Line 4488.75 0 4488.75 4500 8388608 1 0",
                  "Line 5985 0 5985 4500 8388608 1 0",
                  "Line 0 0 6000 0 8388608 1 0",
                  "Line 0 1121.25 6000 1121.25 8388608 1 0",
                  "Line 0 2242.5 6000 2242.5 8388608 1 0",
                  "Line 0 3363.75 6000 3363.75 8388608 1 0",
                  "Line 0 4485 6000 4485 8388608 1 0",
                  "Refresh",
                  "SetPicture",
              }));
}

TEST(D1Plot_AdjustLines, OnPaperItFillsTheBoxAndNothingMore)
{
    auto const records = grid(Recorder::printer(2.4, 2.4), 100, 50, 4000, 2000);
    ASSERT_EQ(records.size(), 10u);
    EXPECT_EQ(text_of(records[0]), "Line 100 50 100 2050 8388608 1 0");
    EXPECT_EQ(text_of(records[4]), "Line 4100 50 4100 2050 8388608 1 0");
    EXPECT_EQ(text_of(records[5]), "Line 100 50 4100 50 8388608 1 0");
    EXPECT_EQ(text_of(records[9]), "Line 100 2050 4100 2050 8388608 1 0");
}

TEST(D1Plot_AdjustLines, CountsThePlacesOnInSmallFloats)
{
    auto const records = grid(Recorder::printer(2.4, 2.4), 0.1, 0.7, 0.4, 1.2);
    float x = 0.1f, y = 0.7f;
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(item<double>(records[i], 0), static_cast<double>(x)) << i;
        EXPECT_EQ(item<double>(records[i], 1), 0.7) << i;
        EXPECT_EQ(item<double>(records[5 + i], 1), static_cast<double>(y)) << i;
        x = static_cast<float>(x + 0.4 / 4);
        y = static_cast<float>(y + 1.2 / 4);
    }
}

} // namespace zendara::test
