#include "page_fixture.hpp"
#include "zendara/print/paper_text.hpp"

#include <limits>

namespace zendara::test
{

namespace
{

/// Blocks at (1000, 2000): labels at 1120, values at 2080.
struct PrintedBlock : PrintedPage {
    panel record_of_print;

    PrintedBlock()
    {
        auto& r = record_of_print;
        r.SizeX = 300;
        r.SizeY = 200.125;
        r.TestSizeX = 5;
        r.TestSizeY = 0.001;
        r.mean = 500.25;
        r.maxi = 550.5;
        r.mini = 449.75;
        r.StdDev = 12.345;
        r.range = 90; // that of the scale, under plot limits
        r.HiLo = 10.0725;
        r.Meas_unit = "nm";
        r.Operator = "An operator with a long name";
        r.FAB = "fab";
        r.equip = "info";
        r.panel = "p17";
        r.lot = "";
        r.meq = "meter";
        r.Special = "none";
    }

    /// The texts with their places, without the title.
    Lines rows()
    {
        Lines found;
        auto const texts = only(page->take_record(), "Text");
        for (std::size_t i = 1; i < texts.size(); ++i)
            found.push_back(item<std::string>(texts[i], 0) + " " +
                            std::to_string(static_cast<int>(item<double>(texts[i], 1))) + " " +
                            std::to_string(static_cast<int>(item<double>(texts[i], 2))));
        return found;
    }

