#include "page_fixture.hpp"
#include "zendara/support/process_state.hpp"

namespace zendara::test
{

namespace
{

constexpr double bins = 4;
constexpr double carried = 6000;

struct PrintedHistogram : PrintedPage {
    std::unique_ptr<panel> record_ = small_panel();
    std::unique_ptr<panel> other_ = small_panel();
    panel& record_of_print = *record_;
    panel& other = *other_;

    /// The histogram in that rectangle of twips.
    Lines bars(std::int16_t plot_type, double x, double y, double bar_width, double bar_height)
    {
        return drawn(scale_pixels, [&](Surface& surface) {
            double x0 = x, y0 = y, plot_left = x, plot_top = y;
            std::int16_t tick = 60, for_paper = 1;
            other.Statistic(plot_type, surface, surface, x0, y0, bar_width, bar_height, bins, tick, plot_left, plot_top,
                            for_paper);
        });
    }
};

Lines const back_to_twips = {"ScaleMode 1", "ScaleMode 1"};

} // namespace

TEST_F(PrintedHistogram, StandsInABlueBoxWithRoomBelow)
{
    paper.Print_Histo(1, record_of_print, left, top, width, height, bins, carried, "Cap", true);
    // 8% of the width are 400; from 600 below the top on 2.2 * 600 less than the height.
    EXPECT_EQ(record(), join({captioned_frame,
                              {"ScaleMode 1", "Box 1400 2600 5600 4680 8388608 1 0 0 16777215", "ScaleMode 3"},
                              bars(1, 1400, 2600, 4200, 2680),
                              back_to_twips}));
}

TEST_F(PrintedHistogram, WithoutAFrameThereIsNoCaptionEither)
{
    paper.Print_Histo(3, record_of_print, left, top, width, height, bins, carried, "Cap", false);
    EXPECT_EQ(record(), join({{"ScaleMode 1", "Box 1400 2600 5600 4680 8388608 1 0 0 16777215", "ScaleMode 3"},
                              bars(3, 1400, 2600, 4200, 2680),
                              back_to_twips}));
}

TEST_F(PrintedHistogram, ASmallOneTakesTheWholeHeightAndHasNoFrame)
{
    paper.Print_Histo_THN(2, record_of_print, left, top, width, height, bins, carried, "Cap");
    EXPECT_EQ(record(), join({{"ScaleMode 1", "Box 1400 2000 5600 6000 8388608 1 0 0 16777215", "ScaleMode 3"},
                              bars(2, 1400, 2000, 4200, 4000),
                              back_to_twips}));
}

TEST_F(PrintedHistogram, APaddingBeyond16BitsIsLeftOutAndTheRestGoesOn)
{
    constexpr double wide = 410000; // 8% are 32800
    paper.Print_Histo_THN(1, record_of_print, left, top, wide, height, bins, carried, "");
    auto const lines = record();
    ASSERT_GT(lines.size(), 2u);
    EXPECT_EQ(lines[1], "Box 1000 2000 411000 6000 8388608 1 0 0 16777215");
    EXPECT_EQ(lines.back(), "ScaleMode 1");
}

TEST_F(PrintedHistogram, AFrameThatFailsLeavesTheHistogram)
{
    class Unmeasured : public Recorder
    {
    public:
        double TextWidth(std::string_view) const override { fail(FailureKind::Overflow, "no measure"); }
    } unmeasured;
    paper.PrinterObj = &unmeasured;
    paper.Print_Histo(1, record_of_print, left, top, width, height, bins, carried, "Cap", true);
    auto const records = unmeasured.take_record();
    for (auto const& text : only(records, "Text"))
        EXPECT_NE(item<std::string>(text, 0), "Cap");
    EXPECT_FALSE(only(records, "Box").empty());
}

TEST_F(PrintedHistogram, WithoutAPageNothingFails)
{
    paper.PrinterObj = nullptr;
    EXPECT_NO_THROW(paper.Print_Histo(1, record_of_print, left, top, width, height, bins, carried, "Cap", true));
    EXPECT_NO_THROW(paper.Print_Histo_THN(1, record_of_print, left, top, width, height, bins, carried, "Cap"));
}

} // namespace zendara::test
