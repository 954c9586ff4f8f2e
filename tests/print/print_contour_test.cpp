#include "page_fixture.hpp"

namespace zendara::test
{

namespace
{

constexpr std::int16_t paper_run = 1;
constexpr std::int16_t sites = 1, low_quality = 0, three_colors = 1;

/// The figure of the flat panel in the column of contour plots, which begins at (4785, 4445); the figure is 360 lower
/// than its interval. Its middle is pixel (527, 1046).
Lines const outline = {
    "ScaleMode 1",
    "ScaleMode 3",
    "Polygon [564,1028,490,1028,490,1064,564,1064] 16777215 0 0 2 0",
    "Polygon [535,1064,527,1056,519,1064,527,1072] 128 0 0 2 128",
    "ScaleMode 1",
};

Lines const first_reset = {"ScaleMode 1"};
Lines const last_reset = {"ScaleMode 1"};

/// A page with letters of a tenth of the usual width, so that a whole interval fits.
class NarrowLetters
{
public:
    NarrowLetters() { page_.start_scale_mode(scale_twips); }

    Surface* page() const { return &page_; }

    Lines texts() const
    {
        Lines found;
        for (auto const& record : only(page_.take_record(), "Text"))
            found.push_back(item<std::string>(record, 0));
        return found;
    }

private:
    class Page : public Recorder
    {
    public:
        double TextWidth(std::string_view text) const override { return Recorder::TextWidth(text) / 10; }
    };
    mutable Page page_;
};

struct PrintedContour : PrintedPage {
    std::unique_ptr<panel> record_ = small_panel();
    std::unique_ptr<panel> other_ = small_panel();
    panel& record_of_print = *record_;
    panel& other = *other_;

    void print(double distance, bool is_in_unit, std::string const& unit, bool with_frame)
    {
        paper.Print_Contour(record_of_print, left, top, width, height, distance, is_in_unit, unit, sites, low_quality,
                            three_colors, "Cap", with_frame);
    }

    /// In twips: 5000 - 1215 = 3785 are left, of which 90% are taken.
    Lines lines_at(double percent)
    {
        return drawn(scale_twips, [&](Surface& surface) {
            other.D2Contour(surface, percent, sites, low_quality, three_colors, 1189.25, 2496.75, 3406.5, 3406.5,
                            paper_run);
        });
    }

