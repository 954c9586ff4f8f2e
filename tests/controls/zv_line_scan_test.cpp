#include "control_fixture.hpp"
#include "listening_container.hpp"
#include "support/failure_kind.hpp"
#include "zendara/controls/zv_line_scan.hpp"

#include <limits>

namespace zendara::test
{

namespace
{

using HostedScan = Hosted<ZvLineScan>;
using Names = std::vector<std::string>;
using Form = PlotTypeEnumLineScan;

constexpr std::int32_t curve_color = QBColor(4);
constexpr std::int32_t grid_color = QBColor(1);

// A value of its own at each fifth of a horizontal scan, and one site beside it.
std::vector<Site> const six_sites = {{-150, 0, 0}, {-75, 0, 40}, {0, 0, 20}, {75, 0, 10}, {150, 0, 30}, {0, 90, 5}};

std::vector<double> numbers(std::vector<Value> const& values)
{
    std::vector<double> found;
    for (auto const& value : values)
        found.push_back(to_double(value));
    return found;
}

struct NewScan : testing::Test {
    HostedScan host;
    ZvLineScan& control = host.control;

    TextBox& entry() { return host.child<TextBox>("AngleValue"); }
    UpDown& arrows() { return host.child<UpDown>("UpDown1"); }
    LineShape& line(std::string_view name) { return host.child<LineShape>(name); }

    void press(std::int16_t key)
    {
        std::array<Value, 2> arguments = {key, std::int16_t{0}};
        entry().raise("KeyDown", arguments);
    }

    std::vector<double> points(std::string_view name)
    {
        LineShape const& shape = line(name);
        return {shape.X1(), shape.Y1(), shape.X2(), shape.Y2()};
    }

    Names captions(std::string const& name)
    {
        Names found;
        for (int i = 0; i <= 4; ++i)
            found.push_back(host.child(name, i).caption());
        return found;
    }

    static std::vector<TraceRecord> lines_of(std::vector<TraceRecord> const& records, std::int32_t color)
    {
        std::vector<TraceRecord> found;
        for (auto const& record : only(records, "Line"))
            if (item<std::int32_t>(record, 4) == color)
                found.push_back(record);
        return found;
    }

    std::vector<TraceRecord> take_curve() { return lines_of(host.take_record("PLOTA"), curve_color); }

    int visible_marks()
    {
        int count = 0;
        auto& marks = *dynamic_cast<WidgetArray*>(control.find_child("picgrid", {}));
        for (int i = 0; i < marks.Count(); ++i)
            count += marks(i).Visible() ? 1 : 0;
        return count;
    }
};

struct PlottedScan : NewScan {
    void SetUp() override
    {
        load(control, six_sites);
        control.angle(270);
        ASSERT_EQ(control.Plot(), 0);
        host.take_record("PLOTA");
        host.changes.clear();
    }
};

} // namespace

// --- A new control -------------------------------------------------------------------------------------------------

TEST_F(NewScan, StartsWithThePublishedValues)
{
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.TestSizeX(), 300);
    EXPECT_EQ(control.TestSizeY(), 200);
    EXPECT_EQ(control.ShowSites(), Sites::HideSites);
    EXPECT_TRUE(host.child("btnoptions").Enabled());
    EXPECT_EQ(control.PlotType(), Form::vbAngle);
    EXPECT_FALSE(control.HideLegend());
    EXPECT_EQ(control.PlotCaption(), "");
    EXPECT_EQ(control.angle(), 0);
    EXPECT_EQ(control.RotationPointX(), 0);
    EXPECT_EQ(control.LineEndPointY(), 0);
}

TEST_F(NewScan, ShowsTheOverviewOfTheAngleFormAlone)
{
    EXPECT_TRUE(host.child("FNLabel", 0).Visible());
    EXPECT_FALSE(host.child("FNLabel", 1).Visible());
    EXPECT_EQ(host.child("FNLabel", 0).caption(), "Angle");
    EXPECT_EQ(host.child("FNLabel", 1).caption(), "Line");
    EXPECT_EQ(host.child("btnoptions").caption(), "Plot-Options");
}

