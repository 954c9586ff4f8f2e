#include "dialog_fixture.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"

namespace zendara::test
{
namespace
{

struct SurfaceDialog : testing::Test, Opened<frmPlotOpt3d> {
    void open(std::int16_t al = 40, std::int16_t the = 35)
    {
        dialog.SetValues(*record, 5, 5, al, the, 40, 1, QBColor(15));
    }
};

struct SigmaSurfaceDialog : testing::Test, Opened<frmPlotOpt3ds> {
    void open() { dialog.SetValues(*record, 5, 5, 0.5, 40, 35, 40, QBColor(15)); }
};

struct BarDialog : testing::Test, Opened<frmPlotOpt2DB> {
    void open(std::int16_t al = 40, std::int16_t the = 35) { dialog.SetValues(*record, 5, 5, al, the, 10); }
};

TEST_F(SurfaceDialog, OpensWithThePreviewOfItsAngles)
{
    open(40, 35);
    auto const preview = [&] {
        auto records = object_cast<Recorder>(dialog.find_child("Plot", {}))->take_record();
        return text_of(only(records, "Polygon")).front();
    };
    std::string const shown = preview();
    type("talph", "41");
    type("talph", "40");
    EXPECT_NE(shown, preview()) << "41 comes first";
    type("talph", "40");
    EXPECT_EQ(shown, preview());
}

TEST_F(SurfaceDialog, AnInclinationAbove90Becomes90WhileItIsTyped)
{
    open();
    EXPECT_EQ(type("tthet", "9"), "9");
    EXPECT_EQ(type("tthet", "95"), "90");
    EXPECT_EQ(dialog.GetThet(), 90);
}

TEST_F(SurfaceDialog, AnInclinationOf400IsRefusedAndTheOpeningAngleReturns)
{
    open(40, 35);
    type("tthet", "60");
    EXPECT_EQ(type("tthet", "400"), "35");
    EXPECT_EQ(dialog.GetThet(), 35);
    EXPECT_EQ(type("tthet", "361"), "35");
    EXPECT_EQ(type("tthet", "360"), "90");
    EXPECT_EQ(type("tthet", "-1"), "35");
    EXPECT_EQ(type("tthet", "3.5"), "35");
    EXPECT_EQ(type("tthet", "x"), "35");
}

TEST_F(SurfaceDialog, AnEmptyAngleCountsAs0)
{
    open();
    EXPECT_EQ(type("tthet", ""), "");
    EXPECT_EQ(dialog.GetThet(), 0);
}

TEST_F(SurfaceDialog, ARotationRunsTo359)
{
    open(40, 35);
    EXPECT_EQ(type("talph", "359"), "359");
    EXPECT_EQ(dialog.GetAlp(), 359);
    EXPECT_EQ(type("talph", "360"), "40") << "from 360 on it is refused";
}

TEST_F(SurfaceDialog, EachAcceptedAngleDrawsThePreviewOnce)
{
    open();
    drawn_previews();
    type("talph", "41");
    EXPECT_EQ(drawn_previews(), 1u);
    type("tthet", "95");
    EXPECT_EQ(drawn_previews(), 1u) << "for the 90 that replaces it";
    type("tresx", "7");
    EXPECT_EQ(drawn_previews(), 0u);
}

TEST_F(SurfaceDialog, TheScaleIsAWholeNumberAndEmptyMeans0)
{
    open();
    EXPECT_EQ(type("tscale", "12"), "12");
    EXPECT_EQ(type("tscale", "1.5"), "40");
    EXPECT_EQ(dialog.GetPlotSccale(), 40);
    type("tscale", "");
    EXPECT_EQ(dialog.GetPlotSccale(), 0);
    EXPECT_EQ(ok(), "Scale Factor can not be empty\n");
    type("tscale", "0");
    EXPECT_EQ(ok(), "Scale Factor not valid\n");
    type("tscale", "1");
    EXPECT_EQ(ok(), "");
}

TEST_F(SurfaceDialog, AllThreeChecksHaveToPass)
{
    open();
    type("tresx", "");
    type("tresy", "51");
    EXPECT_EQ(ok(), "X Resolution can not be empty\nY Resolution not valid\n");
    EXPECT_FALSE(dialog.Redraw());
}

TEST_F(SurfaceDialog, ThePlotTypeFollowsTheIndexOfTheButton)
{
    open();
    EXPECT_TRUE(child<OptionButton>("optPlot", 0).Value()) << "plot type 1";
    std::vector<int> types;
    for (int i = 0; i < 3; ++i) {
        child<OptionButton>("optPlot", i).Value(true);
        types.push_back(dialog.GetPlotType());
    }
    EXPECT_EQ(types, (std::vector<int>{1, 3, 2}));
    dialog.SetValues(*record, 5, 5, 40, 35, 40, 3, QBColor(15));
    EXPECT_TRUE(child<OptionButton>("optPlot", 1).Value());
}

TEST_F(SurfaceDialog, APlotTypeWithoutAButtonComesBackAsItWas)
{
    dialog.SetValues(*record, 5, 5, 40, 35, 40, 9, QBColor(15));
    EXPECT_EQ(dialog.GetPlotType(), 9);
    child<OptionButton>("optPlot", 2).Value(true);
    EXPECT_EQ(dialog.GetPlotType(), 2);
}

TEST_F(SigmaSurfaceDialog, OkDoesNotAskForTheSigmaRange)
{
    open();
    type("SSigma", "");
    EXPECT_EQ(ok(), "");
    EXPECT_TRUE(dialog.Redraw());
    EXPECT_EQ(dialog.GetSigRange(), 0);
}

TEST_F(SigmaSurfaceDialog, TheSigmaRangeRefusesLettersWhileTheyAreTyped)
{
    open();
    EXPECT_EQ(type("SSigma", "2000"), "2000");
    EXPECT_EQ(type("SSigma", "2000x"), "0.5");
}

TEST_F(BarDialog, TheRotationEndsAt90)
{
    open();
    EXPECT_EQ(type("talph", "200"), "90");
    EXPECT_EQ(dialog.GetAlp(), 90);
}

TEST_F(BarDialog, AnAngleThatIsRefusedAtOpeningStaysWhileNothingElseIsTyped)
{
    open(400, 35);
    EXPECT_EQ(text("talph"), "400");
    EXPECT_EQ(dialog.GetAlp(), 400);
    EXPECT_EQ(type("talph", "10"), "10");
    EXPECT_EQ(type("talph", "x"), "400");
    EXPECT_EQ(dialog.GetAlp(), 400);
}

TEST_F(BarDialog, TheScaleIsARealNumberAndEmptyMeans1)
{
    open();
    EXPECT_EQ(type("tscale", "0.25"), "0.25");
    EXPECT_EQ(dialog.GetPlotSccale(), 0.25);
    type("tscale", "");
    EXPECT_EQ(dialog.GetPlotSccale(), 1);
}

TEST_F(BarDialog, TheLimitsAreHalfThePanel)
{
    open();
    type("tresx", "151"); // 300 / 2 + 1
    type("tresy", "101");
    type("tscale", "1000");
    EXPECT_EQ(ok(), "Bar width not valid\nBar depth not valid\nScale factor not valid\n");
    type("tresx", "150.9");
    type("tresy", "100.9");
    type("tscale", "0.0000002");
    EXPECT_EQ(ok(), "");
}

TEST_F(BarDialog, TheColorBoxIsHidden)
{
    EXPECT_FALSE(child<CheckBox>("whiteback").Visible());
}

} // namespace
} // namespace zendara::test
