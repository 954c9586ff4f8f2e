#include "page_fixture.hpp"

namespace zendara::test
{

namespace
{

constexpr std::int16_t by_angle = 1, through_points = 2;

/// The axes in the box: "4.00000" is 700 wide, one and a half times that is left to them; 1215 + 300 to the right are
/// left out.
constexpr double axes_x = 2050, axes_y = 2500, axes_width = 2435, axes_height = 2750;

struct PrintedScan : PrintedPage {
    std::unique_ptr<panel> record_ = small_panel();
    std::unique_ptr<panel> other_ = small_panel();
    panel& record_of_print = *record_;
    panel& other = *other_;

    PrintedScan() { record_of_print.Low = 0; } // not `minimal`, which is 1

    void print_horizontal(bool marks, bool with_frame)
    {
        paper.Print_1DPlot(record_of_print, 90, by_angle, 0, 0, 7, 7, 8, 8, marks, "Cap", left, top, width, height,
                           with_frame);
    }

    Lines grid()
    {
        return drawn(scale_twips, [&](Surface& surface) {
            surface.DrawWidth = 2;
            double x = axes_x, y = axes_y, w = axes_width, h = axes_height;
            other.D1Plot_AdjustLines(surface, x, y, w, h);
        });
    }

    Lines curve(std::int16_t phi, std::int16_t is_angle, double x1, double y1, double x2, double y2, bool marks)
    {
        return drawn(scale_twips, [&](Surface& surface) {
            surface.DrawWidth = 4;
            double x = axes_x, y = axes_y, w = axes_width, h = axes_height;
            std::int16_t steps = 88, for_paper = 1;
            Color red = 128;
            other.D1Plot(surface, steps, phi, is_angle, x1, y1, x2, y2, red, x, y, w, h, for_paper);
            if (marks)
                other.D1Plot_MarkSites(surface, nullptr, phi, is_angle, x1, y1, x2, y2, red, x, y, w, h, for_paper);
        });
    }
};

Lines const first_reset = {"ScaleMode 1"};

/// The figure in its column, which begins at (4785, 3900): 360 lower, in the middle of pixel (527, 937).
Lines const outline = {
    "ScaleMode 1",
    "ScaleMode 3",
    "Polygon [564,918,490,918,490,956,564,956] 16777215 0 0 2 0",
    "Polygon [535,956,527,948,519,956,527,964] 128 0 0 2 128",
    "ScaleMode 1",
};

/// The scan from the right to the left edge on the figure, whose middle is (5270, 4910): 696 twips for 200 mm. With
/// its mark 746 twips; the plus of 46 twips begins at the scan's start.
Lines const indicator = {
    "Line 5618 4910 4922 4910 32768 1 0",
    "Line 5643 4933 5689 4933 32768 1 0",
    "Line 5666 4910 5666 4956 32768 1 0",
};

Lines const values = {
    R"(Text "4.00000" 1083.33333333 2410 8388608 "Arial" 8)",
    R"(Text "3.00000" 1083.33333333 3097.5 8388608 "Arial" 8)",
    R"(Text "2.00000" 1083.33333333 3785 8388608 "Arial" 8)",
    R"(Text "1.00000" 1083.33333333 4472.5 8388608 "Arial" 8)",
    R"(Text "0.00000" 1083.33333333 5160 8388608 "Arial" 8)",
};

/// Every 608.75 twips, in the middle of the text and at a whole twip.
Lines const positions = {
    R"(Text "X=100.00" 1650 5350 8388608 "Arial" 8)",  R"(Text "Y=0.00" 1750 5550 8388608 "Arial" 8)",
    R"(Text "X=50.00" 2309 5350 8388608 "Arial" 8)",   R"(Text "Y=0.00" 2359 5550 8388608 "Arial" 8)",
    R"(Text "X=0.00" 2968 5350 8388608 "Arial" 8)",    R"(Text "Y=0.00" 2968 5550 8388608 "Arial" 8)",
    R"(Text "X=-50.00" 3476 5350 8388608 "Arial" 8)",  R"(Text "Y=0.00" 3576 5550 8388608 "Arial" 8)",
    R"(Text "X=-100.00" 4035 5350 8388608 "Arial" 8)", R"(Text "Y=0.00" 4185 5550 8388608 "Arial" 8)",
};

Lines const origin = {
    "Line 2005 2355 2095 2355 8388608 2 0",
    "Line 2050 2310 2050 2400 8388608 2 0",
};

} // namespace

TEST_F(PrintedScan, ByAngleShowsFigureAngleLabelsGridAndCurve)
{
    print_horizontal(false, true);
    EXPECT_EQ(record(), join({first_reset,
                              captioned_frame,
                              outline,
                              indicator,
                              {R"(Text "Angle: 90" 4785 3900 0 "Arial" 8)"}, // 9 letters fit
                              values,
                              positions,
                              grid(),
                              origin,
                              curve(90, -1, 0, 0, 0, 0, false),
                              {"ScaleMode 1"}}));
}

TEST_F(PrintedScan, MarkedSitesComeLast)
{
    print_horizontal(true, false);
    auto const lines = record();
    auto const end = join({origin, curve(90, -1, 0, 0, 0, 0, true), {"ScaleMode 1"}});
    ASSERT_GT(lines.size(), end.size());
    EXPECT_EQ(Lines(lines.end() - static_cast<std::ptrdiff_t>(end.size()), lines.end()), end);
    EXPECT_EQ(end[end.size() - 2].substr(0, 6), "Circle");
}

TEST_F(PrintedScan, ThroughTwoPointsTakesTheSecondAndTheThirdAndShowsNoAngle)
{
    // From (-50, 0) to (50, 0): the scan of the other direction.
    paper.Print_1DPlot(record_of_print, 90, through_points, 7, 7, -50, 0, 50, 0, false, "Cap", left, top, width, height,
                       false);
    Lines const turned_indicator = {
        "Line 4922 4910 5618 4910 32768 1 0",
        "Line 4897 4933 4943 4933 32768 1 0",
        "Line 4920 4910 4920 4956 32768 1 0",
    };
    Lines const turned_positions = {
        R"(Text "X=-100.00" 1600 5350 8388608 "Arial" 8)", R"(Text "Y=0.00" 1750 5550 8388608 "Arial" 8)",
        R"(Text "X=-50.00" 2259 5350 8388608 "Arial" 8)",  R"(Text "Y=0.00" 2359 5550 8388608 "Arial" 8)",
        R"(Text "X=0.00" 2968 5350 8388608 "Arial" 8)",    R"(Text "Y=0.00" 2968 5550 8388608 "Arial" 8)",
        R"(Text "X=50.00" 3526 5350 8388608 "Arial" 8)",   R"(Text "Y=0.00" 3576 5550 8388608 "Arial" 8)",
        R"(Text "X=100.00" 4085 5350 8388608 "Arial" 8)",  R"(Text "Y=0.00" 4185 5550 8388608 "Arial" 8)",
    };
    EXPECT_EQ(record(), join({first_reset,
                              outline,
                              turned_indicator,
                              values,
                              turned_positions,
                              grid(),
                              origin,
                              curve(0, 0, -50, 0, 50, 0, false),
                              {"ScaleMode 1"}}));
}

TEST_F(PrintedScan, OnAPictureThePensAreThinner)
{
    auto const picture = Recorder::picture({});
    paper.PrinterObj = picture.get();
    print_horizontal(false, false);
    std::vector<std::int16_t> widths;
    for (auto const& line : only(picture->take_record(), "Line")) {
        auto const pen = static_cast<std::int16_t>(item<std::int32_t>(line, 5));
        if (widths.empty() || widths.back() != pen)
            widths.push_back(pen);
    }
    EXPECT_EQ(widths, (std::vector<std::int16_t>{1, 2})); // figure, grid and origin; curve
}

TEST_F(PrintedScan, LeavesTheTestedAreaAsItWas)
{
    record_of_print.TestSizeX = 150;
    print_horizontal(false, false);
    EXPECT_EQ(record_of_print.TestSizeX, 150);
    EXPECT_EQ(record_of_print.TestSizeY, 100);
}

TEST_F(PrintedScan, AValueBeyondOrdinaryNumbersIsLabelledWithAnExponent)
{
    record_of_print.maximal = 2e6;
    record_of_print.Low = 1e6;
    print_horizontal(false, false);
    Lines found;
    for (auto const& text : only(page->take_record(), "Text"))
        found.push_back(item<std::string>(text, 0));
    EXPECT_EQ(Lines(found.begin() + 1, found.begin() + 6),
              (Lines{"2.00E+06", "1.75E+06", "1.50E+06", "1.25E+06", "1.00E+06"}));
}

} // namespace zendara::test
