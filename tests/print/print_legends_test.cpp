#include "page_fixture.hpp"

namespace zendara::test
{

namespace
{

/// A panel with a scale from 0 to 10 and ten different colours.
struct PrintedLegend : PrintedPage {
    panel record_of_print;

    PrintedLegend()
    {
        auto& r = record_of_print;
        r.maxi = r.maximal = 10;
        r.mini = r.minimal = 0;
        double color = 101;
        for (auto* const each :
             {&r.col1, &r.col2, &r.col3, &r.col4, &r.col5, &r.col6, &r.col7, &r.col8, &r.col9, &r.col10})
            *each = color++;
        r.ColS1 = 201;
        r.ColS2 = 202;
        r.ColS3 = 203;
    }

    Lines texts()
    {
        Lines found;
        for (auto const& text : only(page->take_record(), "Text"))
            found.push_back(item<std::string>(text, 0));
        return found;
    }
};

/// The frame of a legend at (1000, 2000), 2775 by 2895 twips.
Lines const legend_frame = {
    "ScaleMode 1",
    "ScaleMode 1",
    "Line 1100 2200 1000 2200 4210752 2 0",
    "Line 1000 2200 1000 5095 4210752 2 0",
    "Line 1000 5095 3775 5095 4210752 2 0",
    "Line 3775 5095 3775 2200 4210752 2 0",
    "Line 3775 2200 1900 2200 4210752 2 0",
    R"(Text "Legend " 1150 2100 0 "Arial" 8)",
    "ScaleMode 1",
};

} // namespace

TEST_F(PrintedLegend, TenRowsShowTheLowerBoundToTheLeftAndTheHighestIntervalOnTop)
{
    paper.DrawColoredLegend(record_of_print, 1000, 2000, false);
    // In pixels: at (100, 400), 24 from row to row, boxes 51 wide, texts 45 further and 4.8 lower.
    EXPECT_EQ(record(), (Lines{
                            "ScaleMode 1",
                            "ScaleMode 3",
                            R"(Text " 9.000 - 10.000" 145 404.8 0 "Arial" 8)",
                            "Polygon [100,400,151,400,151,424,100,424] 101 0 0 1 0",
                            R"(Text " 8.000 -  9.000" 145 428.8 0 "Arial" 8)",
                            "Polygon [100,424,151,424,151,448,100,448] 102 0 0 1 0",
                            R"(Text " 7.000 -  8.000" 145 452.8 0 "Arial" 8)",
                            "Polygon [100,448,151,448,151,472,100,472] 103 0 0 1 0",
                            R"(Text " 6.000 -  7.000" 145 476.8 0 "Arial" 8)",
                            "Polygon [100,472,151,472,151,496,100,496] 104 0 0 1 0",
                            R"(Text " 5.000 -  6.000" 145 500.8 0 "Arial" 8)",
                            "Polygon [100,496,151,496,151,520,100,520] 105 0 0 1 0",
                            R"(Text " 4.000 -  5.000" 145 524.8 0 "Arial" 8)",
                            "Polygon [100,520,151,520,151,544,100,544] 106 0 0 1 0",
                            R"(Text " 3.000 -  4.000" 145 548.8 0 "Arial" 8)",
                            "Polygon [100,544,151,544,151,568,100,568] 107 0 0 1 0",
                            R"(Text " 2.000 -  3.000" 145 572.8 0 "Arial" 8)",
                            "Polygon [100,568,151,568,151,592,100,592] 108 0 0 1 0",
                            R"(Text " 1.000 -  2.000" 145 596.8 0 "Arial" 8)",
                            "Polygon [100,592,151,592,151,616,100,616] 109 0 0 1 0",
                            R"(Text " 0.000 -  1.000" 145 620.8 0 "Arial" 8)",
                            "Polygon [100,616,151,616,151,640,100,640] 110 0 0 1 0",
                            "ScaleMode 1",
                        }));
}

TEST_F(PrintedLegend, InItsFrameTheScaleStandsFurtherInAndLower)
{
    paper.DrawColoredLegend(record_of_print, 1000, 2000, true);
    auto const lines = record();
    ASSERT_GT(lines.size(), legend_frame.size() + 4);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 9), legend_frame);
    EXPECT_EQ(lines[11], R"(Text " 9.000 - 10.000" 157 504.8 0 "Arial" 8)");
    EXPECT_EQ(lines[12], "Polygon [112,500,163,500,163,524,112,524] 101 0 0 1 0");
}

TEST_F(PrintedLegend, WithPlotLimitsTheFirstAndTheLastRowAreOpen)
{
    record_of_print.setMaximalMinial(8, 2);
    paper.DrawColoredLegend(record_of_print, 1000, 2000, false);
    // From 2 - 6 / 8 to 8 + 6 / 8 in steps of 0.75.
    EXPECT_EQ(texts(),
              (Lines{"8.0000 > ", "7.2500 - 8.0000", "6.5000 - 7.2500", "5.7500 - 6.5000", "5.0000 - 5.7500",
                     "4.2500 - 5.0000", "3.5000 - 4.2500", "2.7500 - 3.5000", "2.0000 - 2.7500", " < 2.0000"}));
}