TEST_F(NewScan, HasTheMembersOfItsInterfaceInTheirOrder)
{
    Names names;
    for (auto const& member : ZvLineScan::interface_table().members)
        names.emplace_back(member.name);
    EXPECT_EQ(names, (Names{"PrinterObj",
                            "hdc",
                            "hwnd",
                            "MouseIcon",
                            "MousePointer",
                            "About",
                            "StdDevPercent",
                            "StdDev",
                            "HiLo",
                            "range",
                            "Maximum",
                            "Minimum",
                            "mean",
                            "PanelSizeX",
                            "PanelSizeY",
                            "TestSizeX",
                            "TestSizeY",
                            "angle",
                            "PlotType",
                            "RotationPointX",
                            "RotationPointY",
                            "LineStartPointX",
                            "LineStartPointY",
                            "LineEndPointX",
                            "LineEndPointY",
                            "ShowSites",
                            "Plot",
                            "BackColor",
                            "ShowPlotOption",
                            "ReleasePlotLimit",
                            "SetPlotLimit",
                            "SetPanelData",
                            "HideLegend",
                            "PlotCaption",
                            "PrintPlot",
                            "PrintPanelStatistic",
                            "PrintPanelSize",
                            "clear",
                            "GetPanelData",
                            "Interpolation",
                            "SetPlotNotVaild",
                            "SetDataFile",
                            "GetLineOrAngle",
                            "SetLineOrAngle"}));
}

TEST_F(NewScan, ThePlotIsScaledInTwipsFromTheStart)
{
    auto* const surface = object_cast<Surface>(control.find_child("PLOTA", {}));
    EXPECT_EQ(surface->ScaleMode(), scale_twips);
    EXPECT_TRUE(only(host.take_record("PLOTA"), "ScaleMode").empty());
}

// --- Plot ----------------------------------------------------------------------------------------------------------

TEST_F(NewScan, PlotWithoutDataAnswers1AndLeavesTheScreen)
{
    host.take_record("PLOTA");
    EXPECT_EQ(control.Plot(), 1);
    EXPECT_TRUE(host.take_record("PLOTA").empty());
}

TEST_F(NewScan, APlotOfTheAngleFormDrawsTheCurveTwiceOnTheSamePlace)
{
    load(control, six_sites);
    host.take_record("PLOTA");
    EXPECT_EQ(control.Plot(), 0);
    auto const records = host.take_record("PLOTA");
    EXPECT_EQ(only(records, "Cls").size(), 1u);
    auto const curve = lines_of(records, curve_color);
    ASSERT_EQ(curve.size(), 2u * 88);
    EXPECT_EQ(std::vector(curve.begin(), curve.begin() + 88), std::vector(curve.begin() + 88, curve.end()));
}

TEST_F(NewScan, ThePlotStartsWithTheGridAsItsBackground)
{
    load(control, six_sites);
    host.take_record("PLOTA");
    control.Plot();
    auto const lines = text_of(host.take_record("PLOTA"));
    ASSERT_GE(lines.size(), 14u);
    EXPECT_EQ(lines[0], "Cls");
    EXPECT_EQ(lines[1], "SetPicture");
    // 4960 x 2075 twips, as the layout makes it; the last line lies on the last pixel.
    EXPECT_EQ(lines[2], "Line 0 0 0 2075 8388608 1 0");
    EXPECT_EQ(lines[6], "Line 4945 0 4945 2075 8388608 1 0");
    EXPECT_EQ(lines[7], "Line 0 0 4960 0 8388608 1 0");
    EXPECT_EQ(lines[11], "Line 0 2060 4960 2060 8388608 1 0");
    EXPECT_EQ(lines[12], "Refresh");
    EXPECT_EQ(lines[13], "SetPicture");
}

