#include "control_fixture.hpp"
#include "zendara/controls/zv_plot_2d.hpp"
#include "zendara/support/number_text.hpp"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace zendara::test
{

namespace
{

using Hosted2D = Hosted<ZvPlot2D>;
using Names = std::vector<std::string>;

std::vector<Site> const ten_sites = random_sites(10, 300, 200, 11);

struct PlottedControl : testing::Test {
    Hosted2D host;
    ZvPlot2D& control = host.control;

    void SetUp() override
    {
        load(control, ten_sites);
        ASSERT_EQ(control.Plot(), 0);
        host.take_record("PLOTA");
    }
};

struct NewControl : testing::Test {
    Hosted2D host;
    ZvPlot2D& control = host.control;
};

} // namespace

// --- A new control -------------------------------------------------------------------------------------------------

TEST_F(NewControl, StartsWithThePublishedValues)
{
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.TestSizeX(), 300);
    EXPECT_EQ(control.TestSizeY(), 200);
    EXPECT_EQ(control.ResolutionX(), 5);
    EXPECT_EQ(control.ResolutionY(), 5);
    EXPECT_EQ(control.ShowSites(), Sites::HideSites);
    EXPECT_FALSE(control.HideLegend());
    EXPECT_EQ(control.PlotCaption(), "Panel");
}

TEST(HelpFileName, LooksOneLetterShortOfTheEndForItsBackslash)
{
    EXPECT_EQ(help_file_name("C:\\App"), "C:\\App\\zendara.hlp");
    EXPECT_EQ(help_file_name("C:\\App\\"), "C:\\App\\\\zendara.hlp");
    EXPECT_EQ(help_file_name("C:\\A"), "C:\\Azendara.hlp");
    EXPECT_EQ(help_file_name(""), "\\zendara.hlp");
}

TEST_F(NewControl, PrintsToTheDefaultPrinterUntilTheHostSetsAnother)
{
    EXPECT_EQ(control.PrinterObj(), host.platform.default_printer());
    control.PrinterObj(nullptr);
    EXPECT_EQ(control.PrinterObj(), nullptr);
}

// --- Plot ----------------------------------------------------------------------------------------------------------

TEST_F(NewControl, DrawsTheMapOfItsSettings)
{
    load(control, ten_sites);
    control.ResolutionX(30);
    control.ResolutionY(20);
    control.ShowSites(Sites::MarkSites);
    host.take_record("PLOTA");
    control.Plot();
    auto const by_control = host.take_record("PLOTA");

    auto const surface = Recorder::picture({0, 0, host.child("PLOTA").Width() / 15, host.child("PLOTA").Height() / 15});
    control.record().D2Plot(*surface, 30, 20, 5, 0, -1, 0, 0, 0, 0, 0);
    EXPECT_EQ(text_of(by_control), text_of(surface->take_record()));
}

TEST_F(NewControl, DrawsThePanelFigureFlat)
{
    load(control, ten_sites);
    host.take_record("FNPic");
    control.Plot();
    auto const& picture = host.child("FNPic");
    auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
    control.record().GridPosShow(nullptr, *surface, 0, 90);
    EXPECT_EQ(text_of(host.take_record("FNPic")), text_of(surface->take_record()));
    EXPECT_EQ(host.child("FNLabel").caption(), "Panel");
}

TEST_F(NewControl, LetsOtherMessagesInOnceUnderTheHourglassWithoutTheOptionsButton)
{
    load(control, ten_sites);
    control.MousePointer(5);
    int turns = 0;
    host.platform.on_do_events = [&] {
        ++turns;
        EXPECT_EQ(control.MousePointer(), 11);
        EXPECT_FALSE(host.child("Command1").Visible());
    };
    control.Plot();
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(control.MousePointer(), 0);
    EXPECT_TRUE(host.child("Command1").Visible());
}

TEST_F(NewControl, APanelWithoutSizeGetsAHeightOf200AndNoWidth)
{
    load(control, ten_sites);
    control.PanelSizeX(0);
    control.PanelSizeY(0);
    control.Plot();
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.PanelSizeX(), 0);
}

TEST_F(NewControl, APanelWithoutHeightGetsAWidthOf300AndNoHeight)
{
    load(control, ten_sites);
    control.PanelSizeY(0);
    control.PanelSizeX(100);
    control.Plot();
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 0);
}

// --- Setters -------------------------------------------------------------------------------------------------------

