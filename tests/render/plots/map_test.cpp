#include "panels.hpp"
#include "trace_text.hpp"
#include "zendara/render/plots/site_plot.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace zendara::test
{

namespace
{

constexpr std::int16_t intervals = 5;
constexpr std::int16_t sigma_map = 0;

/// What a test passes to D2Plot; the rest is zero.
struct Call {
    double resx = 20;
    double resy = 20;
    std::int16_t style = intervals;
    double sigma_range = 0;
    std::int16_t marks = 0;
    PlotBox box = {};
    std::int16_t show_displ = 0;
};

std::vector<TraceRecord> plot_on(Recorder& surface, panel& record, Call const& call = {})
{
    record.D2Plot(surface, call.resx, call.resy, call.style, call.sigma_range, call.marks, call.box.left, call.box.top,
                  call.box.width, call.box.height, call.show_displ);
    return surface.take_record();
}

std::vector<TraceRecord> plot(panel& record, Call const& call = {})
{
    auto const surface = Recorder::picture({0, 0, 400, 300});
    return plot_on(*surface, record, call);
}

std::set<std::int32_t> colors_of_cells(std::vector<TraceRecord> const& records)
{
    std::set<std::int32_t> colors;
    for (auto const& polygon : only(records, "Polygon"))
        colors.insert(item<std::int32_t>(polygon, 1));
    return colors;
}

std::vector<Site> equal_sites(int count, double value)
{
    auto sites = random_sites(count, 300, 200, 3);
    for (auto& site : sites)
        site.z = value;
    return sites;
}

/// One cell as it has to be: corners and colour.
struct Cell {
    std::vector<std::int32_t> corners;
    std::int32_t color;
};

/// The map worked out cell by cell, each corner asked for anew.
std::vector<Cell> obvious_cells(panel const& record, Call const& call, double width, double height)
{
    double bottom = record.minimal;
    double top = record.maximal;
    if (record.maximal != record.maxi || record.minimal != record.mini) {
        bottom = record.minimal - (record.maximal - record.minimal) / 8;
        top = record.maximal + (record.maximal - record.minimal) / 8;
    }
    double const low = top == bottom ? (bottom < 0 ? 1.1 : 0.9) * bottom - 0.001 : bottom - (top - bottom) * 0.1;
    double resx = call.resx;
    double resy = call.resy;
    int cells_x = static_cast<int>(std::nearbyint(record.HalfTestSizeX / resx));
    int cells_y = static_cast<int>(std::nearbyint(record.HalfTestSizey / resy));
    if (cells_x < 4) {
        cells_x = 4;
        resx = record.HalfTestSizeX / 4;
    }
    if (cells_y < 4) {
        cells_y = 4;
        resy = record.HalfTestSizey / 4;
    }
    double const zoom_x = (width - 6) / (2 * cells_x * resx);
    double const zoom_y = (height - 6) / (2 * cells_y * resy);
    double const zoom = zoom_x < zoom_y ? zoom_x : zoom_y;
    double const band = (1 - (top - bottom) * 0.1 / (top - low)) * zoom / 10;
    auto const scaled = [&](double value) { return (value - low) * zoom / (top - low); };
    std::vector<double> const colors = {record.col1, record.col2, record.col3, record.col4, record.col5,
                                        record.col6, record.col7, record.col8, record.col9, record.col10};
    std::vector<Cell> cells;
    for (int i = 0; i < 2 * cells_y; ++i)
        for (int j = 0; j < 2 * cells_x; ++j) {
            double const x1 = (cells_x - j) * resx;
            double const x2 = (cells_x - j - 1) * resx;
            double const y1 = (cells_y - i) * resy;
            double const y2 = (cells_y - i - 1) * resy;
            double const m = (scaled(record.Interpolation(x1, y1)) + scaled(record.Interpolation(x2, y1)) +
                              scaled(record.Interpolation(x1, y2)) + scaled(record.Interpolation(x2, y2))) /
                             4;
            double color = 0;
            if (call.style == intervals) {
                if (zoom - band <= m)
                    color = colors[0];
                for (int k = 2; k <= 9; ++k)
                    if (zoom - (k - 1) * band > m && zoom - k * band <= m)
                        color = colors[static_cast<std::size_t>(k - 1)];
                if (zoom - 9 * band > m)
                    color = colors[9];
                if (top == bottom)
                    color = colors[5];
            } else {
                double const sigma_low = scaled(record.mean - call.sigma_range * record.StdDev);
                double const sigma_high = scaled(record.mean + call.sigma_range * record.StdDev);
                bool const is_spread = record.maxi != record.mini;
                color = sigma_low > m && is_spread    ? record.ColS3
                        : sigma_high < m && is_spread ? record.ColS1
                                                      : record.ColS2;
            }
            if (m == 0)
                continue;
            auto const px = [&](double x) { return static_cast<int>(std::nearbyint(0 + width / 2 + x * zoom)); };
            auto const py = [&](double y) { return static_cast<int>(std::nearbyint(0 + height / 2 - y * zoom)); };
            cells.push_back(
                {{px(x1), py(y1), px(x2), py(y1), px(x2), py(y2), px(x1), py(y2)}, static_cast<std::int32_t>(color)});
        }
    return cells;
}

void expect_obvious_map(panel& record, Call const& call)
{
    auto const expected = obvious_cells(record, call, 400, 300);
    auto const drawn = only(plot(record, call), "Polygon");
    ASSERT_EQ(drawn.size(), expected.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        ASSERT_EQ(item<std::vector<std::int32_t>>(drawn[i], 0), expected[i].corners) << "cell " << i;
        ASSERT_EQ(item<std::int32_t>(drawn[i], 1), expected[i].color) << "cell " << i;
    }
}

} // namespace

TEST(D2Plot, BelowFourSitesOnlyTheMarksAppear)
{
    for (int count = 1; count <= 3; ++count) {
        auto const record = make_panel(300, 200, random_sites(count, 300, 200, 1));
        auto const records = plot(*record, {.marks = -1});
        EXPECT_TRUE(only(records, "Polygon").empty());
        EXPECT_TRUE(only(records, "Box").empty());
        EXPECT_GE(only(records, "FillBox").size(), 2u * static_cast<unsigned>(count));
    }
}

TEST(D2Plot, FourSitesAreDrawnFromTheSimpleScan)
{
    auto const record = make_panel(300, 200, {{-100, -50, 1}, {100, -50, 2}, {-100, 50, 3}, {100, 50, 4}});
    EXPECT_EQ(record->Interpolation(7, 9), record->Interpolation_Einfach(7, 9));
    expect_obvious_map(*record, {});
}

TEST(D2Plot, EveryCellHasTheCornersAndTheColourOfTheObviousComputation)
{
    for (int const count : {9, 10, 100, 1000}) {
        auto const record = make_panel(300, 200, random_sites(count, 300, 200, 7));
        expect_obvious_map(*record, {.resx = 5, .resy = 5});
        expect_obvious_map(*record, {.resx = 7, .resy = 3});
        expect_obvious_map(*record, {.resx = 5, .resy = 5, .style = sigma_map, .sigma_range = 0.5});
        expect_obvious_map(*record, {.resx = 5, .resy = 5, .style = sigma_map, .sigma_range = 0});
        record->setMaximalMinial(520, 480);
        expect_obvious_map(*record, {.resx = 5, .resy = 5});
        record->setMaximalMinial(-20, -20.5);
        expect_obvious_map(*record, {.resx = 5, .resy = 5});
    }
}

TEST(D2Plot, AFlatPanelIsOneColourTheSixth)
{
    for (double const value : {5.0, -5.0, 0.0}) {
        auto const record = make_panel(300, 200, equal_sites(20, value));
        EXPECT_EQ(colors_of_cells(plot(*record)), std::set{static_cast<std::int32_t>(record->col6)});
        EXPECT_LT(record->Low, value);
    }
}

TEST(D2Plot, AFlatPanelHasOnlyTheMiddleSigmaColour)
{
    auto const record = make_panel(300, 200, equal_sites(20, 5));
    auto const records = plot(*record, {.style = sigma_map, .sigma_range = 0.5});
    EXPECT_EQ(colors_of_cells(records), std::set{static_cast<std::int32_t>(record->ColS2)});
}

TEST(D2Plot, ACellLargerThanAnEighthOfTheAreaBecomesAnEighth)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 1));
    EXPECT_EQ(only(plot(*record, {.resx = 100, .resy = 100}), "Polygon").size(), 8u * 8u);
}

