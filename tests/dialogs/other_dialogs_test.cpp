#include "dialog_fixture.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_hist.hpp"
#include "zendara/dialogs/frm_plot_opt_2dc.hpp"

namespace zendara::test
{
namespace
{

struct ContourDialog : testing::Test, Opened<frmPlotOpt2DC> {
    void open() { dialog.SetValues(*record, 1, 2, 0, 5, QBColor(15), false); }
};

struct HistogramDialog : testing::Test, Opened<frmPlotHist> {
    void open() { dialog.SetValues(*record, 10, QBColor(15)); }
};

TEST_F(ContourDialog, OpensWithTheSettingsOfTheControl)
{
    open();
    EXPECT_EQ(text("tdist"), "5");
    EXPECT_TRUE(child<OptionButton>("OptExcon", 1).Value());
    EXPECT_TRUE(child<OptionButton>("OptQuali", 2).Value());
    EXPECT_TRUE(child<OptionButton>("Optcol", 0).Value());
    EXPECT_EQ(dialog.GetMarkeSites(), 1);
    EXPECT_EQ(dialog.GetReso(), 2);
    EXPECT_EQ(dialog.GetShowColor(), 0);
}

TEST_F(ContourDialog, TheButtonsAnswerByTheirIndices)
{
    open();
    child<OptionButton>("OptExcon", 3).Value(true);
    child<OptionButton>("OptQuali", 1).Value(true);
    child<OptionButton>("Optcol", 2).Value(true);
    EXPECT_EQ(dialog.GetMarkeSites(), 3);
    EXPECT_EQ(dialog.GetReso(), 1);
    EXPECT_EQ(dialog.GetShowColor(), 2);
}

TEST_F(ContourDialog, EachButtonIsNamedAfterWhatItDoes)
{
    EXPECT_EQ(child<OptionButton>("OptExcon", 1).caption(), "exact");
    EXPECT_EQ(child<OptionButton>("OptExcon", 2).caption(), "converted");
    EXPECT_EQ(child<OptionButton>("OptExcon", 3).caption(), "none");
    EXPECT_EQ(child<OptionButton>("OptQuali", 0).caption(), "Low");
    EXPECT_EQ(child<OptionButton>("OptQuali", 1).caption(), "High");
    EXPECT_EQ(child<OptionButton>("OptQuali", 2).caption(), "Auto");
}

TEST_F(ContourDialog, AButtonThatIsDownMeansMeasurementUnits)
{
    open();
    BooleanWord is_in_units = true;
    EXPECT_EQ(dialog.GetDist(is_in_units), 5);
    EXPECT_FALSE(is_in_units);
    child<CheckBox>("com2DC").Value(1);
    dialog.GetDist(is_in_units);
    EXPECT_TRUE(is_in_units);
}

TEST_F(ContourDialog, AnIntervalOfExactly1000IsNotValid)
{
    open();
    type("tdist", "1000");
    EXPECT_EQ(ok(), "Interval not valid\n");
    type("tdist", "0.009");
    EXPECT_EQ(ok(), "Interval not valid\n");
    type("tdist", "999.99");
    EXPECT_EQ(ok(), "");
}

TEST_F(ContourDialog, ANumberWithoutAButtonComesBackAsItWas)
{
    dialog.SetValues(*record, 7, 2, 0, 5, QBColor(15), false);
    EXPECT_EQ(dialog.GetMarkeSites(), 7);
    child<OptionButton>("OptExcon", 2).Value(true);
    EXPECT_EQ(dialog.GetMarkeSites(), 2);
}

TEST_F(HistogramDialog, AnOkThatChangesTheResolutionAsksForARedraw)
{
    open();
    type("tresx", "12");
    EXPECT_EQ(dialog.GetResolution(), 10) << "stored by OK alone";
    EXPECT_EQ(ok(), "");
    EXPECT_TRUE(dialog.Redraw());
    EXPECT_EQ(dialog.GetResolution(), 12);
    EXPECT_FALSE(dialog.Visible());
}

TEST_F(HistogramDialog, AChangeOfTheColorAloneIsLost)
{
    open();
    check(false);
    EXPECT_EQ(ok(), "");
    EXPECT_FALSE(dialog.Redraw());
    EXPECT_FALSE(dialog.Visible());
}

TEST_F(HistogramDialog, ARefusedOkTakesARedrawBack)
{
    open();
    type("tresx", "12");
    ok();
    ASSERT_TRUE(dialog.Redraw());
    type("tresx", "1");
    EXPECT_EQ(ok(), "Resolution not valid\n");
    EXPECT_FALSE(dialog.Redraw());
}

TEST_F(HistogramDialog, OnlyWholeNumbersMayStand)
{
    open();
    EXPECT_EQ(type("tresx", "1.5"), "10");
    EXPECT_EQ(type("tresx", "12a"), "10");
    EXPECT_EQ(type("tresx", ""), "");
    EXPECT_EQ(ok(), "Resolution can not be empty\n");
}

TEST(AboutBox, NamesTheKindOfControlInItsTitle)
{
    HeadlessPlatform platform(Pictures::Recorded);
    frmAbout box(platform);
    std::vector<std::string> titles;
    for (std::int16_t kind = 1; kind <= 8; ++kind) {
        box.SetTitle(kind);
        titles.push_back(box.caption());
    }
    std::string const start = "Zendara-View.OCX Type: ";
    EXPECT_EQ(titles, (std::vector<std::string>{start + "2D Plot", start + "3D Plot", start + "2D Sigma Range Plot",
                                                start + "3D Sigma Range Plot", start + "2D Contur Plot",
                                                start + "Line Scan", start + "Histogram", start + "2D Number Plot"}));
}

TEST(AboutBox, ShowsTheNameAndTheFirstTwoNumbersOfTheVersion)
{
    struct OldPlatform : HeadlessPlatform {
        OldPlatform() : HeadlessPlatform(Pictures::Recorded) {}
        std::string version() const override { return "12.34.56"; }
    } platform;
    frmAbout box(platform);
    EXPECT_EQ(box.lblTitle.caption(), "Zendara-View.OCX ActiveX Control");
    EXPECT_EQ(box.lblVersion.caption(), "Version 12.34");
}

TEST(AboutBox, ClosesByItsButton)
{
    HeadlessPlatform platform(Pictures::Recorded);
    frmAbout box(platform);
    box.Visible(true);
    box.cmdOK.raise("Click");
    EXPECT_FALSE(box.Visible());
}

} // namespace
} // namespace zendara::test