TEST_F(NewControl, AResolutionOf0OrBelowIsStoredAs5)
{
    control.ResolutionX(0);
    control.ResolutionY(-1);
    EXPECT_EQ(control.ResolutionX(), 5);
    EXPECT_EQ(control.ResolutionY(), 5);
}

TEST_F(NewControl, AResolutionIsAtMostAQuarterOfTheTestedArea)
{
    control.TestSizeX(200);
    control.ResolutionX(100);
    EXPECT_EQ(control.ResolutionX(), 50);
    control.TestSizeY(10);
    control.ResolutionY(0);
    EXPECT_EQ(control.ResolutionY(), 2.5);
}

TEST_F(NewControl, PanelSizesSetTheTestedAreaAndTestSizesDoNotSetThePanel)
{
    control.PanelSizeX(100);
    EXPECT_EQ(control.TestSizeX(), 100);
    EXPECT_EQ(control.record().HalfTestSizeX, 50);
    control.TestSizeX(80);
    EXPECT_EQ(control.PanelSizeX(), 100);
    EXPECT_EQ(control.record().HalfTestSizeX, 40);
    control.PanelSizeY(60);
    control.TestSizeY(40);
    EXPECT_EQ(control.PanelSizeY(), 60);
    EXPECT_EQ(control.record().HalfTestSizey, 20);
}

TEST_F(PlottedControl, APanelSizeTakesThePlotAway)
{
    control.PanelSizeX(290);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
    control.SetPlotLimit(1, 2);
    EXPECT_FALSE(host.has_drawn()); // no plot is requested any more
}

TEST_F(PlottedControl, SettingsWaitForTheNextPlot)
{
    auto const draws_after = [&](auto&& set) {
        set();
        EXPECT_FALSE(host.has_drawn());
        control.Plot();
        return host.has_drawn();
    };
    EXPECT_TRUE(draws_after([&] { control.ResolutionX(10); }));
    EXPECT_TRUE(draws_after([&] { control.ResolutionY(10); }));
    EXPECT_TRUE(draws_after([&] { control.ShowSites(Sites::MarkSites); }));
    EXPECT_TRUE(draws_after([&] { control.IntervalColor3(77); }));
    EXPECT_TRUE(draws_after([&] { control.TestSizeX(280); }));
    EXPECT_TRUE(draws_after([&] { control.TestSizeY(180); }));
    EXPECT_TRUE(draws_after([&] { control.SetPlotNotVaild(); }));
    EXPECT_FALSE(draws_after([&] { control.PlotCaption("other"); }));
    EXPECT_FALSE(draws_after([&] { control.BackColor(255); }));
}

TEST_F(NewControl, TheIntervalColoursAreThoseOfThePanelFromTheTopDown)
{
    control.IntervalColor0(1);
    control.IntervalColor1(2);
    control.IntervalColor9(10);
    EXPECT_EQ(control.record().col1, 1);
    EXPECT_EQ(control.record().col2, 2);
    EXPECT_EQ(control.record().col10, 10);
    EXPECT_EQ(control.IntervalColor8(), QBColor(1));
}

TEST_F(NewControl, TheBackColourGoesToEverythingButThePlot)
{
    control.BackColor(0x123456);
    for (auto const* const name : {"frmove", "legende", "FNPic", "FNLabel", "Frplot", "frleg", "Frame1"})
        EXPECT_EQ(host.child(name).BackColor(), 0x123456) << name;
    EXPECT_EQ(control.BackColor(), 0x123456);
    EXPECT_NE(host.child("PLOTA").BackColor(), 0x123456);
}

// --- Resolution check ----------------------------------------------------------------------------------------------

TEST_F(NewControl, ResolutionsTooHighForTheTestedAreaAreLoweredWithAMessage)
{
    load(control, ten_sites);
    struct Case {
        double width, height;
        std::string text;
    };
    for (auto const& [width, height, text] : std::vector<Case>{
             {10, 8, "Maximal possible Resolutionx is 2.5 mm and the maximal possible ResolutionY is 2 mm"},
             {10, 200, "Maximal possible Resolutionx is 2.5 mm"},
             {300, 8, "Maximal possible ResolutionY is 2 mm"},
         }) {
        control.TestSizeX(300);
        control.TestSizeY(200);
        control.ResolutionX(5);
        control.ResolutionY(5);
        control.TestSizeX(width);
        control.TestSizeY(height);
        control.Plot();
        auto const messages = host.platform.take_messages();
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_EQ(messages[0].text, text);
        EXPECT_EQ(messages[0].title, "Standard resolution to high ");
        EXPECT_EQ(messages[0].style, 64 + 4096);
        EXPECT_EQ(control.ResolutionX(), width == 10 ? 2.5 : 5);
        EXPECT_EQ(control.ResolutionY(), height == 8 ? 2 : 5);
    }
}

