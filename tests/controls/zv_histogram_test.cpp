#include "control_fixture.hpp"
#include "zendara/controls/zv_histogram.hpp"
#include "zendara/form/line_shape.hpp"
#include "zendara/support/process_state.hpp"

#include <limits>

namespace zendara::test
{

namespace
{

using HostedHistogram = Hosted<ZvHistogram>;
using Names = std::vector<std::string>;

std::vector<Site> const ten_sites = random_sites(10, 300, 200, 11);

struct NewHistogram : testing::Test {
    HostedHistogram host;
    ZvHistogram& control = host.control;

    void TearDown() override { set_histogram_limits({}); }

    bool has_drawn() { return !only(host.take_record("PLOTA"), "FillBox").empty(); }
};

struct PlottedHistogram : NewHistogram {
    void SetUp() override
    {
        load(control, ten_sites);
        ASSERT_EQ(control.Plot(), 0);
        host.take_record("PLOTA");
        host.take_record("histPic");
    }
};

} // namespace

// --- A new control -------------------------------------------------------------------------------------------------

TEST_F(NewHistogram, StartsWithThePublishedValues)
{
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.TestSizeX(), 300);
    EXPECT_EQ(control.TestSizeY(), 200);
    EXPECT_EQ(control.Resolution(), 10);
    EXPECT_EQ(control.PlotType(), PlotTyEnum::vbbottom);
    EXPECT_FALSE(control.HideLegend());
    EXPECT_EQ(control.BeamColor(), QBColor(2));
    EXPECT_EQ(control.GaussCurveColor(), QBColor(4));
    EXPECT_TRUE(host.changes.empty());
    EXPECT_EQ(host.platform.help_file(), host.platform.application_path() + "\\zendara.hlp");
}

TEST_F(NewHistogram, HasTheCaptionsOfTheSigmaMarksHidden)
{
    Names captions;
    for (int i = 0; i < 7; ++i) {
        auto const& label = host.child<Label>("lblX", i);
        captions.push_back(label.caption());
        EXPECT_FALSE(label.Visible());
        EXPECT_EQ(label.Font().Name, "Symbol");
    }
    EXPECT_EQ(captions, (Names{"-3s", "-2s", "-1s", "Mean", "+1s", "+2s", "+3s"}));
}

// --- Settings ------------------------------------------------------------------------------------------------------

TEST_F(NewHistogram, AResolutionOf0BecomesTenBinsAndAFractionIsRounded)
{
    control.Resolution(0);
    EXPECT_EQ(control.Resolution(), 10);
    control.Resolution(7.5);
    EXPECT_EQ(control.Resolution(), 8);
    control.Resolution(6.5);
    EXPECT_EQ(control.Resolution(), 6);
    EXPECT_THROW(control.Resolution(40000), Failure);
    EXPECT_EQ(control.Resolution(), 6);
}

TEST_F(PlottedHistogram, ANegativeResolutionIsKeptAndShowsNoBars)
{
    control.Resolution(-4);
    EXPECT_EQ(control.Resolution(), -4);
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_FALSE(has_drawn());
}

TEST_F(NewHistogram, AnUnknownPlotTypeBecomesTheFirst)
{
    control.PlotType(PlotTyEnum::vbRight);
    EXPECT_EQ(control.PlotType(), PlotTyEnum::vbRight);
    for (double const unknown : {7.0, 0.0, -1.0, 5.0, 70000.0}) {
        control.PlotType(PlotTyEnum::vbLeft);
        put_member(control, "PlotType", unknown);
        EXPECT_EQ(control.PlotType(), PlotTyEnum::vbbottom) << unknown;
    }
}

TEST_F(NewHistogram, TheColoursAreThoseOfTheSigmaMapInThePanel)
{
    control.BeamColor(11);
    control.GaussCurveColor(22);
    EXPECT_EQ(control.record().ColS2, 11);
    EXPECT_EQ(control.record().ColS1, 22);
    control.record().ColS2 = 33.5;
    EXPECT_EQ(control.BeamColor(), 34);
}

TEST_F(PlottedHistogram, SettingsWaitForTheNextPlot)
{
    control.PlotType(PlotTyEnum::vbTop);
    control.Resolution(5);
    control.BeamColor(1);
    control.GaussCurveColor(1);
    control.HideLegend(true);
    control.ShowControlLimit(480, 520);
    control.ResetControlLimit();
    control.SetPlotNotVaild();
    control.Borderstyle(0);
    EXPECT_FALSE(has_drawn());
    control.Plot();
    EXPECT_TRUE(has_drawn());
}

