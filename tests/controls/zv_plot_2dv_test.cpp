#include "control_fixture.hpp"
#include "zendara/controls/zv_plot_2dv.hpp"

namespace zendara::test
{

namespace
{

using Names = std::vector<std::string>;

std::vector<Site> const twenty_sites = random_sites(20, 300, 200, 22);

struct PlottedNumbers : testing::Test {
    Hosted<ZvPlot2DV> host;
    ZvPlot2DV& control = host.control;

    void SetUp() override
    {
        load(control, twenty_sites);
        host.take_record("PLOTA");
        ASSERT_EQ(control.Plot(), 0);
    }

    bool has_drawn() { return !only(host.take_record("PLOTA"), "Text").empty(); }
};

} // namespace

TEST_F(PlottedNumbers, ShowsTheNumbersOfTheSites)
{
    auto const by_control = host.take_record("PLOTA");
    auto const& picture = host.child("PLOTA");
    auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
    control.record().D2Number(*surface, 0, 0, 0, 0, 0);
    surface->Refresh();
    EXPECT_EQ(text_of(by_control), text_of(surface->take_record()));
}

TEST_F(PlottedNumbers, NeitherShowPlotOptionNorTheButtonDoesAnything)
{
    host.take_record("PLOTA");
    control.ShowPlotOption();
    host.child("Command1").raise("Click");
    EXPECT_TRUE(host.take_record("PLOTA").empty());
    EXPECT_TRUE(host.events.empty());
    EXPECT_TRUE(host.changes.empty());
    EXPECT_EQ(host.child("Command1").caption(), "Plot- Options");
}

TEST_F(PlottedNumbers, AnEmptyWidthBecomes300AndAnEmptyHeight200)
{
    control.PanelSizeX(0);
    control.PanelSizeY(0);
    control.Plot();
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 200);
}

TEST_F(PlottedNumbers, AClickOnThePlotRaisesNothingAndOneOnTheFrameDoes)
{
    host.child("PLOTA").raise("Click");
    host.child("PLOTA").raise("MouseDown");
    EXPECT_TRUE(host.events.empty());
    host.child("Frplot").raise("Click");
    host.child("frmove").raise("MouseUp");
    control.window().raise("DblClick");
    control.window().raise("Click");
    EXPECT_EQ(host.events, (Names{"Click", "MouseUp", "DblClick"}));
}

TEST_F(PlottedNumbers, ABackColourMakesTheNextPlotDrawAnew)
{
    host.take_record("PLOTA");
    control.BackColor(255);
    EXPECT_EQ(host.changes, Names{"BackColor"});
    EXPECT_FALSE(has_drawn());
    control.Plot();
    EXPECT_TRUE(has_drawn());
}

TEST_F(PlottedNumbers, ItHasNoRasterAndPrintsSiteNumbersInstead)
{
    auto const& table = control.host_interface();
    for (auto const* const name : {"ResolutionX", "ResolutionY", "ShowSites", "PrintGridPlot"})
        EXPECT_EQ(table.find(name), nullptr) << name;
    EXPECT_EQ(table.members.back().name, "PrintGridNumber");
    control.PrinterObj(nullptr);
    BooleanWord frame = true;
    EXPECT_EQ(control.PrintGridNumber(0, 0, 1000, 1000, frame), 2);
}

} // namespace zendara::test
