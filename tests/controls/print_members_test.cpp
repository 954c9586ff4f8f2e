// The print members of the nine controls: what they test first, and which routine of the page gets which settings.
#include "all_controls.hpp"
#include "control_fixture.hpp"
#include "zendara/print/print_panel.hpp"

#include <array>
#include <functional>

namespace zendara::test
{

namespace
{

using Lines = std::vector<std::string>;

std::vector<Site> const ten_sites = random_sites(10, 300, 200, 7);
constexpr double left = 1000, top = 2000, width = 5000, height = 4000;

/// A control with data and a recording printer. What it prints is compared with a page that is printed by hand.
template <class C> struct Printing {
    Hosted<C> host;
    C& control = host.control;
    std::unique_ptr<Recorder> printer = Recorder::printer(10, 5);
    BooleanWord framed = true;
    BooleanWord unframed = false;

    Printing()
    {
        load(control, ten_sites);
        control.PrinterObj(printer.get());
    }

    Lines printed() { return text_of(printer->take_record()); }

    static Lines by_hand(std::function<void(PrintPanel&)> const& routine)
    {
        auto const page = Recorder::printer(10, 5);
        PrintPanel paper;
        paper.PrinterObj = page.get();
        routine(paper);
        return text_of(page->take_record());
    }
};

} // namespace

TEST(PrintMembersOfZvPlot2D, PassTheRasterTheMarksAndTheCaption)
{
    Printing<ZvPlot2D> on;
    on.control.ResolutionX(10);
    on.control.ResolutionY(20);
    on.control.ShowSites(Sites::MarkSites);
    on.control.PlotCaption("Film");
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_2DPlot(on.control.record(), left, top, width, height, 10, 20, "Film", -1, true);
    }));
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.unframed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_2DPlot(on.control.record(), left, top, width, height, 10, 20, "Film", -1, false);
    }));
    EXPECT_EQ(on.control.PrintGridPlot(left, top, width, height), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_GridPosPlot(on.control.record(), left, top, width, height, "Film");
    }));
}

TEST(PrintMembersOfZvPlot2D, NeedNoPlotOnTheScreenAndDrawNone)
{
    Printing<ZvPlot2D> on;
    on.host.take_record("PLOTA");
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_FALSE(on.printed().empty());
    EXPECT_TRUE(on.host.take_record("PLOTA").empty());
    EXPECT_TRUE(on.host.changes.empty());
}

TEST(PrintMembersOfZvPlot2DS, PassTheSigmaRangeToPlotAndLegend)
{
    Printing<ZvPlot2DS> on;
    on.control.SigmaRange(0.75);
    on.control.ResolutionX(10);
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_2DSigmaPlot(on.control.record(), left, top, width, height, 10, 5, 0.75, "Panel", 0, true);
    }));
    EXPECT_EQ(on.control.PrintLegend(left, top, on.framed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.DrawSigmaLegend(on.control.record(), left, top, 0.75, true);
    }));
}

TEST(PrintMembersOfZvPlot2DC, PassTheReverseOfIntervalInPercent)
{
    for (bool const is_in_percent : {true, false}) {
        Printing<ZvPlot2DC> on;
        on.control.Interval(3);
        on.control.IntervalInPercent(is_in_percent);
        on.control.MeasurementUnit("nm");
        on.control.marksites(ContourMarks::None);
        on.control.Resolution(ContourResolution::Automatic);
        on.control.PlotColored(ContourColors::Ten_ColorPlot);
        EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
        EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
            paper.Print_Contour(on.control.record(), left, top, width, height, 3, !is_in_percent, "nm", 3, 2, 2,
                                "Panel", true);
        }));
        std::string info(40, 'i');
        std::string same_info = info;
        EXPECT_EQ(on.control.PrintPlot_THN(left, top, width, height, info), 0);
        EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
            paper.Print_Contour_THN(on.control.record(), left, top, width, height, 3, !is_in_percent, 3, 2, 2, "Panel",
                                    same_info, true);
        }));
        EXPECT_EQ(info, std::string(30, 'i')); // comes back as it was written
    }
}