TEST_F(NewControl, AnAxisWithoutExtentIsNoLimitAndNoMessageNames0)
{
    load(control, ten_sites);
    control.TestSizeX(0);
    control.TestSizeY(8);
    control.Plot();
    auto const messages = host.platform.take_messages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "Maximal possible ResolutionY is 2 mm");
    EXPECT_EQ(control.ResolutionX(), 5);
    control.TestSizeY(-8);
    control.Plot();
    EXPECT_TRUE(host.platform.take_messages().empty());
}

TEST_F(NewControl, AResolutionOfJustAQuarterPassesWithoutAWord)
{
    load(control, ten_sites);
    control.TestSizeX(20);
    control.TestSizeY(20);
    control.Plot();
    EXPECT_TRUE(host.platform.take_messages().empty());
}

// --- Layout --------------------------------------------------------------------------------------------------------

TEST(ZvPlot2DLayout, ATooSmallControlGrowsTo4500By3180)
{
    Hosted2D host(4000, 3000);
    EXPECT_EQ(host.control.window().Width(), 4500);
    EXPECT_EQ(host.control.window().Height(), 3180);
}

TEST(ZvPlot2DLayout, OnlyTheDirectionThatIsTooSmallGrows)
{
    Hosted2D host(4000, 5000);
    EXPECT_EQ(host.control.window().Width(), 4500);
    EXPECT_EQ(host.control.window().Height(), 5000);
}

TEST(ZvPlot2DLayout, StopsWhereTheHostKeepsTheControlSmall)
{
    Hosted2D host;
    double const before = host.child("PLOTA").Width();
    host.control.window().host_allows_size = false;
    host.control.window().resize(4000, 3000);
    EXPECT_EQ(host.control.window().Width(), 4000);
    EXPECT_EQ(host.child("PLOTA").Width(), before);
}

TEST(ZvPlot2DLayout, PlacesTheColumnAtTheRightAndThePlotInASquareBesideIt)
{
    Hosted2D host(12000, 9000);
    auto& column = host.child("frmove");
    EXPECT_EQ(host.child("legende").Width(), 1890);
    EXPECT_EQ(host.child("frleg").Width(), 1890 + 240);
    EXPECT_EQ(host.child("Frame1").Width(), 1890 + 240 + 210);
    EXPECT_EQ(column.Width(), 2340);
    EXPECT_EQ(column.Left(), 12000 - 2340);
    EXPECT_EQ(column.Top(), 0);
    EXPECT_EQ(column.Height(), 9000); // so that clicks below the frame reach the host
    EXPECT_EQ(host.child("Frame1").Height(), 3180);
    EXPECT_EQ(host.child("Command1").Width(), 2130);
    EXPECT_EQ(host.child("FNLabel").Width(), 2130);
    auto& frame = host.child("Frplot");
    EXPECT_EQ(frame.Width(), 0.97 * 9000);
    EXPECT_EQ(frame.Height(), 9000);
    auto& plot = host.child("PLOTA");
    EXPECT_EQ(plot.Width(), frame.Width() - 2 * plot.Left());
    EXPECT_EQ(plot.Height(), 9000 - plot.Top() - plot.Left());
    auto& stored = host.child("RePlot");
    EXPECT_EQ(stored.Width(), plot.Width());
    EXPECT_EQ(stored.Height(), plot.Height());
    EXPECT_EQ(stored.Left(), plot.Left());
    EXPECT_EQ(stored.Top(), plot.Top());
}

TEST(ZvPlot2DLayout, ANarrowControlGivesThePlotWhatTheColumnLeaves)
{
    Hosted2D host(6000, 9000);
    EXPECT_EQ(host.child("Frplot").Height(), 6000 - 2340);
}