TEST_F(NewHistogram, TheBackColourGoesToTheControlAndTheOuterPicture)
{
    control.BackColor(0x123456);
    EXPECT_EQ(control.BackColor(), 0x123456);
    EXPECT_EQ(host.child("histPic").BackColor(), 0x123456);
    EXPECT_NE(host.child("PLOTA").BackColor(), 0x123456);
}

TEST_F(NewHistogram, HidingTheLegendHidesTheOptionsButtonAndMovesNothing)
{
    double const before = host.child("PLOTA").Width();
    control.HideLegend(true);
    EXPECT_TRUE(control.HideLegend());
    EXPECT_FALSE(host.child("Command1").Visible());
    EXPECT_EQ(host.child("PLOTA").Width(), before);
    control.HideLegend(false);
    EXPECT_TRUE(host.child("Command1").Visible());
}

TEST_F(NewHistogram, TheBorderStyleIsThatOfTheFrame)
{
    control.Borderstyle(0);
    EXPECT_FALSE(host.child<Frame>("frmhist").has_border);
    control.Borderstyle(1);
    EXPECT_TRUE(host.child<Frame>("frmhist").has_border);
}

// --- Plot ----------------------------------------------------------------------------------------------------------

TEST_F(NewHistogram, DrawsTheHistogramOfItsSettingsOnClearedSurfaces)
{
    load(control, ten_sites);
    for (std::int16_t type = 1; type <= 4; ++type) {
        control.PlotType(static_cast<PlotTyEnum>(type));
        control.Resolution(6);
        host.take_record("PLOTA");
        host.take_record("histPic");
        control.Plot();
        auto const plotted = host.take_record("PLOTA");
        auto const axes = host.take_record("histPic");

        auto const& place = host.child("PLOTA");
        auto const plot_alone = Recorder::picture({});
        auto const axes_alone = Recorder::picture({});
        plot_alone->left = place.Left();
        plot_alone->top = place.Top();
        plot_alone->width = place.Width();
        plot_alone->height = place.Height();
        axes_alone->Font = type == 1 ? FontFace{} : FontFace{"Symbol", 8}; // as the plot before has left it
        double x0 = place.Left(), y0 = place.Top(), width = place.Width() - 1, height = place.Height() - 1;
        double left = 0, top = 0;
        std::int16_t tick = 4, screen = 0;
        plot_alone->Cls();
        axes_alone->Cls();
        axes_alone->ForeColor = type == 1 ? 0 : 0xFF0000;
        control.record().Statistic(type, *plot_alone, *axes_alone, x0, y0, width, height, 6, tick, left, top, screen);
        EXPECT_EQ(text_of(plotted), text_of(plot_alone->take_record()));
        EXPECT_EQ(text_of(axes), text_of(axes_alone->take_record()));
    }
}

TEST_F(PlottedHistogram, AfterAPlotThePointerIsTheUsualOneAndTheButtonAnswers)
{
    control.MousePointer(5);
    control.Plot();
    EXPECT_EQ(control.MousePointer(), 0);
    EXPECT_TRUE(host.child("Command1").Enabled());
}

TEST_F(NewHistogram, APanelWithoutSizeGetsTheUsualOneNotCrossed)
{
    load(control, ten_sites);
    control.PanelSizeX(0);
    control.PanelSizeY(0);
    control.Plot();
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.TestSizeX(), 300);
    EXPECT_EQ(control.record().HalfTestSizey, 100);
    control.PanelSizeY(0);
    control.PanelSizeX(77);
    control.Plot();
    EXPECT_EQ(control.PanelSizeX(), 77);
    EXPECT_EQ(control.PanelSizeY(), 200);
}

TEST_F(PlottedHistogram, PlotLimitsDrawAtOnceAlsoAfterAPlotOfAPanelWithoutSize)
{
    control.PanelSizeX(0);
    control.Plot();
    host.take_record("PLOTA");
    EXPECT_TRUE(control.SetPlotLimit(480, 520));
    EXPECT_TRUE(has_drawn());
    control.ReleasePlotLimit();
    EXPECT_TRUE(has_drawn());
}

// --- Control limits of the process ---------------------------------------------------------------------------------

TEST_F(PlottedHistogram, ControlLimitsShowOnEveryCrosswiseHistogramUntilReset)
{
    HostedHistogram other;
    load(other.control, ten_sites);
    control.ShowControlLimit(490, 510);
    auto const limits_of = [](HostedHistogram& hosted, PlotTyEnum type) {
        hosted.control.PlotType(type);
        hosted.control.Plot();
        std::size_t count = 0;
        for (auto const& line : only(hosted.take_record("PLOTA"), "Line"))
            count += item<std::int32_t>(line, 4) == 0x800000 ? 1u : 0u;
        return count;
    };
    EXPECT_EQ(limits_of(other, PlotTyEnum::vbLeft), 2u);
    EXPECT_EQ(limits_of(host, PlotTyEnum::vbRight), 2u);
    EXPECT_EQ(limits_of(host, PlotTyEnum::vbbottom), 0u);
    other.control.ResetControlLimit();
    EXPECT_EQ(limits_of(host, PlotTyEnum::vbRight), 0u);
}