TEST_F(NewScan, TheCurveIsThatOfThePanelIn88Steps)
{
    load(control, six_sites);
    control.angle(30);
    control.RotationPointX(10);
    control.RotationPointY(-20);
    control.Plot();
    auto const by_control = take_curve();

    auto const surface = Recorder::picture({0, 0, 4960.0 / 15, 2075.0 / 15});
    surface->ScaleMode(scale_twips);
    surface->take_record();
    std::int16_t steps = 88, phi = 30, is_angle = -1, on_screen = 0;
    double x = 10, y = -20, none = 0;
    Color color = curve_color;
    control.record().D1Plot(*surface, steps, phi, is_angle, x, y, none, none, color, none, none, none, none, on_screen);
    auto const expected = surface->take_record();
    ASSERT_EQ(by_control.size(), 2 * expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(text_of(by_control[i]), text_of(expected[i]));
}

TEST_F(NewScan, APlotOfTheAngleFormShowsIndicatorLabelsAndItsCaption)
{
    load(control, six_sites);
    control.angle(270);
    control.Plot();
    EXPECT_EQ(host.child("FNLabel", 0).caption(), "Angle :");
    EXPECT_EQ(captions("lblX"), (Names{"X=-150.00\nY=0.00", "X=-75.00\nY=0.00", "X=0.00\nY=0.00", "X=75.00\nY=0.00",
                                       "X=150.00\nY=0.00"}));
    EXPECT_EQ(captions("lblY"), (Names{"0.0000", "10.0000", "20.0000", "30.0000", "40.0000"}));
    Child const& picture = host.child("FNPic");
    double const scale = std::min((picture.Width() - 4) / 300, (picture.Height() - 4) / 200);
    auto const middle_x = picture.Width() / 2, middle_y = picture.Height() / 2;
    EXPECT_EQ(points("Line1"), (std::vector{std::nearbyint(middle_x - 150 * scale), middle_y,
                                            std::nearbyint(middle_x + 150 * scale), middle_y}));
    EXPECT_TRUE(host.child("picplus").Visible());
    EXPECT_EQ(only(host.take_record("FNPic"), "Polygon").size(), 2u);
}

TEST_F(NewScan, APlotOfTheLineFormDrawsOnItsOwnOverview)
{
    load(control, six_sites);
    control.SetLineOrAngle(2, 0, 0, 0, -10, 0, 20, 0);
    host.take_record("PLOTA");
    control.Plot();
    auto const records = host.take_record("PLOTA");
    EXPECT_EQ(only(records, "Cls").size(), 2u); // in the layout, and before the second curve
    EXPECT_EQ(lines_of(records, curve_color).size(), 2u * 88);
    EXPECT_EQ(captions("lblX")[4], "X=150.00\nY=0.00");
    EXPECT_EQ(host.child("FNLabel", 1).caption(), "Panel");
    EXPECT_TRUE(host.child("Picture2").Visible());
    EXPECT_FALSE(host.child("picplus").Visible());
    EXPECT_EQ(only(host.take_record("Picture1"), "Polygon").size(), 2u);
    EXPECT_TRUE(host.take_record("FNPic").empty());
    EXPECT_EQ(line("Line6").X2(), host.child("Picture1").Width() - line("Line6").X1());
}

TEST_F(NewScan, TheLineFormBeforeTheFirstPlotChangesNeitherOverviewNorLabels)
{
    load(control, six_sites);
    control.PlotType(Form::vbline);
    control.LineStartPointX(-10);
    control.LineEndPointX(20);
    host.control.window().resize(7000, 5000);
    EXPECT_EQ(captions("lblX"), Names(5));
    EXPECT_TRUE(host.take_record("Picture1").empty());
    EXPECT_FALSE(host.child("Picture2").Visible());
    EXPECT_TRUE(take_curve().empty());
}

TEST_F(NewScan, TakesOverAnAngleThatIsNotInTheBoxBeforeItDraws)
{
    load(control, six_sites);
    control.Plot();
    control.PlotType(Form::vbline);
    control.SetLineOrAngle(1, 45, 0, 0, 0, 0, 0, 0);
    EXPECT_EQ(entry().Text(), "45");
    EXPECT_EQ(control.angle(), 45);
}

TEST_F(NewScan, EmptyPanelSizesGetTheirOwnDefaultsWithoutCrossing)
{
    load(control, six_sites);
    control.PanelSizeX(0);
    host.changes.clear();
    control.Plot();
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.TestSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_FALSE(take_curve().empty());
    control.PanelSizeY(0);
    control.Plot();
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.record().HalfTestSizey, 100);
}

