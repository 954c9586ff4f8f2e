#include "page_fixture.hpp"

namespace zendara::test
{

namespace
{

constexpr std::int16_t paper_run = 1;

// Beside the figure 5000 - 1250 = 3750 twips are left; 90% of them make the square of 3375, in the middle of what is
// left and of the height, one line of 200 lower.
constexpr double beside_x = 1187.5, beside_y = 2512.5, beside_side = 3375;
// Alone in the box: 90% of 4000.
constexpr double alone_x = 1700, alone_y = 2400, alone_side = 3600;

struct PrintedPlot : PrintedPage {
    std::unique_ptr<panel> record_ = small_panel();
    std::unique_ptr<panel> other_ = small_panel(); // draws what is expected
    panel& record_of_print = *record_;
    panel& other = *other_;
};

Lines const first_reset = {"ScaleMode 1"};

} // namespace

TEST_F(PrintedPlot, TheColourMapComesBeforeItsFrame)
{
    paper.Print_2DPlot(record_of_print, left, top, width, height, 10, 5, "Cap", -1, true);
    EXPECT_EQ(record(), join({first_reset, flat_outline, plotted([&](Surface& surface) {
                                  other.D2Plot(surface, 10, 5, 5, 0, -1, beside_x, beside_y, beside_side, beside_side,
                                               paper_run);
                              }),
                              captioned_frame}));
}

TEST_F(PrintedPlot, WithoutAFrameTheColourMapHasNoCaptionEither)
{
    paper.Print_2DPlot(record_of_print, left, top, width, height, 10, 5, "Cap", 0, false);
    EXPECT_EQ(record(), join({first_reset, flat_outline, plotted([&](Surface& surface) {
                                  other.D2Plot(surface, 10, 5, 5, 0, 0, beside_x, beside_y, beside_side, beside_side,
                                               paper_run);
                              })}));
}

TEST_F(PrintedPlot, TheSigmaMapComesBehindItsFrame)
{
    paper.Print_2DSigmaPlot(record_of_print, left, top, width, height, 10, 5, 0.5, "Cap", -1, true);
    EXPECT_EQ(record(), join({first_reset, captioned_frame, flat_outline, plotted([&](Surface& surface) {
                                  other.D2Plot(surface, 10, 5, 4, 0.5, -1, beside_x, beside_y, beside_side, beside_side,
                                               paper_run);
                              })}));
}

TEST_F(PrintedPlot, TheNumbersComeBeforeTheirFrame)
{
    paper.Print_2DVPlot(record_of_print, left, top, width, height, "Cap", true);
    EXPECT_EQ(record(), join({first_reset, flat_outline, plotted([&](Surface& surface) {
                                  other.D2Number(surface, beside_x, beside_y, beside_side, beside_side, paper_run);
                              }),
                              captioned_frame}));
}

TEST_F(PrintedPlot, TheSurfaceComesBehindItsFrameAndAFigureTurnedAsItIs)
{
    paper.Print_3DPlot(record_of_print, left, top, width, height, 3, 10, 5, 40, 90, 30, "Cap", true);
    // Turned by a quarter the panel is 100 wide and 200 deep, of which the inclination leaves 100: 74 pixels.
    Lines const turned_outline = {"ScaleMode 1", "ScaleMode 3",
                                  "Polygon [490,977,490,1051,564,1051,564,977] 16777215 0 0 2 0",
                                  "Polygon [572,1014,564,1006,556,1014,564,1022] 128 0 0 2 128", "ScaleMode 1"};
    EXPECT_EQ(record(), join({first_reset, captioned_frame, turned_outline, plotted([&](Surface& surface) {
                                  other.D3Plot(surface, 10, 5, 40, 90, 30, 3, 0, -1, beside_x, beside_y, beside_side,
                                               beside_side, paper_run);
                              })}));
}

TEST_F(PrintedPlot, TheSigmaSurfaceTakesTheSigmaRange)
{
    paper.Print_3DSigmaPlot(record_of_print, left, top, width, height, 10, 5, 40, 0, 90, 0.75, "Cap", true);
    EXPECT_EQ(record(), join({first_reset, captioned_frame, flat_outline, plotted([&](Surface& surface) {
                                  other.D3Plot(surface, 10, 5, 40, 0, 90, 4, 0.75, -1, beside_x, beside_y, beside_side,
                                               beside_side, paper_run);
                              })}));
}

TEST_F(PrintedPlot, TheBarsComeBehindTheirFrame)
{
    paper.Print_2DBPlot(record_of_print, left, top, width, height, 6, 7, 10, 0, 90, "Cap", true);
    EXPECT_EQ(record(), join({first_reset, captioned_frame, flat_outline, plotted([&](Surface& surface) {
                                  other.D2BeamPlot(surface, 6, 7, 10, 0, 90, -1, beside_x, beside_y, beside_side,
                                                   beside_side, paper_run);
                              })}));
}

TEST_F(PrintedPlot, TheSiteNumbersAlwaysHaveAFrameAndNoFigure)
{
    paper.Print_GridPosPlot(record_of_print, left, top, width, height, "Cap");
    EXPECT_EQ(record(), join({first_reset, plotted([&](Surface& surface) {
                                  other.GridPosPlot(surface, alone_x, alone_y, alone_side, alone_side, paper_run);
                              }),
                              captioned_frame}));
}

TEST_F(PrintedPlot, TheBlueSiteNumbersTakeNineTenthsOfTheBoxWithAFrame)
{
    paper.Print_2DVGridPlot(record_of_print, left, top, width, height, "Cap", true);
    EXPECT_EQ(record(), join({first_reset, plotted([&](Surface& surface) {
                                  other.D2GridNumber(surface, alone_x, alone_y, alone_side, alone_side, paper_run);
                              }),
                              captioned_frame}));
}

TEST_F(PrintedPlot, TheBlueSiteNumbersTakeTheWholeBoxWithoutAFrame)
{
    paper.Print_2DVGridPlot(record_of_print, left, top, width, height, "Cap", false);
    EXPECT_EQ(record(), join({first_reset, plotted([&](Surface& surface) {
                                  other.D2GridNumber(surface, 1500, 2000, 4000, 4000, paper_run);
                              })}));
}

TEST_F(PrintedPlot, TheSmallColourMapHasALineBelowThatComesBackCut)
{
    std::string info(40, 'i');
    paper.Print_2DPlot_THN(record_of_print, left, top, width, height, 10, 5, "Cap", info);
    std::string const fits(36, 'i'); // in 3600 twips
    EXPECT_EQ(info, fits);
    // One line and a half below the top; the text half a line below the square.
    EXPECT_EQ(record(), join({first_reset,
                              plotted([&](Surface& surface) {
                                  other.D2Plot(surface, 10, 5, 5, 0, 0, 1700, 2300, 3600, 3600, paper_run);
                              }),
                              {"Text \"" + fits + "\" 1700 6000 0 \"Arial\" 8"},
                              captioned_frame,
                              {"ScaleMode 1"}}));
}

TEST_F(PrintedPlot, TheSmallSigmaMapHasItsFrameFirstAndNoFigure)
{
    paper.Print_2DSigmaPlot_THN(record_of_print, left, top, width, height, 10, 5, 0.5, "Cap");
    EXPECT_EQ(record(), join({first_reset, captioned_frame, plotted([&](Surface& surface) {
                                  other.D2Plot(surface, 10, 5, 4, 0.5, 0, alone_x, alone_y, alone_side, alone_side,
                                               paper_run);
                              })}));
}

TEST_F(PrintedPlot, ABoxTooNarrowForTheFigureGivesANegativeSquareAndIsPassedOn)
{
    constexpr double narrow = 1000;
    paper.Print_2DVPlot(record_of_print, left, top, narrow, height, "", false);
    auto const lines = record();
    auto const plot = plotted([&](Surface& surface) {
        // 1000 - 1250 = -250 are left; 90% are -225.
        other.D2Number(surface, 1000 - 12.5, 2200 + 2112.5, -225, -225, paper_run);
    });
    ASSERT_GT(lines.size(), plot.size());
    EXPECT_EQ(Lines(lines.end() - static_cast<std::ptrdiff_t>(plot.size()), lines.end()), plot);
}

TEST_F(PrintedPlot, BehindAPlotTheDrawingStateIsTheDefaultOne)
{
    paper.Print_3DPlot(record_of_print, left, top, width, height, 1, 10, 10, 40, 40, 35, "", true);
    EXPECT_EQ(page->ScaleMode(), scale_twips);
    EXPECT_EQ(page->FillStyle, fill_solid);
    EXPECT_EQ(page->FillColor, white);
    EXPECT_EQ(page->ForeColor, black);
    EXPECT_EQ(page->DrawStyle, pen_solid);
    EXPECT_EQ(page->DrawWidth, 1);
}

TEST_F(PrintedPlot, OnAPictureNothingIsClearedOrRefreshed)
{
    auto const picture = Recorder::picture({});
    paper.PrinterObj = picture.get();
    paper.Print_2DPlot(record_of_print, left, top, width, height, 10, 5, "Cap", 0, true);
    auto const records = picture->take_record();
    EXPECT_TRUE(only(records, "Cls").empty());
    EXPECT_TRUE(only(records, "Refresh").empty());
    EXPECT_GT(only(records, "Polygon").size(), 100u);
}

} // namespace zendara::test