TEST(D2Plot, ARasterThatDoesNotDivideTheAreaSticksOutOfTheFrameOrFallsShort)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 1));
    // 150 / 35 rounds to 4: 280 mm of cells in a frame of 300 mm.
    auto const records = plot(*record, {.resx = 35, .resy = 25});
    auto const frame = only(records, "Box").at(0);
    auto const first = item<std::vector<std::int32_t>>(only(records, "Polygon").at(0), 0);
    EXPECT_LT(first[0], item<double>(frame, 2) - 5);
    // 150 / 33 rounds to 5: 330 mm of cells.
    auto const wide = plot(*record, {.resx = 33, .resy = 25});
    EXPECT_GT(item<std::vector<std::int32_t>>(only(wide, "Polygon").at(0), 0)[0],
              item<double>(only(wide, "Box").at(0), 2) + 5);
}

TEST(D2Plot, BeyondPlotLimitsTheTopAndTheBottomColourShow)
{
    auto const sites = random_sites(50, 300, 200, 2);
    auto const high = make_panel(300, 200, sites);
    high->setMaximalMinial(100, 50); // all values lie above
    EXPECT_EQ(colors_of_cells(plot(*high)), std::set{static_cast<std::int32_t>(high->col1)});
    auto const low = make_panel(300, 200, sites);
    low->setMaximalMinial(1000, 900); // all values lie below
    EXPECT_EQ(colors_of_cells(plot(*low)), std::set{static_cast<std::int32_t>(low->col10)});
}