TEST_F(NewScan, DrawsUnderTheHourglass)
{
    load(control, six_sites);
    control.SetLineOrAngle(2, 0, 0, 0, 0, 300, 10, 310); // outside: messages tell of the drawing
    ListeningContainer container;
    container.on_message = [&] { EXPECT_EQ(control.MousePointer(), 11); };
    control.record().container = &container;
    control.Plot();
    EXPECT_EQ(container.messages.size(), 5u); // the layout's curve, the labels, twice the indicator, the curve
    EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(NewScan, ALineOutsideThePanelShowsAPlainMessageForEachOfItsSteps)
{
    load(control, six_sites);
    control.ShowSites(Sites::MarkSites);
    control.SetLineOrAngle(2, 0, 0, 0, 0, 300, 10, 310);
    EXPECT_EQ(control.Plot(), 0);
    auto const messages = host.platform.take_messages();
    EXPECT_EQ(messages.size(), 7u);
    for (auto const& message : messages) {
        EXPECT_EQ(message.text, "Value not applicable. Line outside panel.");
        EXPECT_EQ(message.title, "");
        EXPECT_EQ(message.style, 0);
    }
    EXPECT_TRUE(take_curve().empty());
    EXPECT_EQ(captions("lblX"), Names(5, "X=0.00\nY=0.00"));
}

TEST_F(NewScan, ThreeSitesShowLabelsAndIndicatorWithoutACurve)
{
    load(control, {{0, 0, 1}, {10, 0, 2}, {0, 10, 3}});
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_TRUE(take_curve().empty());
    EXPECT_EQ(captions("lblX")[0], "X=0.00\nY=-100.00");
    EXPECT_TRUE(host.child("picplus").Visible());
}

// --- Sites ---------------------------------------------------------------------------------------------------------

TEST_F(PlottedScan, ShowsTheSitesOfTheLineWithTheNextPlot)
{
    EXPECT_EQ(visible_marks(), 0);
    control.ShowSites(Sites::MarkSites);
    EXPECT_EQ(visible_marks(), 0);
    control.Plot();
    EXPECT_EQ(visible_marks(), 5);
    control.ShowSites(Sites::MarkSites);
    EXPECT_EQ(visible_marks(), 0);
}

TEST_F(PlottedScan, AMarkHasItsMiddleOnTheCurveAndATipWithItsSite)
{
    control.ShowSites(Sites::MarkSites);
    host.control.window().raise("Show"); // one run of the marks alone
    Child const& mark = host.child("picgrid", 2);
    EXPECT_EQ(mark.Width(), 210);
    EXPECT_NEAR(mark.Left() + 105, 4960 / 2.0, 1e-6);
    EXPECT_NEAR(mark.Top() + 105, 2075 / 2.0, 1e-6);
    EXPECT_EQ(mark.ToolTipText(), "X = 0  Y= 0FW = 20");
}

TEST_F(PlottedScan, TheArrayOfMarksGrowsWithEachPlot)
{
    control.ShowSites(Sites::MarkSites);
    auto& marks = *dynamic_cast<WidgetArray*>(control.find_child("picgrid", {}));
    control.window().raise("Show");
    EXPECT_EQ(marks.Count(), 5);
    control.window().raise("Show");
    EXPECT_EQ(marks.Count(), 9);
}

TEST_F(PlottedScan, AnEmptyDisplayShowsNoMarks)
{
    control.ShowSites(Sites::MarkSites);
    control.Plot();
    control.clear();
    EXPECT_EQ(visible_marks(), 0);
}

// --- Setters -------------------------------------------------------------------------------------------------------

TEST_F(NewScan, AnAngleIsBroughtIntoTheCircle)
{
    for (auto const& [given, kept] : std::vector<std::pair<int, int>>{
             {-30, 330}, {725, 5}, {360, 0}, {-360, 0}, {359, 359}, {32767, 7}, {-32768, 352}}) {
        control.angle(static_cast<std::int16_t>(given));
        EXPECT_EQ(control.angle(), kept) << given;
        EXPECT_EQ(entry().Text(), std::to_string(kept));
    }
}

TEST_F(PlottedScan, PointsClearTheCurveAndWaitForTheNextPlot)
{
    control.RotationPointX(1);
    control.RotationPointY(2);
    control.LineStartPointX(3);
    control.LineStartPointY(4);
    control.LineEndPointX(5);
    control.LineEndPointY(6);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names(6, "Cls"));
    EXPECT_EQ(control.RotationPointX(), 1);
    EXPECT_EQ(control.RotationPointY(), 2);
    EXPECT_EQ(control.LineStartPointX(), 3);
    EXPECT_EQ(control.LineStartPointY(), 4);
    EXPECT_EQ(control.LineEndPointX(), 5);
    EXPECT_EQ(control.LineEndPointY(), 6);
}

TEST_F(NewScan, PointsAreReadRoundedHalfToEven)
{
    control.SetLineOrAngle(2, 0, 0, 0, 0.5, 1.5, -2.5, 3.4);
    EXPECT_EQ(control.LineStartPointX(), 0);
    EXPECT_EQ(control.LineStartPointY(), 2);
    EXPECT_EQ(control.LineEndPointX(), -2);
    EXPECT_EQ(control.LineEndPointY(), 3);
}

