#include "dialog_fixture.hpp"
#include "zendara/dialogs/frm_plot_opt_1d.hpp"

namespace zendara::test
{
namespace
{

struct LineScanDialog : testing::Test, Opened<frmPlotOpt1D> {
    void open(std::int16_t mode = 1, double start_x = -50, double start_y = -20, double end_x = 50, double end_y = 20)
    {
        dialog.SetValues(*record, mode, 30, 10, 5, start_x, start_y, end_x, end_y, true);
    }

    TextBox& field(std::string_view name, int index) { return child(name, index); }

    /// Types into a coordinate and leaves the field. @return  whether the focus stays
    bool leave(std::string_view name, int index, std::string const& text)
    {
        field(name, index).Text(text);
        Value cancel = std::int16_t{0};
        field(name, index).raise("Validate", std::span(&cancel, 1));
        return to_double(cancel) != 0;
    }

    std::string message()
    {
        auto const messages = platform.take_messages();
        if (messages.empty())
            return "";
        EXPECT_EQ(messages.front().title, "Input Error");
        return messages.front().text;
    }

    struct Center {
        double x, y;
    };
    /// Of a point's mark, from the middle of the picture.
    Center mark(int index)
    {
        auto const& mark = child<ImageBox>("picgrid", index);
        auto const& plot = child<PictureBox>("Plot");
        return {mark.Left() + mark.Width() / 2 - plot.Left() - plot.Width() / 2,
                mark.Top() + mark.Height() / 2 - plot.Top() - plot.Height() / 2};
    }
};

TEST_F(LineScanDialog, OpensWithTheLineOfTheControl)
{
    open();
    EXPECT_EQ(field("resx", 0).Text(), "10");
    EXPECT_EQ(field("resy", 0).Text(), "5");
    EXPECT_EQ(field("resx", 1).Text(), "-50");
    EXPECT_EQ(field("resy", 2).Text(), "20");
    EXPECT_EQ(text("AngleValue"), "30");
    EXPECT_TRUE(child<OptionButton>("optline", 0).Value());
    EXPECT_TRUE(dialog.GetMarkeSites());
    EXPECT_EQ(dialog.frame.caption(), "Line Scan");
}

TEST_F(LineScanDialog, EachModeShowsItsOwnFields)
{
    open(1);
    auto const shown = [&] {
        std::string names;
        for (int i = 0; i < 3; ++i)
            names += field("resx", i).Visible() && field("resy", i).Visible() && child<ImageBox>("picgrid", i).Visible()
                         ? std::to_string(i)
                         : "";
        for (int i = 0; i < dialog.lblLine.Count(); ++i)
            names += dialog.lblLine(i).Visible() ? " l" + std::to_string(i) : "";
        return names + (child("AngleValue").Visible() ? " angle" : "");
    };
    EXPECT_EQ(shown(), "0 l0 l1 l2 l3 l4 l5 angle");
    child<OptionButton>("optline", 1).Value(true);
    EXPECT_EQ(shown(), "12 l6 l7 l8 l9 l10 l11 l12 l13");
    child<OptionButton>("optline", 0).Value(true);
    EXPECT_EQ(shown(), "0 l0 l1 l2 l3 l4 l5 angle");
}

TEST_F(LineScanDialog, TheMarksStandOnTheirPoints)
{
    record->TestSizeX = 208; // so that the picture of 212 by 152 pixels has one pixel for a millimetre
    record->TestSizeY = 148;
    record->HalfTestSizeX = 104;
    record->HalfTestSizey = 74;
    open();
    EXPECT_EQ(mark(0).x, 10);
    EXPECT_EQ(mark(0).y, -5) << "upwards on the screen";
    EXPECT_EQ(mark(1).x, -50);
    EXPECT_EQ(mark(1).y, 20);
    EXPECT_FALSE(leave("resx", 2, "70.5"));
    EXPECT_EQ(mark(2).x, 70.5);
    EXPECT_EQ(mark(2).y, -20);
}

TEST_F(LineScanDialog, TheLineOfThePictureFollowsTheAngle)
{
    open(1);
    auto& line = dynamic_cast<LineShape&>(*dialog.find_child("Picture1", {}));
    double const before = line.X2();
    type("AngleValue", "0");
    EXPECT_NE(line.X2(), before);
    EXPECT_EQ(line.X1(), line.X2()) << "0 runs upward";
}

TEST_F(LineScanDialog, ACoordinateAtTheEdgeOfTheTestedAreaIsAccepted)
{
    open();
    EXPECT_FALSE(leave("resx", 0, "150"));
    EXPECT_FALSE(leave("resy", 0, "-100"));
    EXPECT_EQ(message(), "");
    EXPECT_EQ(field("resx", 0).Text(), "150");
}

TEST_F(LineScanDialog, ACoordinateBeyondTheEdgeBecomes0AndTheFocusStays)
{
    open();
    EXPECT_TRUE(leave("resx", 1, "150.1"));
    EXPECT_EQ(message(), "TestSizeX exeded");
    EXPECT_EQ(field("resx", 1).Text(), "0");
    EXPECT_TRUE(leave("resy", 2, "-100.1"));
    EXPECT_EQ(message(), "TestSizeY exeded");
    EXPECT_EQ(field("resy", 2).Text(), "0");
}

TEST_F(LineScanDialog, AnEmptyCoordinateIsNoNumber)
{
    open();
    for (char const* const text : {"", "-", "abc", "1e1"}) {
        EXPECT_TRUE(leave("resx", 0, text)) << text;
        EXPECT_EQ(message(), "Enter a numeric experssion") << text;
        EXPECT_EQ(field("resx", 0).Text(), "0") << text;
    }
}

TEST_F(LineScanDialog, CoordinatesAreLeftAloneWhileTheyAreTyped)
{
    open();
    field("resx", 0).Text("9999x");
    EXPECT_EQ(field("resx", 0).Text(), "9999x");
    EXPECT_EQ(message(), "");
}

TEST_F(LineScanDialog, AnAngleRunsTo359)
{
    open();
    EXPECT_EQ(type("AngleValue", "359"), "359");
    EXPECT_EQ(type("AngleValue", "360"), "0");
    EXPECT_EQ(type("AngleValue", "3."), "0");
    EXPECT_EQ(type("AngleValue", "-1"), "0");
    EXPECT_EQ(type("AngleValue", ""), "");
}

TEST_F(LineScanDialog, TheResultIsWhatTheFieldsHold)
{
    open(2);
    type("AngleValue", "77");
    field("resx", 2).Text("41.5");
    std::int16_t angle = 0, mode = 0;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0, x3 = 0, y3 = 0;
    dialog.GetResult(angle, x1, y1, x2, y2, x3, y3, mode);
    EXPECT_EQ(angle, 77);
    EXPECT_EQ((std::vector<double>{x1, y1, x2, y2, x3, y3}), (std::vector<double>{10, 5, -50, -20, 41.5, 20}));
    EXPECT_EQ(mode, 2);
}

TEST_F(LineScanDialog, IdenticalPointsAreRefusedInTheModeOfTwoPoints)
{
    open(2, 7, 8, 7, 8);
    EXPECT_EQ(ok(), "Start point and end point are identical. This is not allowed.");
    EXPECT_TRUE(dialog.Visible());
    EXPECT_TRUE(dialog.Redraw());
}

TEST_F(LineScanDialog, IdenticalPointsPassInTheModeOfTheAngle)
{
    open(1, 7, 8, 7, 8);
    EXPECT_EQ(ok(), "");
    EXPECT_FALSE(dialog.Visible());
    EXPECT_TRUE(dialog.Redraw());
}

TEST_F(LineScanDialog, CancelAfterARefusedOkTakesTheRedrawBack)
{
    open(2, 7, 8, 7, 8);
    ok();
    cancel();
    EXPECT_FALSE(dialog.Redraw());
    EXPECT_FALSE(dialog.Visible());
}

TEST_F(LineScanDialog, APanelWithoutASizeStillOpens)
{
    record->TestSizeX = 0;
    EXPECT_NO_THROW(open());
    EXPECT_EQ(field("resx", 0).Text(), "10");
}

TEST_F(LineScanDialog, AnUnknownModeFails)
{
    EXPECT_THROW(open(3), Failure);
}

} // namespace
} // namespace zendara::test