    std::string title_and_lower_edge()
    {
        auto const records = page->take_record();
        auto const bottom = only(records, "Line").at(2);
        return item<std::string>(only(records, "Text").at(0), 0) + "|" +
               std::to_string(static_cast<int>(item<double>(bottom, 2) - item<double>(bottom, 0))) + " " +
               std::to_string(static_cast<int>(item<double>(bottom, 1) - 2200));
    }
};

} // namespace

TEST_F(PrintedBlock, EachBlockHasItsTitleAndHeight)
{
    paper.DrawWaferRemarks(record_of_print, 1000, 2000);
    EXPECT_EQ(title_and_lower_edge(), "panel Remarks |2775 1875");
    paper.DrawPanelSize(record_of_print, 1000, 2000);
    EXPECT_EQ(title_and_lower_edge(), "Size |2775 1630");
    paper.DrawPanelStatistics(record_of_print, 1000, 2000);
    EXPECT_EQ(title_and_lower_edge(), "Statistics |2775 2115");
}

TEST_F(PrintedBlock, RemarksAreCutTo15LettersAndThenToTheirWidth)
{
    paper.DrawWaferRemarks(record_of_print, 1000, 2000);
    // Nine letters fit into 975 twips; an empty remark is written too.
    EXPECT_EQ(rows(),
              (Lines{"Operator  1120 2360", "An operat 2080 2360", "FAB Name: 1120 2600", "fab 2080 2600",
                     "Equip Inf 1120 2840", "info 2080 2840", "panel ID: 1120 3080", "p17 2080 3080", "Lot: 1120 3320",
                     " 2080 3320", "Meas. Equ 1120 3560", "meter 2080 3560", "Special: 1120 3800", "none 2080 3800"}));
    EXPECT_EQ(record_of_print.Operator, "An operator with a long name");
}

TEST(First15Letters, ARemarkOf15LettersIsWholeAndALongerOneIsCut)
{
    EXPECT_EQ(first_15_letters("exactly 15 long"), "exactly 15 long");
    EXPECT_EQ(first_15_letters("exactly 15 long!"), "exactly 15 long");
    EXPECT_EQ(first_15_letters("\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0\u00B0"
                               "\u00B0\u00B0")
                  .size(),
              30u);
}

TEST_F(PrintedBlock, SizesHaveTwoDecimalsAndMoreWhereTheyWouldReadAsZero)
{
    paper.DrawPanelSize(record_of_print, 1000, 2000);
    EXPECT_EQ(rows(), (Lines{"Panel Wid 1120 2360", "300.00 mm 2080 2360", "Panel Hei 1120 2600", "200.13 mm 2080 2600",
                             "Test Widt 1120 2840", "05.00 mm 2080 2840", "Test Heig 1120 3080", "00.001 mm 2080 3080",
                             "No. Sites 1120 3400", "0 2080 3400"}));
}

TEST_F(PrintedBlock, ASizeOfZeroIsTheMask)
{
    record_of_print.SizeX = 0;
    paper.DrawPanelSize(record_of_print, 1000, 2000);
    EXPECT_EQ(rows().at(1), "00.00 mm 2080 2360");
}

TEST(NumbersThatMustNotReadAsZero, GetAsManyDecimalsAsTheyNeed)
{
    EXPECT_EQ(format_not_zero(0, "0.00"), "0.00");
    EXPECT_EQ(format_not_zero(1.5, "0.00"), "1.50");
    EXPECT_EQ(format_not_zero(-0.00004, "0.00"), "-0.00004");
    EXPECT_EQ(format_not_zero(0.005, "0.00"), "0.01");
    EXPECT_EQ(format_not_zero(1e-300, "0.00").size(), 302u);
}

TEST(NumbersThatMustNotReadAsZero, AreShownAlsoWhenTheyAreNoNumbers)
{
    EXPECT_FALSE(format_not_zero(std::numeric_limits<double>::infinity(), "0.00").empty());
    EXPECT_FALSE(format_not_zero(std::numeric_limits<double>::quiet_NaN(), "0.00").empty());
}

TEST_F(PrintedBlock, StatisticsHaveAsManyDecimalsAsTheirFieldsTake)
{
    paper.DrawPanelStatistics(record_of_print, 1000, 2000);
    // The smallest value, 449.75, leaves five decimals to the first three. The spread of the data, 100.75, gets the
    // six decimals of the scale's range 90 and so loses its first digit.
    EXPECT_EQ(rows(), (Lines{"Mean: 1120 2360", "500.25000 2080 2360", "Maximum: 1120 2600", "550.50000 2080 2600",
                             "Minimum: 1120 2840", "449.75000 2080 2840", "Std. Dev: 1120 3080", "12.345000 2080 3080",
                             " 2.4677 % 2080 3320", "Range: 1120 3560", "00.750000 2080 3560", "Hi/Lo Var 1120 3800",
                             "10.0725 % 2080 3800", "Unit: 1120 4040", "nm 2080 4040"}));
}

TEST_F(PrintedBlock, WithoutAPositiveMeanThereIsNoPercentage)
{
    for (double const mean : {0.0, -1.0}) {
        record_of_print.mean = mean;
        paper.DrawPanelStatistics(record_of_print, 1000, 2000);
        auto const found = rows();
        EXPECT_EQ(found.size(), 14u);
        EXPECT_EQ(found[8], "Range: 1120 3560");
    }
}

TEST_F(PrintedBlock, ExponentsOfTheStandardDeviationServeItsPercentageToo)
{
    record_of_print.StdDev = 0.00005;
    paper.DrawPanelStatistics(record_of_print, 1000, 2000);
    auto const found = rows();
    EXPECT_EQ(found[7], " 5.00E-05 2080 3080");
    // 0.00005 / 500.25 * 100 = 9.995E-06 in a field of seven: the first letter goes.
    EXPECT_EQ(found[8], ".00E-05 % 2080 3320");
}

TEST_F(PrintedBlock, AUnitIsCutTo15Letters)
{
    record_of_print.Meas_unit = "micrometres per hour";
    paper.DrawPanelStatistics(record_of_print, 1000, 2000);
    EXPECT_EQ(rows().back(), "micrometr 2080 4040");
    EXPECT_EQ(record_of_print.Meas_unit, "micrometres per hour");
}

} // namespace zendara::test