TEST(ZvPlot2DLayout, AWideLegendTextWidensTheColumn)
{
    Hosted2D host(12000, 9000);
    load(host.control, {{0, 0, -1e9}, {10, 10, 2e9}});
    host.control.Plot();
    auto& label = host.child("ScaleValue", 1);
    ASSERT_GT(label.Left() + label.Width(), 1890);
    EXPECT_EQ(host.child("legende").Width(), label.Left() + label.Width());
    EXPECT_EQ(host.child("frmove").Left(), 12000 - (label.Left() + label.Width() + 450));
}

TEST(ZvPlot2DLayout, WithoutTheLegendThePlotTakesTheSmallerSide)
{
    Hosted2D host(2000, 1000);
    EXPECT_EQ(host.control.window().Width(), 4500);
    host.control.HideLegend(true);
    EXPECT_FALSE(host.child("frmove").Visible());
    host.control.window().resize(2000, 1000);
    EXPECT_EQ(host.control.window().Width(), 2000);
    EXPECT_EQ(host.child("Frplot").Height(), 1000);
}

TEST(ZvPlot2DLayout, WithoutTheLegendTheSmallestControlIs750By750)
{
    Hosted2D host;
    host.control.HideLegend(true);
    double const before = host.child("Frplot").Height();
    host.control.window().resize(700, 2000);
    EXPECT_EQ(host.control.window().Width(), 750);
    EXPECT_EQ(host.control.window().Height(), 2000);
    EXPECT_EQ(host.child("Frplot").Height(), before); // and nothing else happens
}

TEST_F(PlottedControl, AfterAResizePlotDrawsInTheNewSizeOnceThePictureIsInvalid)
{
    control.window().resize(9000, 6000);
    control.Plot();
    EXPECT_FALSE(host.has_drawn());
    control.SetPlotNotVaild();
    control.Plot();
    EXPECT_TRUE(host.has_drawn());
    EXPECT_TRUE(host.child("PLOTA").Visible());
    EXPECT_FALSE(host.child("RePlot").Visible());
}

TEST_F(PlottedControl, AResizeWhileThePictureIsInvalidDraws)
{
    control.SetPlotNotVaild();
    control.window().resize(9000, 6000);
    EXPECT_TRUE(host.has_drawn());
}

TEST_F(NewControl, HidingTheLegendDrawsDataThatNoPlotHasShown)
{
    load(control, ten_sites);
    control.HideLegend(true);
    EXPECT_TRUE(host.has_drawn());
    EXPECT_TRUE(control.HideLegend());
}

TEST_F(PlottedControl, TheLegendShowsTheIntervalsOfTheData)
{
    auto const highest = control.Maximum();
    EXPECT_NE(host.child("ScaleValue", 1).caption().find(FormatFixed(highest, 6, 2, false)), std::string::npos)
        << host.child("ScaleValue", 1).caption();
    EXPECT_EQ(host.child("scalCol", 1).BackColor(), QBColor(4));
}

// --- Data ----------------------------------------------------------------------------------------------------------

TEST_F(PlottedControl, NewDataClearTheDisplay)
{
    control.window().resize(9000, 6000);
    ASSERT_TRUE(host.child("RePlot").Visible());
    load(control, ten_sites);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
    EXPECT_TRUE(host.child("PLOTA").Visible());
    EXPECT_FALSE(host.child("RePlot").Visible());
}

TEST_F(PlottedControl, ArraysOfOtherBoundsClearTheDisplayAndKeepTheData)
{
    HostArrays arrays(ten_sites);
    arrays.x.redim(0, 20);
    arrays.y.redim(0, 21);
    EXPECT_EQ(control.SetPanelData(arrays.x, arrays.y, arrays.z), 1);
    EXPECT_EQ(control.record().GetNop(), 10);
    EXPECT_EQ(control.Maximum(), control.record().maxi);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
}

TEST_F(PlottedControl, AFailedLoadFromArraysLeavesTheOldPicture)
{
    HostArrays arrays(ten_sites);
    arrays.z.redim(0, 4);
    EXPECT_EQ(control.SetPanelData(arrays.x, arrays.y, arrays.z), 4);
    EXPECT_TRUE(host.take_record("PLOTA").empty());
}

TEST_F(PlottedControl, AFailedLoadFromAFileClearsTheDisplay)
{
    EXPECT_EQ(control.SetDataFile("/no/such/folder/file.dat", 10), 4);
    EXPECT_EQ(only(host.take_record("PLOTA"), "Cls").size(), 1u);
    EXPECT_EQ(control.Plot(), 0); // the record is sized for ten sites, all zero
}