TEST(D2Plot, PutsTheScaleBackWhenItEnds)
{
    auto const record = make_panel(300, 200, random_sites(50, 300, 200, 2));
    double const low = record->Low;
    plot(*record);
    EXPECT_EQ(record->Low, low);
    record->setMaximalMinial(520, 480);
    plot(*record);
    EXPECT_EQ(record->Low, 480);
    EXPECT_EQ(record->range, 40);
}

TEST(D2Plot, AValueOnABorderBelongsToTheHigherInterval)
{
    panel record;
    IntervalColors const colors(record, 100, 8, false);
    for (int k = 1; k <= 9; ++k) {
        double const border = 100 - k * 8.0;
        double const expected[] = {record.col1, record.col2, record.col3, record.col4, record.col5,
                                   record.col6, record.col7, record.col8, record.col9, record.col10};
        EXPECT_EQ(colors(border, 0), expected[k - 1]);
        EXPECT_EQ(colors(std::nextafter(border, 0), 0), expected[k]);
    }
}

TEST(D2Plot, BordersThatRiseKeepTheRuleOfEachInterval)
{
    panel record;
    IntervalColors const colors(record, -10, -1, false); // borders -9, -8, ... -1
    EXPECT_EQ(colors(-20, 7), record.col10);
    EXPECT_EQ(colors(0, 7), record.col1);
    EXPECT_EQ(colors(-5.5, 7), record.col10); // both ends claim it: the last rule wins
    EXPECT_EQ(colors(std::nan(""), 7), 7);    // no rule claims it: the colour before stays
}

TEST(D2Plot, OnThePaperNothingIsClearedOrRefreshed)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 1));
    auto const records = plot(*record, {.marks = 1, .box = {0, 0, 6000, 4500}, .show_displ = 1});
    EXPECT_TRUE(only(records, "Cls").empty());
    EXPECT_TRUE(only(records, "Refresh").empty());
    EXPECT_FALSE(only(records, "Polygon").empty());
}

TEST(D2Plot, OnTheScreenEveryRowIsShownAsItComes)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 1));
    auto const records = plot(*record, {.resx = 30, .resy = 20, .marks = 1});
    EXPECT_EQ(only(records, "Cls").size(), 1u);
    EXPECT_EQ(only(records, "Refresh").size(), 1u + 10u + 1u + 20u); // start, rows, end of rows, sites
}