TEST_F(PlottedScan, TheFormShowsItsOverviewAndClearsTheCurve)
{
    control.PlotType(Form::vbline);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
    EXPECT_FALSE(host.child("FNLabel", 0).Visible());
    EXPECT_TRUE(host.child("FNLabel", 1).Visible());
    control.PlotType(static_cast<Form>(7));
    EXPECT_TRUE(host.child("FNLabel", 0).Visible());
    EXPECT_FALSE(host.child("FNLabel", 1).Visible());
    EXPECT_EQ(static_cast<int>(control.PlotType()), 7);
}

TEST_F(NewScan, TheBackColourGoesToEverythingButTheCurve)
{
    control.BackColor(0x123456);
    for (auto const* const name : {"Plot", "FNPic", "Picture1", "Frame1", "Label1"})
        EXPECT_EQ(host.child(name).BackColor(), 0x123456) << name;
    EXPECT_EQ(host.child("FNLabel", 0).BackColor(), 0x123456);
    EXPECT_EQ(host.child("FNLabel", 1).BackColor(), 0x123456);
    EXPECT_EQ(control.BackColor(), 0x123456);
    EXPECT_EQ(host.child("PLOTA").BackColor(), QBColor(15));
}

TEST_F(NewScan, HideLegendHidesTheOverviewOfTheAngleFormAndTheButton)
{
    control.HideLegend(true);
    EXPECT_TRUE(control.HideLegend());
    EXPECT_FALSE(host.child("FNLabel", 0).Visible());
    EXPECT_FALSE(host.child("FNLabel", 1).Visible());
    EXPECT_FALSE(host.child("btnoptions").Visible());
    control.HideLegend(false);
    EXPECT_TRUE(host.child("FNLabel", 0).Visible());
    EXPECT_FALSE(host.child("FNLabel", 1).Visible());
    EXPECT_TRUE(host.child("btnoptions").Visible());
}

TEST_F(NewScan, TheLegendOfTheLineFormComesBackWithBothOverviews)
{
    control.PlotType(Form::vbline);
    control.HideLegend(true);
    EXPECT_FALSE(host.child("FNLabel", 1).Visible());
    control.HideLegend(false);
    EXPECT_TRUE(host.child("FNLabel", 0).Visible());
    EXPECT_TRUE(host.child("FNLabel", 1).Visible());
}

TEST_F(PlottedScan, SetPlotNotVaildClearsTheCurveAndMore)
{
    control.SetPlotNotVaild();
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
    control.window().raise("Show"); // the plot still stands
    EXPECT_EQ(take_curve().size(), 88u);
}

TEST_F(PlottedScan, LimitsDrawAtOnceAndTheirReleaseWritesTheLabelsAnew)
{
    EXPECT_TRUE(control.SetPlotLimit(10, 30));
    EXPECT_EQ(captions("lblY")[4], "30.0000");
    EXPECT_EQ(take_curve().size(), 2u * 88);
    control.ReleasePlotLimit();
    EXPECT_EQ(captions("lblY"), (Names{"0.0000", "10.0000", "20.0000", "30.0000", "40.0000"}));
    EXPECT_EQ(take_curve().size(), 2u * 88);
}

TEST_F(NewScan, ReleasingLimitsWritesTheLabelsWithoutAPlot)
{
    load(control, six_sites);
    control.SetPlotLimit(10, 30);
    EXPECT_EQ(captions("lblY")[0], "");
    control.ReleasePlotLimit();
    EXPECT_EQ(captions("lblY")[3], "30.0000");
    EXPECT_TRUE(take_curve().empty());
}

TEST_F(PlottedScan, NewDataBehindReleasedLimitsBringTheirOwnLimits)
{
    control.SetPlotLimit(10, 30);
    load(control, six_sites);
    EXPECT_EQ(control.record().maximal, 30); // limits outlive new data
    control.ReleasePlotLimit();
    load(control, six_sites);
    EXPECT_EQ(control.record().maximal, control.Maximum());
    EXPECT_EQ(control.record().minimal, control.Minimum());
}