TEST_F(PlottedControl, ClearEmptiesTheDisplayAndKeepsTheData)
{
    control.clear();
    EXPECT_EQ(text_of(host.take_record("PLOTA")), Names{"Cls"});
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_TRUE(host.has_drawn());
}

TEST_F(NewControl, HandsTheSitesOutInArraysFrom1On)
{
    HostArray<double> x, y, z;
    EXPECT_EQ(control.GetPanelData(x, y, z), 0);
    EXPECT_FALSE(x.is_dimensioned());
    load(control, ten_sites);
    EXPECT_EQ(control.GetPanelData(x, y, z), 10);
    EXPECT_EQ(x.lower_bound(), 1);
    EXPECT_EQ(x.upper_bound(), 10);
    EXPECT_EQ(z(10), ten_sites[9].z);
}

TEST_F(NewControl, InterpolatesAtAnyPointFromNumbersAndTexts)
{
    load(control, ten_sites);
    EXPECT_EQ(control.Interpolation(3.5, -7.0), control.record().Interpolation(3.5, -7));
    EXPECT_EQ(control.Interpolation(std::string("3.5"), std::int16_t{-7}), control.record().Interpolation(3.5, -7));
    EXPECT_THROW(control.Interpolation(std::string("x"), 1.0), Failure);
}

// --- Statistics and limits -----------------------------------------------------------------------------------------

TEST_F(NewControl, ThePercentOfANegativeMeanIs0)
{
    load(control, {{0, 0, -1}, {1, 1, -3}});
    EXPECT_EQ(control.mean(), -2);
    EXPECT_EQ(control.StdDevPercent(), 0);
}

TEST_F(NewControl, HiLoLooksAtTheDataWhateverTheLimitsAre)
{
    load(control, {{0, 0, 1}, {1, 1, 3}});
    EXPECT_EQ(control.HiLo(), 50);
    control.SetPlotLimit(0, 100);
    EXPECT_EQ(control.HiLo(), 50);
    EXPECT_EQ(control.range(), 2);
    load(control, {{0, 0, -3}, {1, 1, 3}});
    EXPECT_EQ(control.HiLo(), 0);
}

TEST_F(PlottedControl, LimitsAreTakenAndDrawnAtOnce)
{
    EXPECT_TRUE(control.SetPlotLimit(480, 520));
    EXPECT_EQ(control.record().maximal, 520);
    EXPECT_EQ(control.record().minimal, 480);
    EXPECT_TRUE(host.has_drawn());
    EXPECT_EQ(host.child("ScaleValue", 1).caption().substr(host.child("ScaleValue", 1).caption().size() - 3), " > ");
}

TEST_F(PlottedControl, TheSameLimitsAgainAreRefusedWithoutDrawing)
{
    control.SetPlotLimit(480, 520);
    host.take_record("PLOTA");
    EXPECT_FALSE(control.SetPlotLimit(480, 520));
    EXPECT_FALSE(host.has_drawn());
}

TEST_F(PlottedControl, EqualLimitsAreRefusedButThePlotIsDrawnAgain)
{
    control.SetPlotLimit(480, 520);
    host.take_record("PLOTA");
    EXPECT_FALSE(control.SetPlotLimit(5, 5));
    EXPECT_EQ(control.record().maximal, 520);
    EXPECT_TRUE(host.has_drawn());
    load(control, ten_sites); // LimitsSet is False now: the load takes the data's own limits
    EXPECT_EQ(control.record().maximal, control.Maximum());
}

TEST_F(PlottedControl, LimitsOutliveNewData)
{
    control.SetPlotLimit(480, 520);
    load(control, {{0, 0, 1}, {1, 1, 3}});
    EXPECT_EQ(control.record().maximal, 520);
    EXPECT_EQ(control.record().minimal, 480);
    EXPECT_EQ(control.Maximum(), 3);
    EXPECT_EQ(control.Minimum(), 1);
}

TEST_F(PlottedControl, ReleasedLimitsAreThoseOfTheData)
{
    control.SetPlotLimit(480, 520);
    host.take_record("PLOTA");
    control.ReleasePlotLimit();
    EXPECT_EQ(control.record().maximal, control.Maximum());
    EXPECT_TRUE(host.has_drawn());
}

