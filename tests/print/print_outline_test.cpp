// The small figure of the panel, as it stands beside a plot.
#include "page_fixture.hpp"

#include <cmath>

namespace zendara::test
{

namespace
{

/// The polygons of the figure: the panel and its mark.
struct Outline : PrintedPage {
    panel record;

    Outline()
    {
        record.SizeX = 200;
        record.SizeY = 100;
    }

    Lines print(double alpha, double theta)
    {
        paper.Print_2DBPlot(record, left, top, width, height, 1, 1, 1, alpha, theta, "", false);
        return polygons(*page);
    }

    static Lines polygons(Recorder& surface)
    {
        auto const all = only(surface.take_record(), "Polygon");
        return {text_of(all.at(0)), text_of(all.at(1))};
    }
};

} // namespace

TEST_F(Outline, ThePanelStandsOnItsColumnWithTheMarkOnItsLowerEdge)
{
    EXPECT_EQ(print(0, 90), (Lines{flat_outline[2], flat_outline[3]}));
}

TEST_F(Outline, APanelTurnedByAQuarterHasTheMarkToTheRight)
{
    EXPECT_EQ(print(90, 90), (Lines{"Polygon [508,977,508,1051,546,1051,546,977] 16777215 0 0 2 0",
                                    "Polygon [554,1014,546,1006,538,1014,546,1022] 128 0 0 2 128"}));
}

TEST_F(Outline, AHalfTurnPutsTheMarkOnTop)
{
    EXPECT_EQ(print(180, 90).at(1), "Polygon [535,996,527,988,519,996,527,1004] 128 0 0 2 128");
}

TEST_F(Outline, ThreeQuartersPutTheMarkToTheLeft)
{
    EXPECT_EQ(print(270, 90).at(1), "Polygon [516,1014,508,1006,500,1014,508,1022] 128 0 0 2 128");
}

TEST_F(Outline, AnInclinationShortensTheHeight)
{
    // The sine of 30 degrees halves 18.5 pixels.
    EXPECT_EQ(print(0, 30).at(0), "Polygon [564,1005,490,1005,490,1023,564,1023] 16777215 0 0 2 0");
}

TEST_F(Outline, AFullTurnIsReducedByTwoPiDegreesOnly)
{
    double const pi = std::acos(-1.0);
    double const angle = (360 - 2 * pi) / 180 * pi;
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    double const scale =
        std::min(74 / (std::abs(c) * 200 + std::abs(s) * 100), 74 / (std::abs(s) * 200 + std::abs(c) * 100));
    auto const x = std::lround(527 + (100 * c - 50 * s) * scale);
    auto const y = std::lround(1014 - (50 * c + 100 * s) * scale);
    auto const panel_shape = print(360, 90).at(0);
    EXPECT_EQ(panel_shape.find("Polygon [" + std::to_string(x) + "," + std::to_string(y) + ","), 0u) << panel_shape;
    EXPECT_NE(panel_shape, flat_outline[2]);
}

TEST_F(Outline, APanelWithoutSizeCollapsesToAPointWithItsMark)
{
    record.SizeX = 0;
    record.SizeY = 0;
    EXPECT_EQ(print(0, 90), (Lines{"Polygon [527,1014,527,1014,527,1014,527,1014] 16777215 0 0 2 0",
                                   "Polygon [535,1014,527,1006,519,1014,527,1022] 128 0 0 2 128"}));
}

TEST_F(Outline, OnAPictureItsPenIsThinAndItsPixelsAreThoseOfTheScreen)
{
    auto const picture = Recorder::picture({});
    paper.PrinterObj = picture.get();
    paper.Print_2DBPlot(record, left, top, width, height, 1, 1, 1, 0, 90, "", false);
    // (4820 / 15 + 30, 4845 / 15 + 30) is the middle; 44 pixels for 200 mm.
    EXPECT_EQ(polygons(*picture), (Lines{"Polygon [373,342,329,342,329,364,373,364] 16777215 0 0 1 0",
                                         "Polygon [359,364,351,356,343,364,351,372] 128 0 0 1 128"}));
}

TEST_F(Outline, ADeviceWithoutResolutionFails)
{
    page = Recorder::printer(10, 0);
    paper.PrinterObj = page.get();
    EXPECT_EQ(failure_of([&] { print(0, 90); }), FailureKind::DivisionByZero);
}

} // namespace zendara::test