TEST(D2Plot, OnAPrinterTheRectangleAndTheMarksAreInDevicePixels)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 1));
    auto const printer = Recorder::printer(2.4, 1.2);
    auto const records = plot_on(*printer, *record, {.marks = 1, .box = {240, 120, 7200, 4800}, .show_displ = 1});
    auto const mark = only(records, "FillBox").at(0);
    EXPECT_NEAR(item<double>(mark, 2) - item<double>(mark, 0), 2 * 29, 1e-9); // 12 * 2.4 rounded
    EXPECT_NEAR(item<double>(mark, 3) - item<double>(mark, 1), 2 * 5, 1e-9);  // 4 * 1.2 rounded
    auto const frame = only(records, "Box").at(0);
    EXPECT_NEAR((item<double>(frame, 0) + item<double>(frame, 2)) / 2, 100 + 3000 / 2.0, 2);
    EXPECT_NEAR((item<double>(frame, 1) + item<double>(frame, 3)) / 2, 100 + 4000 / 2.0, 2);
}

TEST(D2Plot, ASiteAboveTheMeanShowsAPlusAndAnotherAMinus)
{
    auto const record = make_panel(300, 200, {{0, 0, 10}, {50, 0, 1}, {-50, 0, 1}});
    auto const records = only(plot(*record, {.marks = 1}), "FillBox");
    ASSERT_EQ(records.size(), 4u + 2u + 2u);
    // Eight columns of 20 mm to each side: 394 / 320 pixels to the millimetre.
    EXPECT_EQ(text_of(records[0]), "FillBox 194 148 206 152 16777215");
    EXPECT_EQ(text_of(records[1]), "FillBox 198 144 202 156 16777215");
    EXPECT_EQ(text_of(records[2]), "FillBox 197 150 203 150 0");
    EXPECT_EQ(text_of(records[3]), "FillBox 200 147 200 153 0");
    EXPECT_EQ(text_of(records[5]), "FillBox 258.5625 150 264.5625 150 0");
}

TEST(D2Plot, ACellSizeOfZeroHealsItselfInTheRepairedRectangle)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 1));
    auto const records = plot(*record, {.resx = 0, .box = {48, 96, 960, 480}});
    auto const cells = only(records, "Polygon");
    ASSERT_FALSE(cells.empty());
    // The rectangle is now 10, 20, 200, 100; the cells of 75 / 2 mm fill it.
    EXPECT_EQ(item<std::vector<std::int32_t>>(cells.at(0), 0).at(1), 20 + 50 - 47);
}

TEST(D2Plot, APanelWithoutSizeDrawsNothingUsefulAndFailsNowhere)
{
    auto const record = make_panel(0, 0, random_sites(9, 300, 200, 1));
    EXPECT_NO_THROW(plot(*record, {.marks = 1}));
    panel fresh;
    EXPECT_NO_THROW(plot(fresh, {.marks = 1}));
}

TEST(D2Plot, APrinterWithoutResolutionFailsNowhere)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 1));
    auto const printer = Recorder::printer(0, 0);
    EXPECT_NO_THROW(plot_on(*printer, *record, {.marks = 1, .box = {0, 0, 4800, 4800}, .show_displ = 1}));
}

TEST(D2Plot, ARasterOfMoreColumnsThanSixteenBitsCountDrawsTheMarksAlone)
{
    auto const record = make_panel(300, 200, random_sites(20, 300, 200, 1));
    auto const records = plot(*record, {.resx = 0.008, .resy = 50, .marks = 1}); // 37500 columns
    EXPECT_TRUE(only(records, "Polygon").empty());
    EXPECT_FALSE(only(records, "FillBox").empty());
}

TEST(D2Plot, AColourBeyond32BitsLeavesTheFillAsItWas)
{
    auto const record = make_panel(300, 200, equal_sites(20, 5));
    record->col6 = 1e20;
    EXPECT_EQ(colors_of_cells(plot(*record)), std::set{QBColor(15)}); // as the frame left it
}

} // namespace zendara::test