TEST_F(NewControl, LimitsBeforeAPlotDrawNothing)
{
    load(control, ten_sites);
    EXPECT_TRUE(control.SetPlotLimit(480, 520));
    EXPECT_FALSE(host.has_drawn());
}

// --- Events --------------------------------------------------------------------------------------------------------

TEST_F(NewControl, MouseEventsOfFourSourcesReachTheHostWithTheirArguments)
{
    std::vector<std::vector<Value>> seen;
    control.on_event = [&](std::string_view, std::span<Value> arguments) {
        seen.emplace_back(arguments.begin(), arguments.end());
        if (!arguments.empty())
            arguments[1] = std::int16_t{7}; // by reference
    };
    std::vector<Value> arguments = {std::int16_t{1}, std::int16_t{0}, 10.5F, 20.0F};
    for (auto const* const name : {"PLOTA", "frmove", "Frplot"})
        host.child(name).raise("MouseDown", arguments);
    control.window().raise("MouseUp", arguments);
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(std::get<float>(seen[0][2]), 10.5F);
    EXPECT_EQ(std::get<std::int16_t>(arguments[1]), 7);
}

TEST_F(NewControl, ClicksOfFourSourcesReachTheHostAndThoseOfTheLegendDoNot)
{
    for (auto const* const name : {"PLOTA", "frmove", "Frplot", "frleg", "FNPic", "Command1"})
        host.child(name).raise("Click");
    control.window().raise("Click");
    control.window().raise("DblClick");
    EXPECT_EQ(host.events, (Names{"Click", "Click", "Click", "Click", "DblClick"}));
}

// --- Print checks --------------------------------------------------------------------------------------------------

// --- Saving --------------------------------------------------------------------------------------------------------

TEST_F(NewControl, SavedAndReadBackThePanelSizesAreTheStoresDefaults)
{
    PropertyBag store;
    control.WriteProperties(store);
    Hosted2D other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.PanelSizeX(), 210);
    EXPECT_EQ(other.control.PanelSizeY(), 195);
    store.WriteProperty("PANELWD", 123.0, std::int16_t{210});
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.PanelSizeX(), 123);
}

TEST_F(NewControl, AFractionOfAResolutionSurvivesTheStore)
{
    control.ResolutionX(2.5);
    PropertyBag store;
    control.WriteProperties(store);
    Hosted2D other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.ResolutionX(), 2.5);
}

TEST_F(NewControl, EverySettingSurvivesTheStore)
{
    control.BackColor(0x112233);
    control.IntervalColor0(1);
    control.IntervalColor9(2);
    control.ShowSites(Sites::MarkSites);
    control.HideLegend(true);
    control.PlotCaption("caption");
    control.MousePointer(3);
    PropertyBag store;
    control.WriteProperties(store);
    Hosted2D other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.BackColor(), 0x112233);
    EXPECT_EQ(other.control.IntervalColor0(), 1);
    EXPECT_EQ(other.control.IntervalColor9(), 2);
    EXPECT_EQ(other.control.ShowSites(), Sites::MarkSites);
    EXPECT_TRUE(other.control.HideLegend());
    EXPECT_EQ(other.control.PlotCaption(), "caption");
    EXPECT_EQ(other.control.MousePointer(), 3);
}

TEST_F(NewControl, AnEmptyStoreGivesTheDefaults)
{
    control.BackColor(0x445566);
    control.IntervalColor0(1);
    control.PlotCaption("caption");
    control.ReadProperties(PropertyBag());
    EXPECT_EQ(control.BackColor(), 0x445566); // the present one
    EXPECT_EQ(control.IntervalColor0(), QBColor(4));
    EXPECT_EQ(control.PlotCaption(), "Panel");
    EXPECT_EQ(control.PanelSizeX(), 210);
}

TEST_F(NewControl, ReadingGoesThroughTheSettersAndTheirChecks)
{
    PropertyBag store;
    store.WriteProperty("StdResx2D", 1000.0, std::int16_t{5});
    store.WriteProperty("2DCaption", std::string("read"), std::string("Panel"));
    control.ReadProperties(store);
    EXPECT_EQ(control.ResolutionX(), 210.0 / 4);
    EXPECT_EQ(host.changes.front(), "BackColor");
    EXPECT_EQ(host.changes.back(), "MouseIcon");
    store.WriteProperty("StdResx2D", std::string("wide"), std::int16_t{5});
    EXPECT_THROW(control.ReadProperties(store), Failure);
}

} // namespace zendara::test