TEST_F(NewScan, PointsBeyond16BitsReadAsTheNearest)
{
    control.SetLineOrAngle(2, 0, 0, 0, 40000, -40000, 1e300, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(control.LineStartPointX(), 32767);
    EXPECT_EQ(control.LineStartPointY(), -32768);
    EXPECT_EQ(control.LineEndPointX(), 32767);
    EXPECT_EQ(control.LineEndPointY(), 0);
}

// --- Angle entry ---------------------------------------------------------------------------------------------------

TEST_F(NewScan, AnAngleThatIsTypedTurnsTheLine)
{
    entry().Text("90");
    EXPECT_EQ(control.angle(), 90);
    EXPECT_EQ(captions("lblX")[0], "X=150.00\nY=0.00");
}

TEST_F(NewScan, WithoutAPlotIndicatorAndLabelsMoveAndTheCurveAreaStaysEmpty)
{
    load(control, six_sites);
    control.angle(0);
    auto const upward = points("Line1");
    host.take_record("PLOTA");
    control.angle(90);
    EXPECT_NE(points("Line1"), upward);
    EXPECT_EQ(captions("lblX")[4], "X=-150.00\nY=0.00");
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
}

TEST_F(PlottedScan, AnAngleDrawsTheCurveOnceOnAClearedPicture)
{
    control.ShowSites(Sites::MarkSites);
    control.angle(0);
    auto const records = host.take_record("PLOTA");
    EXPECT_EQ(records.front().name, "Cls");
    EXPECT_EQ(records.size(), 89u);
    EXPECT_EQ(visible_marks(), 2); // the sites of the column x = 0
}

TEST_F(NewScan, AnEmptyTextIsTheAngle0AndStaysEmpty)
{
    control.angle(17);
    entry().Text("");
    EXPECT_EQ(control.angle(), 0);
    EXPECT_EQ(entry().Text(), "");
}

TEST_F(NewScan, ATextThatIsNoAngleBecomes0AndTheHandlerRunsAgain)
{
    for (auto const* const text : {"360", "abc", "-1", "1.5", "1e1", "-", "400"}) {
        control.angle(17);
        host.take_record("PLOTA");
        entry().Text(text);
        EXPECT_EQ(entry().Text(), "0") << text;
        EXPECT_EQ(control.angle(), 0) << text;
        EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"}) << text; // of the run for "0"
    }
    entry().Text("359");
    EXPECT_EQ(control.angle(), 359);
}

TEST_F(NewScan, TheUpKeyCountsOnRoundTheCircle)
{
    arrows().Value(359);
    press(38);
    EXPECT_EQ(arrows().Value(), 0);
    EXPECT_EQ(entry().Text(), "0");
    press(38);
    EXPECT_EQ(control.angle(), 1);
    arrows().Increment = 90;
    arrows().Value(300);
    press(38);
    EXPECT_EQ(control.angle(), 30);
}

TEST_F(NewScan, TheDownKeyCountsBackRoundTheCircle)
{
    press(40);
    EXPECT_EQ(arrows().Value(), 359);
    EXPECT_EQ(control.angle(), 359);
    press(40);
    EXPECT_EQ(control.angle(), 358);
}

TEST_F(NewScan, OtherKeysCountNothing)
{
    control.angle(17);
    press(37);
    press(13);
    EXPECT_EQ(control.angle(), 17);
}

TEST_F(NewScan, TheArrowsWriteTheirNumberIntoTheBox)
{
    arrows().Value(45);
    EXPECT_EQ(entry().Text(), "45");
    EXPECT_EQ(control.angle(), 45);
    arrows().Value(359);
    arrows().click_up();
    EXPECT_EQ(control.angle(), 0);
}

// --- The line as a whole -------------------------------------------------------------------------------------------

TEST_F(NewScan, GetLineOrAngleReadsTheTwoPoints)
{
    control.SetLineOrAngle(2, 33, 1, 2, 3.5, 4.5, 5.5, 6.5);
    std::vector<Value> arguments = {std::int16_t{77}, 0.0, 0.0, 0.0, 0.0};
    EXPECT_EQ(to_double(call_member(control, "GetLineOrAngle", arguments)), 0);
    EXPECT_EQ(numbers(arguments), (std::vector<double>{77, 3.5, 4.5, 5.5, 6.5}));
}

TEST_F(NewScan, GetLineOrAngleGivesTheCallersOwnAngleBackAsEndXInTheAngleForm)
{
    control.SetLineOrAngle(1, 33, 1.5, 2.5, 3, 4, 5, 6);
    std::vector<Value> arguments = {std::int16_t{77}, 0.0, 0.0, 0.0, 9.0};
    EXPECT_EQ(to_double(call_member(control, "GetLineOrAngle", arguments)), 0);
    EXPECT_EQ(numbers(arguments), (std::vector<double>{77, 1.5, 2.5, 77, 9}));
    EXPECT_EQ(control.angle(), 33);
}

TEST_F(PlottedScan, SetLineOrAngleStoresOnlyTheLineOfItsForm)
{
    control.SetLineOrAngle(2, 33, 1, 2, 3, 4, 5, 6);
    EXPECT_TRUE(host.child("FNLabel", 1).Visible());
    EXPECT_FALSE(host.child("FNLabel", 0).Visible());
    EXPECT_EQ(control.angle(), 270);
    EXPECT_EQ(control.RotationPointX(), 0);
    EXPECT_EQ(control.LineEndPointY(), 6);
    EXPECT_TRUE(host.take_record("PLOTA").empty());
    control.SetLineOrAngle(1, 33, 1, 2, 0, 0, 0, 0);
    EXPECT_TRUE(host.child("FNLabel", 0).Visible());
    EXPECT_FALSE(host.child("FNLabel", 1).Visible());
    EXPECT_EQ(control.angle(), 33);
    EXPECT_EQ(control.RotationPointY(), 2);
    EXPECT_EQ(control.LineEndPointY(), 6);
    EXPECT_TRUE(host.changes.empty());
}

TEST_F(NewScan, SetLineOrAngleDoesNotBringAnAngleIntoTheCircle)
{
    control.SetLineOrAngle(1, 400, 0, 0, 0, 0, 0, 0);
    EXPECT_EQ(control.angle(), 0);
    EXPECT_EQ(entry().Text(), "0");
}

// --- Show ----------------------------------------------------------------------------------------------------------

TEST_F(PlottedScan, BecomingVisibleDrawsTheCurveAgainWithoutClearing)
{
    control.window().raise("Show");
    auto const records = host.take_record("PLOTA");
    EXPECT_EQ(records.size(), 88u);
    EXPECT_EQ(lines_of(records, curve_color).size(), 88u);
}

TEST_F(NewScan, BecomingVisibleBeforeThePlotDrawsNothing)
{
    load(control, six_sites);
    host.take_record("PLOTA");
    control.window().raise("Show");
    EXPECT_TRUE(host.take_record("PLOTA").empty());
}

TEST_F(PlottedScan, AFailureIsIgnoredWhereTheControlShowsAndReportedWhereItPlots)
{
    control.SetLineOrAngle(2, 0, 0, 0, 0, 0, 1e-300, 1); // too steep for a small float
    control.window().raise("Show");
    control.window().resize(7000, 5000);
    EXPECT_EQ(failure_of([&] { control.Plot(); }), FailureKind::Overflow);
    EXPECT_EQ(control.MousePointer(), 0);
}

// --- Layout --------------------------------------------------------------------------------------------------------

TEST_F(PlottedScan, PlacesTheCurveBesideItsLabelsAndTheOverviewUnderIt)
{
    Child const& top_label = host.child("lblY", 4);
    EXPECT_EQ(top_label.Width(), 700); // "40.0000"
    EXPECT_EQ(top_label.Left(), 90);
    EXPECT_EQ(host.child("Plot").Width(), 6000);
    EXPECT_EQ(host.child("Plot").Height(), 3100);
    Child const& curve = host.child("PLOTA");
    EXPECT_EQ(curve.Left(), 90 + 700 + 50);
    EXPECT_EQ(curve.Top(), 420);
    EXPECT_EQ(curve.Width(), 6000 - (700 + 90 + 250));
    EXPECT_EQ(curve.Height(), 3100 - 1025);
    for (int i : {0, 1}) {
        Child const& overview = host.child("FNLabel", i);
        EXPECT_EQ(overview.Left(), 1500);
        EXPECT_EQ(overview.Top() + overview.Height(), 4500);
    }
    Child const& button = host.child("btnoptions");
    EXPECT_EQ(button.Left() + button.Width(), 6000);
    EXPECT_EQ(button.Top() + button.Height(), 4500);
    EXPECT_EQ(host.child("plus").Left(), curve.Left());
}

TEST_F(PlottedScan, SetsTheAxisLabelsAtTheQuartersOfTheCurve)
{
    Child const& curve = host.child("PLOTA");
    for (int i = 0; i < 4; ++i) {
        Child const& label = host.child("lblX", i);
        EXPECT_EQ(label.Left() + label.Width() / 2, curve.Left() + i * curve.Width() / 4) << i;
        EXPECT_EQ(label.Top(), curve.Height() + 550);
    }
    Child const& last = host.child("lblX", 4);
    EXPECT_EQ(last.Left() + last.Width(), curve.Left() + curve.Width());
    for (int i = 0; i <= 4; ++i) {
        Child const& label = host.child("lblY", i);
        EXPECT_EQ(label.Top() + label.Height() / 2, curve.Height() + 420 - i * curve.Height() / 4) << i;
        EXPECT_EQ(label.Left(), 90);
    }
}

TEST_F(PlottedScan, LabelsKeepTheirQuartersWhenTheirTextsChange)
{
    control.angle(0);
    Child const& curve = host.child("PLOTA");
    EXPECT_EQ(host.child("lblX", 1).Width(), 800); // of "Y=-50.00"
    EXPECT_EQ(host.child("lblX", 1).Left() + 400, curve.Left() + curve.Width() / 4);
    Child const& last = host.child("lblX", 4);
    EXPECT_EQ(last.Left() + last.Width(), curve.Left() + curve.Width());
}

TEST_F(PlottedScan, AResizeDrawsGridAndCurveInTheNewSize)
{
    control.window().resize(8000, 5000);
    auto const records = host.take_record("PLOTA");
    EXPECT_EQ(lines_of(records, grid_color).size(), 10u);
    auto const curve = lines_of(records, curve_color);
    ASSERT_EQ(curve.size(), 88u);
    EXPECT_NEAR(item<double>(curve.back(), 2), 8000 - 1040, 1e-9);
}

TEST(ZvLineScanLayout, ATooSmallControlGrows)
{
    HostedScan host(3000, 2000);
    EXPECT_EQ(host.control.window().Width(), 4000);
    EXPECT_EQ(host.control.window().Height(), 2850);
    host.control.HideLegend(true);
    host.control.window().resize(3000, 1000);
    EXPECT_EQ(host.control.window().Width(), 4000);
    EXPECT_EQ(host.control.window().Height(), 1770);
    EXPECT_EQ(host.child("Plot").Height(), 1770);
}

TEST(ZvLineScanLayout, NothingOverlapsInTheSmallestControl)
{
    HostedScan host(4000, 2850);
    Child const& overview = host.child("FNLabel", 0);
    EXPECT_GE(overview.Top(), host.child("Plot").Height());
    EXPECT_LE(overview.Left() + overview.Width(), host.child("btnoptions").Left());
}

TEST(ZvLineScanLayout, LabelsThatWouldCoverOthersStayHidden)
{
    HostedScan host(4000, 2850);
    load(host.control, six_sites);
    host.control.angle(270);
    host.control.Plot();
    auto const visible = [&](char const* name) {
        std::string shown;
        for (int i = 0; i <= 4; ++i)
            shown += host.child(name, i).Visible() ? '1' : '0';
        return shown;
    };
    // A height of 425 twips for labels of 200; a width of 2960 for labels of 900, 800, 600, 700 and 800.
    EXPECT_EQ(visible("lblY"), "10101");
    EXPECT_EQ(visible("lblX"), "10101");
    host.control.window().resize(9000, 6000);
    EXPECT_EQ(visible("lblY"), "11111");
    EXPECT_EQ(visible("lblX"), "11111");
}

// --- Events, store, print ------------------------------------------------------------------------------------------

TEST_F(NewScan, RaisesTheEventsOfTheControlTheCurveAndItsFrame)
{
    std::array<Value, 4> pointer = {std::int16_t{1}, std::int16_t{0}, 3.0f, 4.0f};
    control.window().raise("Click");
    host.child("PLOTA").raise("DblClick");
    host.child("PLOTA").raise("MouseDown", pointer);
    host.child("Plot").raise("MouseMove", pointer);
    host.child("Plot").raise("MouseUp", pointer);
    host.child("FNPic").raise("Click");
    EXPECT_EQ(host.events, (Names{"Click", "DblClick", "MouseDown", "MouseMove", "MouseUp"}));
}

TEST_F(NewScan, AnEndPointComesBackWithItsYAsItsX)
{
    control.LineEndPointX(10);
    control.LineEndPointY(20);
    control.angle(45);
    control.ShowSites(Sites::MarkSites);
    PropertyBag store;
    control.WriteProperties(store);
    HostedScan other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.LineEndPointX(), 20);
    EXPECT_EQ(other.control.LineEndPointY(), 0);
    EXPECT_EQ(other.control.angle(), 45);
    EXPECT_EQ(other.control.ShowSites(), Sites::MarkSites);
    EXPECT_EQ(other.control.PlotCaption(), "");
}

} // namespace zendara::test