TEST_F(PrintedLegend, ALowerLimitAloneOpensBothEnds)
{
    record_of_print.setMaximalMinial(10, 2);
    paper.DrawColoredLegend(record_of_print, 1000, 2000, false);
    auto const found = texts();
    EXPECT_EQ(found.front().substr(found.front().size() - 3), " > ");
    EXPECT_EQ(found.back().substr(0, 3), " < ");
}

TEST_F(PrintedLegend, ANegativeScaleHasOneDecimalLess)
{
    record_of_print.mini = record_of_print.minimal = -10;
    paper.DrawColoredLegend(record_of_print, 1000, 2000, false);
    auto const found = texts();
    EXPECT_EQ(found.front(), "  8.00 -  10.00");
    EXPECT_EQ(found.back(), "-10.00 -  -8.00");
}

TEST_F(PrintedLegend, NumbersWithAnExponentAreCutAtTheEndOfTheirRow)
{
    record_of_print.maxi = record_of_print.maximal = 1000000;
    paper.DrawColoredLegend(record_of_print, 1000, 2000, false);
    // Nine letters to a number; 20 letters fit into 2000 twips.
    EXPECT_EQ(texts().front(), " 9.00E+05 -  1.00E+0");
}

TEST_F(PrintedLegend, TheTextsOfTheTenRowsBeginAtAWholePixel)
{
    page = Recorder::printer(16, 16);
    paper.PrinterObj = page.get();
    paper.DrawColoredLegend(record_of_print, 0, 0, false);
    // 450 / 16 = 28.125
    EXPECT_EQ(record().at(2), R"(Text " 9.000 - 10.000" 28 3 0 "Arial" 8)");
}

TEST_F(PrintedLegend, ThreeBandsStandWithAnEmptyRowBetween)
{
    paper.DrawSigmaLegend(record_of_print, 1000, 2000, 0.5, false);
    // Eight letters of 10 pixels, 40 to the left of them and 5 behind them; the sign is 70 pixels high.
    EXPECT_EQ(record(), (Lines{
                            "ScaleMode 1",
                            "ScaleMode 3",
                            R"(Text ">    0.5" 140 404.8 0 "Arial" 8)",
                            R"(Text "s" 225 382.5 0 "Symbol" 14)",
                            "Polygon [100,400,151,400,151,424,100,424] 201 0 0 1 0",
                            R"(Text "+-   0.5" 140 452.8 0 "Arial" 8)",
                            R"(Text "s" 225 430.5 0 "Symbol" 14)",
                            "Polygon [100,448,151,448,151,472,100,472] 202 0 0 1 0",
                            R"(Text "< -  0.5" 140 500.8 0 "Arial" 8)",
                            R"(Text "s" 225 478.5 0 "Symbol" 14)",
                            "Polygon [100,496,151,496,151,520,100,520] 203 0 0 1 0",
                            "ScaleMode 1",
                        }));
}

TEST_F(PrintedLegend, InTheirFrameTheBandsStandFurtherInThanIntervals)
{
    paper.DrawSigmaLegend(record_of_print, 1000, 2000, 0.5, true);
    auto const lines = record();
    ASSERT_EQ(lines.size(), 21u);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 9), legend_frame);
    EXPECT_EQ(lines[11], R"(Text ">    0.5" 161 504.8 0 "Arial" 8)");
    EXPECT_EQ(lines[13], "Polygon [121,500,172,500,172,524,121,524] 201 0 0 1 0");
}

TEST_F(PrintedLegend, TheTextsOfTheBandsBeginBetweenPixelsToo)
{
    page = Recorder::printer(15, 15);
    paper.PrinterObj = page.get();
    paper.DrawSigmaLegend(record_of_print, 0, 0, 0.5, false);
    // 400 / 15
    EXPECT_EQ(record().at(2), R"(Text ">    0.5" 26.6666666667 3.2 0 "Arial" 8)");
}

TEST_F(PrintedLegend, ARangeThatNeedsAnExponentIsShownWithoutOne)
{
    paper.DrawSigmaLegend(record_of_print, 1000, 2000, 0.00001, false);
    // Two decimals, cut.
    EXPECT_EQ(texts().front(), ">   0.00");
}

TEST_F(PrintedLegend, ADeviceWithoutResolutionFails)
{
    page = Recorder::printer(0, 5);
    paper.PrinterObj = page.get();
    EXPECT_EQ(failure_of([&] { paper.DrawColoredLegend(record_of_print, 1000, 2000, false); }),
              FailureKind::DivisionByZero);
    EXPECT_EQ(failure_of([&] { paper.DrawSigmaLegend(record_of_print, 1000, 2000, 1, false); }),
              FailureKind::DivisionByZero);
}

} // namespace zendara::test