TEST_F(PlottedHistogram, ANewHistogramTakesTheControlLimitsOfTheOthersAway)
{
    control.ShowControlLimit(490, 510);
    HostedHistogram const other;
    EXPECT_FALSE(histogram_limits().HistLimitOn);
}

TEST_F(PlottedHistogram, APlotBringsThePlatformsPrinterToItsInitialState)
{
    host.platform.default_printer()->ForeColor = 77;
    control.Plot();
    EXPECT_EQ(host.platform.default_printer()->ForeColor, 0);
}

// --- Layout --------------------------------------------------------------------------------------------------------

TEST(ZvHistogramLayout, PlacesPicturesButtonAndLines)
{
    HostedHistogram host(6000, 4500);
    auto& button = host.child("Command1");
    EXPECT_EQ(button.Left() + button.Width(), 6000);
    EXPECT_EQ(button.Top() + button.Height(), 4500);
    auto& frame = host.child("frmhist");
    EXPECT_EQ(frame.Width(), 6000);
    EXPECT_EQ(frame.Height(), 4500);
    auto& outer = host.child("histPic");
    EXPECT_EQ(outer.Left(), 120);
    EXPECT_EQ(outer.Top(), 240);
    EXPECT_EQ(outer.Width(), 6000 - 240);
    EXPECT_EQ(outer.Height(), 4500 - 360);
    auto& plot = host.child("PLOTA");
    EXPECT_EQ(plot.Width(), 5760 / 15 - plot.Left() - 40);
    EXPECT_EQ(plot.Height(), 4140 / 15 - plot.Top() - 40);
    EXPECT_EQ(to_double(get_member(plot, "ScaleWidth")), plot.Width());
    EXPECT_EQ(to_double(get_member(plot, "ScaleHeight")), plot.Height());

    double const w = plot.Width(), h = plot.Height();
    auto const points = [&](std::string_view name, std::optional<int> index = {}) {
        auto const& line = host.child<LineShape>(name, index);
        return std::vector{line.X1(), line.Y1(), line.X2(), line.Y2()};
    };
    EXPECT_EQ(points("Line1", 0), (std::vector{0.0, 0.0, 0.0, h}));
    EXPECT_EQ(points("Line1", 1), (std::vector{0.0, 0.0, w, 0.0}));
    EXPECT_EQ(points("Line1", 2), (std::vector{w - 1, 0.0, w - 1, h}));
    EXPECT_EQ(points("Line1", 3), (std::vector{0.0, h - 1, w, h - 1}));
    double const x = plot.Left(), y = plot.Top() + h - 1;
    EXPECT_EQ(points("Line2"), (std::vector{x, y, x - 7, y}));
    EXPECT_EQ(points("Line3"), (std::vector{x, y, x, y + 7}));
}

TEST(ZvHistogramLayout, BelowTwoThousandInOneDirectionItJumpsTo2100InThatDirection)
{
    HostedHistogram host(1999, 3000);
    EXPECT_EQ(host.control.window().Width(), 2100);
    EXPECT_EQ(host.control.window().Height(), 3000);
    EXPECT_EQ(host.child("frmhist").Width(), 2100); // and the layout follows
    host.control.window().resize(2000, 100);
    EXPECT_EQ(host.control.window().Width(), 2000);
    EXPECT_EQ(host.control.window().Height(), 2100);
}

TEST(ZvHistogramLayout, EndsQuietlyOnAFailure)
{
    HeadlessPlatform platform;
    ZvHistogram control(platform);
    control.window().resize(6000, 4500);
    control.SetChartDim(1000, std::numeric_limits<double>::infinity()); // no picture is that high
    auto const failures = platform.take_failures(control.record());
    ASSERT_EQ(failures.size(), 1u);
    EXPECT_EQ(failures[0].where, "layout: all");
    EXPECT_EQ(failures[0].kind, FailureKind::Overflow);
}

TEST(ZvHistogramLayout, StopsWhereTheHostKeepsTheControlSmall)
{
    HostedHistogram host;
    host.control.window().host_allows_size = false;
    host.control.window().resize(1000, 3000);
    EXPECT_EQ(host.control.window().Width(), 1000);
    EXPECT_EQ(host.child("frmhist").Width(), 6000);
}