TEST(PrintMembersOfZvPlot2DV, PrintValuesAndSiteNumbers)
{
    Printing<ZvPlot2DV> on;
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_2DVPlot(on.control.record(), left, top, width, height, "Panel", true);
    }));
    for (auto* const frame : {&on.framed, &on.unframed}) {
        EXPECT_EQ(on.control.PrintGridNumber(left, top, width, height, *frame), 0);
        EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
            paper.Print_2DVGridPlot(on.control.record(), left, top, width, height, "Panel", *frame);
        }));
    }
}

TEST(PrintMembersOfZvPlot3D, PassTypeRasterScaleAndAngles)
{
    Printing<ZvPlot3D> on;
    on.control.PlotType(PlotTypeEnum::WireFrame);
    on.control.XResolution(10);
    on.control.YResolution(20);
    on.control.PlotScale(30);
    on.control.GridRotation(50);
    on.control.GridInclination(60);
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_3DPlot(on.control.record(), left, top, width, height, 3, 10, 20, 30, 50, 60, "Panel", true);
    }));
}

TEST(PrintMembersOfZvPlot3DS, TurnTheFigureAsThePlotWhateverPanelRotationIs)
{
    Printing<ZvPlot3DS> on;
    on.control.SigmaRange(0.75);
    on.control.GridRotation(50);
    on.control.GridInclination(60);
    on.control.PanelRotation(10);
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_3DSigmaPlot(on.control.record(), left, top, width, height, 5, 5, 40, 50, 60, 0.75, "Panel", true);
    }));
}

TEST(PrintMembersOfZvPlot3DB, PassBarsAndAngles)
{
    Printing<ZvPlot3DB> on;
    on.control.BeamWidth(6);
    on.control.BeamHeight(7);
    on.control.BeamScale(0.5);
    on.control.GridRotation(50);
    on.control.GridInclination(60);
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_2DBPlot(on.control.record(), left, top, width, height, 6, 7, 0.5, 50, 60, "Panel", true);
    }));
}

TEST(PrintMembersOfZvHistogram, PassTypeBinsAndTheFramesCaption)
{
    Printing<ZvHistogram> on;
    on.control.PlotType(PlotTyEnum::vbLeft);
    on.control.Resolution(6);
    on.host.child("frmhist").caption("Film");
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_Histo(3, on.control.record(), left, top, width, height, 6, 6000, "Film", true);
    }));
    EXPECT_EQ(on.control.PrintPlot_THN(left, top, width, height), 0);
    EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
        paper.Print_Histo_THN(3, on.control.record(), left, top, width, height, 6, 6000, "Film");
    }));
}

TEST(PrintMembersOfZvHistogram, PrintTheBlocksAndNoLegend)
{
    Printing<ZvHistogram> on;
    EXPECT_EQ(on.control.PrintPanelSize(left, top), 0);
    EXPECT_EQ(on.printed(),
              on.by_hand([&](PrintPanel& paper) { paper.DrawPanelSize(on.control.record(), left, top); }));
    EXPECT_EQ(on.control.host_interface().find("PrintLegend"), nullptr);
}

TEST(PrintMembersOfZvLineScan, PassBothFormsOfTheLine)
{
    Printing<ZvLineScan> on;
    on.control.SetLineOrAngle(1, 30, 11, 12, 0, 0, 0, 0);
    on.control.SetLineOrAngle(2, 0, 0, 0, 13, 14, 15, 16);
    on.control.ShowSites(Sites::MarkSites);
    on.control.PlotCaption("Film");
    for (std::int16_t const form : std::array<std::int16_t, 2>{1, 2}) {
        on.control.PlotType(static_cast<PlotTypeEnumLineScan>(form));
        EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
        EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
            paper.Print_1DPlot(on.control.record(), 30, form, 11, 12, 13, 14, 15, 16, true, "Film", left, top, width,
                               height, true);
        }));
    }
    EXPECT_EQ(on.control.host_interface().find("PrintLegend"), nullptr);
}

