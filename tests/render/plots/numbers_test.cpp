#include "panels.hpp"
#include "trace_text.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

namespace
{

// 300 x 200 mm on 606 x 406 pixels: two pixels to the millimetre, the centre at (303, 203).
constexpr Recorder::PictureArea two_pixels_per_mm{0, 0, 606, 406};

using PlotMember = void (panel::*)(Surface&, double, double, double, double, std::int16_t);

std::vector<TraceRecord> plot(panel& record, PlotMember member, std::int16_t show_displ = 0)
{
    auto const surface = Recorder::picture(two_pixels_per_mm);
    (record.*member)(*surface, 0, 0, 9090, 6090, show_displ);
    return surface->take_record();
}

std::vector<Site> row_of_sites(int count)
{
    std::vector<Site> sites;
    for (int i = 0; i < count; ++i)
        sites.push_back({-100 + 200.0 * i / count, 0, 10.0 + i});
    return sites;
}

std::string text_at(std::vector<TraceRecord> const& records, std::size_t index)
{
    return item<std::string>(only(records, "Text").at(index), 0);
}

} // namespace

TEST(D2Number, PrintsTheValueInTheMiddleOfItsSiteAndInTheColourOfItsInterval)
{
    auto const record = make_panel(300, 200, {{-50, 25, 1}, {50, -25, 11}});
    auto const records = plot(*record, &panel::D2Number);
    EXPECT_EQ(text_of(records), (std::vector<std::string>{
                                    "Cls",
                                    "Refresh",
                                    "Box 2 2 603 403 0 1 0 1 16777215",
                                    // Field 4, 100 twips a letter, 200 the line; 15 twips a pixel.
                                    "Text \"   1\" 189.666666667 146.333333333 8388736 \"Arial\" 8",
                                    "Refresh",
                                    "Text \"  11\" 389.666666667 246.333333333 128 \"Arial\" 8",
                                    "Refresh",
                                }));
}

TEST(D2Number, EveryNumberOfAFlatPanelHasTheSixthColour)
{
    auto const record = make_panel(300, 200, {{-50, 25, 7}, {50, -25, 7}, {0, 0, 7}});
    for (auto const& text : only(plot(*record, &panel::D2Number), "Text"))
        EXPECT_EQ(item<std::int32_t>(text, 3), static_cast<std::int32_t>(record->col6));
}

TEST(D2Number, AWholeTopOfTheScaleGivesTheFieldOfItsTextAndOne)
{
    auto const record = make_panel(300, 200, {{0, 0, 123}, {50, 0, 4}});
    auto const records = plot(*record, &panel::D2Number);
    EXPECT_EQ(text_at(records, 0), "  123");
    EXPECT_EQ(text_at(records, 1), "    4");
}

TEST(D2Number, ATopAbove100000PutsEverySiteIntoTheScientificForm)
{
    auto const record = make_panel(300, 200, {{0, 0, 123456}, {50, 0, 4}});
    auto const records = plot(*record, &panel::D2Number);
    EXPECT_EQ(text_at(records, 0), " 1.23E+05");
    EXPECT_EQ(text_at(records, 1), " 4.00E+00");
}

TEST(D2Number, ATopWithAFractionCutsTheDigitsThatDoNotFit)
{
    auto const record = make_panel(300, 200, {{0, 0, 12.56789}, {50, 0, 1.99999}});
    auto const records = plot(*record, &panel::D2Number);
    EXPECT_EQ(text_at(records, 0), "12.567"); // 6 less the length of " 13"
    EXPECT_EQ(text_at(records, 1), " 1.999");
}

TEST(D2Number, OnPaperTheScreenIsNotClearedAndThePictureStillShowsEachNumber)
{
    auto const record = make_panel(300, 200, row_of_sites(3));
    auto const records = plot(*record, &panel::D2Number, 1);
    EXPECT_TRUE(only(records, "Cls").empty());
    EXPECT_EQ(only(records, "Refresh").size(), 3u);
}

TEST(D2Number, PutsLowBackWhenItEnds)
{
    auto const record = make_panel(300, 200, row_of_sites(5));
    double const low = record->Low;
    plot(*record, &panel::D2Number);
    EXPECT_EQ(record->Low, low);
}

TEST(D2GridNumber, ShowsNumbersUpTo254Sites)
{
    auto const record = make_panel(300, 200, row_of_sites(254));
    auto const records = plot(*record, &panel::D2GridNumber);
    EXPECT_EQ(only(records, "Text").size(), 254u);
    EXPECT_EQ(text_at(records, 253), "254");
    EXPECT_EQ(item<std::int32_t>(only(records, "Text").at(0), 3), 0xFF0000);
    EXPECT_TRUE(only(records, "Circle").empty());
}

TEST(D2GridNumber, ShowsCirclesFrom255SitesOn)
{
    auto const record = make_panel(300, 200, row_of_sites(255));
    auto const records = plot(*record, &panel::D2GridNumber);
    EXPECT_TRUE(only(records, "Text").empty());
    ASSERT_EQ(only(records, "Circle").size(), 255u);
    EXPECT_EQ(text_of(only(records, "Circle").at(0)), "Circle 103 203 10 16711680 1 1 16777215");
}

TEST(SiteNumbers, WithoutSitesTheFrameStandsAlone)
{
    for (PlotMember const member : {&panel::D2Number, &panel::D2GridNumber, &panel::GridPosPlot}) {
        auto const record = make_panel(300, 200, {});
        EXPECT_EQ(text_of(plot(*record, member)),
                  (std::vector<std::string>{"Cls", "Refresh", "Box 2 2 603 403 0 1 0 1 16777215"}));
    }
}

TEST(SiteNumbers, APanelWithoutAWidthFailsNowhereAndReportsNothing)
{
    for (PlotMember const member : {&panel::D2Number, &panel::D2GridNumber, &panel::GridPosPlot}) {
        auto const record = make_panel(0, 200, row_of_sites(3));
        EXPECT_NO_THROW(plot(*record, member));
    }
}

TEST(GridPosPlot, TakesTheColourThatTheSurfaceHas)
{
    auto const record = make_panel(300, 200, row_of_sites(2));
    auto const surface = Recorder::picture(two_pixels_per_mm);
    surface->ForeColor = 4711;
    record->GridPosPlot(*surface, 0, 0, 0, 0, 0);
    auto const texts = only(surface->take_record(), "Text");
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(item<std::int32_t>(texts[0], 3), 4711);
    EXPECT_EQ(item<std::string>(texts[1], 0), "2");
}

TEST(GridPosPlot, LeavesLowAlone)
{
    auto const record = make_panel(300, 200, row_of_sites(2));
    record->Low = -77;
    plot(*record, &panel::GridPosPlot);
    EXPECT_EQ(record->Low, -77);
}

} // namespace zendara::test