TEST_F(PlottedHistogram, AChartDimensionTakesTopAndHeightFromAnotherChart)
{
    double const left = host.child("PLOTA").Left();
    control.SetChartDim(1240, 1500);
    auto const& plot = host.child("PLOTA");
    EXPECT_EQ(plot.Left(), left);
    EXPECT_EQ(plot.Top(), (1240.0 - 240) / 15);
    EXPECT_EQ(plot.Height(), 100);
    EXPECT_EQ(plot.Width(), 5760 / 15 - left - 20);
    EXPECT_TRUE(has_drawn());
    control.window().resize(9000, 6000);
    EXPECT_EQ(plot.Height(), 100);
}

TEST_F(NewHistogram, AChartDimensionWithoutTopLeavesTheOrdinaryLayout)
{
    double const height = host.child("PLOTA").Height();
    control.SetChartDim(0, 1500);
    EXPECT_EQ(host.child("PLOTA").Height(), height);
}

TEST_F(PlottedHistogram, CountsOfFourDigitsFitLeftOfThePlotAndBothLinesOfTextUnderIt)
{
    constexpr double digit_px = 6, line_px = 14; // Arial of 8 points at 96 dots per inch
    auto const& plot = host.child("PLOTA");
    EXPECT_GE(plot.Left(), 2 * 4 * digit_px);
    double const outer_height = host.child("histPic").Height() / 15;
    EXPECT_LE(plot.Height() + 30 + line_px, outer_height);
    EXPECT_GE(plot.Height() + 20, plot.Top() + plot.Height() + 4 + 2); // under the ticks
}

// --- Data, events, printing, saving --------------------------------------------------------------------------------

TEST_F(PlottedHistogram, NewDataAndClearEmptyTheInnerPicture)
{
    load(control, ten_sites);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
    control.Plot();
    host.take_record("PLOTA");
    control.clear();
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
    control.SetPlotLimit(1, 2);
    EXPECT_FALSE(has_drawn()); // no plot is requested any more
}

TEST_F(NewHistogram, EventsOfControlFrameAndPicturesReachTheHostAndThoseOfTheButtonDoNot)
{
    for (auto const* const name : {"PLOTA", "histPic", "frmhist", "Command1"})
        host.child(name).raise("Click");
    control.window().raise("DblClick");
    host.child("histPic").raise("MouseMove");
    EXPECT_EQ(host.events, (Names{"Click", "Click", "Click", "DblClick", "MouseMove"}));
}

TEST_F(NewHistogram, APrintTestsTheSizeBeforeTheData)
{
    BooleanWord frame = true;
    EXPECT_EQ(control.PrintPlot(0, 0, 5000, 5000, frame), 2);
    EXPECT_EQ(control.PrintPlot_THN(0, 0, 5000, 5000), 2);
    control.window().host_allows_size = false;
    control.window().resize(host.child("Command1").Width() - 1, 3000);
    EXPECT_EQ(control.PrintPlot(0, 0, 5000, 5000, frame), 1);
    control.window().resize(host.child("Command1").Width(), 99);
    EXPECT_EQ(control.PrintPlot_THN(0, 0, 5000, 5000), 1);
    control.window().resize(host.child("Command1").Width(), 100);
    EXPECT_EQ(control.PrintPlot(0, 0, 5000, 5000, frame), 2);
    load(control, ten_sites);
    control.PrinterObj(nullptr);
    EXPECT_EQ(control.PrintPlot(0, 0, 5000, 5000, frame), 2);
}

TEST_F(NewHistogram, EverySettingSurvivesTheStore)
{
    control.BackColor(0x112233);
    control.PanelSizeX(150);
    control.PanelSizeY(100);
    control.PlotType(PlotTyEnum::vbLeft);
    control.Resolution(25);
    control.BeamColor(1);
    control.GaussCurveColor(2);
    control.HideLegend(true);
    control.MousePointer(3);
    PropertyBag store;
    control.WriteProperties(store);
    Names keys;
    for (auto const& entry : store.entries())
        keys.push_back(entry.key);
    EXPECT_EQ(keys, (Names{"BackColor", "PanelSizeX", "PanelSizeY", "StdPlotType", "StdStatResol", "StdBeamColor",
                           "StdGaussCurveColor", "Legend", "MousePointer", "MouseIcon"}));
    HostedHistogram other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.BackColor(), 0x112233);
    EXPECT_EQ(other.control.PanelSizeX(), 150);
    EXPECT_EQ(other.control.PanelSizeY(), 100);
    EXPECT_EQ(other.control.PlotType(), PlotTyEnum::vbLeft);
    EXPECT_EQ(other.control.Resolution(), 25);
    EXPECT_EQ(other.control.BeamColor(), 1);
    EXPECT_EQ(other.control.GaussCurveColor(), 2);
    EXPECT_TRUE(other.control.HideLegend());
    EXPECT_EQ(other.control.MousePointer(), 3);
}

} // namespace zendara::test