    /// The distance that is printed as `percent`.
    void expect_percent(double distance, double percent)
    {
        other.range = record_of_print.range;
        other.mean = record_of_print.mean;
        other.maxi = record_of_print.maxi;
        other.mini = record_of_print.mini;
        print(distance, true, "", false);
        auto const lines = record();
        auto const expected = join({lines_at(percent), last_reset});
        ASSERT_GT(lines.size(), expected.size());
        EXPECT_EQ(Lines(lines.end() - static_cast<std::ptrdiff_t>(expected.size()), lines.end()), expected);
    }
};

} // namespace

TEST_F(PrintedContour, StandsBesideItsIntervalAndItsFigureInTwips)
{
    print(7, false, "nm", true);
    // 13 letters; 12 fit into 1200 twips.
    EXPECT_EQ(record(), join({first_reset,
                              captioned_frame,
                              outline,
                              {R"(Text "Interval: 7 " 4785 4445 0 "Arial" 8)"},
                              lines_at(7),
                              last_reset}));
}

TEST_F(PrintedContour, WithoutAFrameThereIsNoCaptionEither)
{
    print(7, false, "nm", false);
    EXPECT_EQ(record(),
              join({first_reset, outline, {R"(Text "Interval: 7 " 4785 4445 0 "Arial" 8)"}, lines_at(7), last_reset}));
}

TEST_F(PrintedContour, AnIntervalInTheMeasuringUnitIsTakenOfTheMean)
{
    record_of_print.mean = -2.5;
    expect_percent(0.5, 20);
}

TEST_F(PrintedContour, WithoutAMeanItIsTakenOfTheRangeOfTheScale)
{
    record_of_print.mean = 0;
    record_of_print.range = 4;
    expect_percent(0.5, 12.5);
}

TEST_F(PrintedContour, WithoutMeanAndRangeItIsTakenOfTheLargestValue)
{
    record_of_print.mean = 0;
    record_of_print.range = 0;
    record_of_print.maxi = 5;
    record_of_print.mini = -8;
    expect_percent(0.5, 10);
}

TEST_F(PrintedContour, WithoutALargestValueItIsTakenOfTheSmallestOne)
{
    record_of_print.mean = 0;
    record_of_print.range = 0;
    record_of_print.maxi = 0;
    record_of_print.mini = -8;
    expect_percent(0.5, 6.25);
}

TEST_F(PrintedContour, WithNothingToTakeItOfItIsOnePercent)
{
    record_of_print.mean = 0;
    record_of_print.range = 0;
    record_of_print.maxi = 0;
    record_of_print.mini = 0;
    expect_percent(0.5, 1);
}

TEST_F(PrintedContour, ASmallOneBeginsAtTheLeftEdgeOfItsBox)
{
    std::string info(40, 'i');
    paper.Print_Contour_THN(record_of_print, left, top, width, height, 7, false, sites, low_quality, three_colors,
                            "Cap", info, true);
    // Three lines of 200 twips are left out of the height of 4000; 90% of the rest are 3060.
    std::string const fits(30, 'i');
    EXPECT_EQ(info, fits);
    auto const plot = drawn(scale_twips, [&](Surface& surface) {
        other.D2Contour(surface, 7, sites, low_quality, three_colors, 1000, 2300, 3060, 3060, paper_run);
    });
    EXPECT_EQ(record(), join({first_reset,
                              plot,
                              {"ScaleMode 1", "Text \"" + fits + "\" 1000 5460 0 \"Arial\" 8"},
                              captioned_frame,
                              last_reset}));
}

TEST_F(PrintedContour, ASmallOneWithoutAFrameTakesTheWholeBoxAndNoText)
{
    std::string info = "info";
    paper.Print_Contour_THN(record_of_print, left, top, width, height, 7, false, sites, low_quality, three_colors,
                            "Cap", info, false);
    auto const plot = drawn(scale_twips, [&](Surface& surface) {
        other.D2Contour(surface, 7, sites, low_quality, three_colors, 1000, 2000, 4000, 4000, paper_run);
    });
    EXPECT_EQ(record(), join({first_reset, plot, {"ScaleMode 1", "ScaleMode 1"}}));
    EXPECT_EQ(info, "info");
}

TEST_F(PrintedContour, ASmallOneInANarrowBoxTakesNineTenthsOfTheWidth)
{
    std::string info;
    record_of_print.mean = other.mean = 2.5;
    paper.Print_Contour_THN(record_of_print, left, top, 3000, height, 0.5, true, sites, low_quality, three_colors, "",
                            info, true);
    auto const lines = record();
    auto const plot = drawn(scale_twips, [&](Surface& surface) {
        other.D2Contour(surface, 20, sites, low_quality, three_colors, 1000, 2300, 2700, 2700, paper_run);
    });
    ASSERT_GT(lines.size(), plot.size());
    EXPECT_EQ(Lines(lines.begin() + 1, lines.begin() + 1 + static_cast<std::ptrdiff_t>(plot.size())), plot);
}

TEST_F(PrintedContour, TheUnitBehindTheIntervalFollowsTheFlag)
{
    NarrowLetters const narrow;
    paper.PrinterObj = narrow.page();
    print(0.25, false, "nm", false);
    print(0.25, true, "nm", false);
    EXPECT_EQ(narrow.texts(), (Lines{"Interval: 0.25 %", "Interval: 0.25 nm"}));
}

TEST_F(PrintedContour, TheLegendTakesTheFlagTheOtherWayRound)
{
    NarrowLetters const narrow;
    paper.PrinterObj = narrow.page();
    paper.Print_Contour_Legend(record_of_print, 100, 200, 0.25, false, "nm");
    paper.Print_Contour_Legend(record_of_print, 100, 200, 0.25, true, "nm");
    EXPECT_EQ(narrow.texts(), (Lines{"Interval: 0.25 nm", "Interval: 0.25 %"}));
}

TEST_F(PrintedContour, TheLegendIsOneLineCutToItsWidth)
{
    paper.Print_Contour_Legend(record_of_print, 100, 200, 7, true, "nm");
    EXPECT_EQ(record(), (Lines{"ScaleMode 1", R"(Text "Interval: 7 " 100 200 0 "Arial" 8)"}));
}

} // namespace zendara::test