// --- What the controls have in common ------------------------------------------------------------------------------

namespace
{

template <class C> struct PrintingControl : testing::Test {
    Printing<C> on;
};
TYPED_TEST_SUITE(PrintingControl, AllControls);

/// What stands beside a plot refuses with 1.
template <class C> void expect_no_block(Printing<C>& on)
{
    EXPECT_EQ(on.control.PrintPanelStatistic(left, top, "nm"), 1);
    EXPECT_EQ(on.control.PrintPanelSize(left, top), 1);
    if constexpr (HasLegend<C>) {
        EXPECT_EQ(on.control.PrintLegend(left, top, on.framed), 1);
    }
}

template <class C> struct ControlWithIntervals : testing::Test {
    Printing<C> on;
};
using IntervalControls = testing::Types<ZvPlot2D, ZvPlot2DC, ZvPlot2DV, ZvPlot3D, ZvPlot3DB>;
TYPED_TEST_SUITE(ControlWithIntervals, IntervalControls);

template <class C> struct ControlOf750Twips : testing::Test {
    Printing<C> on;
};
using ControlsOf750Twips =
    testing::Types<ZvPlot2D, ZvPlot2DS, ZvPlot2DC, ZvPlot2DV, ZvPlot3D, ZvPlot3DS, ZvPlot3DB, ZvLineScan>;
TYPED_TEST_SUITE(ControlOf750Twips, ControlsOf750Twips);

} // namespace

TYPED_TEST(PrintingControl, PrintsStatisticsAndKeepsTheirUnitInThePanel)
{
    auto& on = this->on;
    EXPECT_EQ(on.control.PrintPanelStatistic(left, top, "nm"), 0);
    EXPECT_EQ(on.control.record().Meas_unit, "nm");
    EXPECT_EQ(on.printed(),
              on.by_hand([&](PrintPanel& paper) { paper.DrawPanelStatistics(on.control.record(), left, top); }));
}

TYPED_TEST(PrintingControl, WithoutAPrinterNothingIsPrintedAndTheUnitStays)
{
    auto& on = this->on;
    on.control.PrinterObj(nullptr);
    on.control.record().Meas_unit = "um";
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 2);
    expect_no_block(on);
    EXPECT_EQ(on.control.record().Meas_unit, "um");
}

TYPED_TEST(PrintingControl, WithoutSitesNothingIsPrinted)
{
    auto& on = this->on;
    on.control.record().reset();
    on.control.record().SetNop(0);
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 2);
    expect_no_block(on);
    EXPECT_TRUE(on.printed().empty());
}

TYPED_TEST(ControlWithIntervals, PrintsTheTenIntervalsWithAndWithoutAFrame)
{
    auto& on = this->on;
    for (auto* const frame : {&on.framed, &on.unframed}) {
        EXPECT_EQ(on.control.PrintLegend(left, top, *frame), 0);
        EXPECT_EQ(on.printed(), on.by_hand([&](PrintPanel& paper) {
            paper.DrawColoredLegend(on.control.record(), left, top, *frame);
        }));
    }
}

TYPED_TEST(ControlOf750Twips, IsLargeEnoughAndASmallerOneIsRefusedWhateverTheBoxOnPaperIs)
{
    auto& on = this->on;
    auto& window = on.control.window();
    window.Move(0, 0, 750, 750);
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 0);
    EXPECT_FALSE(on.printed().empty());
    for (auto const& [control_width, control_height] : {std::pair{749.0, 6000.0}, {6000.0, 749.0}}) {
        window.Move(0, 0, control_width, control_height);
        EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 1);
        EXPECT_TRUE(on.printed().empty());
        EXPECT_EQ(on.control.PrintPanelSize(left, top), 0); // blocks do not ask for the size
        on.printed();
    }
    on.control.PrinterObj(nullptr);
    EXPECT_EQ(on.control.PrintPlot(left, top, width, height, on.framed), 2); // data and printer come first
}

} // namespace zendara::test
