#include "panels.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/failure.hpp"

#include <gtest/gtest.h>

#include <array>

namespace zendara::test
{

namespace
{

struct PlainWidget : Widget {
    Interface const& host_interface() const override { throw Failure(FailureKind::NoSuchMember, "none"); }
};

struct TenWidgets : WidgetArray {
    std::array<PlainWidget, 10> widgets;

    Widget& operator()(int index) override { return widgets.at(static_cast<std::size_t>(index - 1)); }
    int Count() const override { return 10; }
    void load_next() override { FAIL() << "a legend has ten rows"; }
    Interface const& host_interface() const override { throw Failure(FailureKind::NoSuchMember, "none"); }
};

struct Legend {
    TenWidgets swatches, labels;

    explicit Legend(panel const& record) { record.scale_colored(swatches, labels); }
    std::string const& caption(int row) { return labels(row).caption(); }
    std::string const& tool_tip(int row) { return labels(row).ToolTipText(); }
};

std::unique_ptr<panel> panel_between(double lowest, double highest)
{
    return make_panel(300, 200, {{0, 0, lowest}, {10, 10, highest}});
}

} // namespace

TEST(scale_colored, ListsTheIntervalsFromTheTopDownWithTheirColours)
{
    Legend legend(*panel_between(0, 10));
    EXPECT_EQ(legend.caption(1), " 9.000 - 10.000"); // six characters less " 10" leave 3 decimals
    EXPECT_EQ(legend.swatches(1).BackColor(), QBColor(4));
    EXPECT_EQ(legend.swatches(10).BackColor(), QBColor(5));
}

TEST(scale_colored, AFlatPanelShowsItsValueInBothPlacesOfEveryRow)
{
    Legend legend(*panel_between(2.5, 2.5));
    for (int row = 1; row <= 10; ++row)
        EXPECT_EQ(legend.caption(row), "2.5000 - 2.5000");
}

TEST(scale_colored, ANegativeLowerEndTakesOnePlaceForTheSign)
{
    Legend legend(*panel_between(-5, 5.5));
    // Width 5 less the length of " 6" (5.5 rounds to 6): 3 decimals, cut to six characters.
    EXPECT_EQ(legend.caption(10), "-5.000 - -3.950");
    EXPECT_EQ(legend.tool_tip(10), "-5.0000000 - -3.9500000");
}

TEST(scale_colored, ALargeUpperEndSwitchesToTheScientificFormWithWidth9)
{
    Legend legend(*panel_between(0, 1e6));
    EXPECT_EQ(legend.caption(1), " 9.00E+05 -  1.00E+06");
}

TEST(scale_colored, WithALimitOnOneSideTheTopAndTheBottomRowHaveOneBound)
{
    auto const record = panel_between(0, 10);
    record->setMaximalMinial(8, 0);
    Legend legend(*record);
    // From -1 to 9 in steps of 1.
    EXPECT_EQ(legend.caption(1), " 8.000 > ");
    EXPECT_EQ(legend.caption(2), " 7.000 -  8.000");
    EXPECT_EQ(legend.caption(10), " <  0.000");
    EXPECT_EQ(legend.tool_tip(1).substr(legend.tool_tip(1).size() - 3), " > ");
    EXPECT_EQ(legend.tool_tip(10).substr(0, 3), " < ");
}

TEST(scale_sigma, ShowsThreeRowsAndHidesTheOthers)
{
    auto const record = panel_between(0, 10);
    TenWidgets swatches, labels;
    record->scale_sigma(swatches, labels, 0.5);
    EXPECT_EQ(labels(1).caption(), ">   0.50");
    EXPECT_EQ(labels(3).caption(), "+-  0.50");
    EXPECT_EQ(labels(5).caption(), "< - 0.50");
    EXPECT_EQ(swatches(1).BackColor(), QBColor(4));
    EXPECT_EQ(swatches(3).BackColor(), QBColor(2));
    EXPECT_EQ(swatches(5).BackColor(), QBColor(1));
    for (int row = 1; row <= 10; ++row) {
        bool const is_shown = row == 1 || row == 3 || row == 5;
        EXPECT_EQ(labels(row).Visible(), is_shown) << row;
        EXPECT_EQ(swatches(row).Visible(), is_shown) << row;
    }
}

} // namespace zendara::test
