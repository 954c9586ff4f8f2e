#include "control_fixture.hpp"
#include "zendara/controls/zv_plot_3ds.hpp"

namespace zendara::test
{

namespace
{

using Names = std::vector<std::string>;

std::vector<Site> const twelve_sites = random_sites(12, 300, 200, 11);

struct SigmaSurface : testing::Test {
    Hosted<ZvPlot3DS> host;
    ZvPlot3DS& control = host.control;

    std::vector<std::string> figure(double rotation, double inclination)
    {
        auto const& picture = host.child("FNPic");
        auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
        control.record().GridPosShow(nullptr, *surface, rotation, inclination);
        return text_of(surface->take_record());
    }

    std::vector<std::string> plot(double resx, double resy, double rotation, double sigma_range)
    {
        auto const& picture = host.child("PLOTA");
        auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
        control.record().D3Plot(*surface, resx, resy, 40, rotation, 35, 4, sigma_range, 0, 0, 0, 0, 0, 0);
        return text_of(surface->take_record());
    }
};

} // namespace

TEST_F(SigmaSurface, StartsWithThePublishedValues)
{
    EXPECT_EQ(control.XResolution(), 5);
    EXPECT_EQ(control.GridRotation(), 40);
    EXPECT_EQ(control.PanelRotation(), 40);
    EXPECT_EQ(control.GridInclination(), 35);
    EXPECT_EQ(control.PlotScale(), 40);
    EXPECT_EQ(control.SigmaRange(), 0.5);
}

TEST_F(SigmaSurface, ANegativeSigmaRangeBecomesAHalf)
{
    control.SigmaRange(-1);
    EXPECT_EQ(control.SigmaRange(), 0.5);
    control.SigmaRange(0);
    EXPECT_EQ(control.SigmaRange(), 0);
}

TEST_F(SigmaSurface, ThePanelsRotationGoesToAFullCircleAndThatOfThePlotToAQuarter)
{
    control.PanelRotation(359);
    EXPECT_EQ(control.PanelRotation(), 359);
    control.PanelRotation(360);
    EXPECT_EQ(control.PanelRotation(), 40);
    control.PanelRotation(200);
    EXPECT_EQ(control.PanelRotation(), 200);
    control.PanelRotation(-1);
    EXPECT_EQ(control.PanelRotation(), 0);
    control.GridRotation(200);
    EXPECT_EQ(control.GridRotation(), 40);
}

TEST_F(SigmaSurface, ThePanelsRotationTurnsTheFigureAndNotThePlot)
{
    load(control, twelve_sites);
    control.PanelRotation(200);
    control.SigmaRange(1.5);
    host.take_record("FNPic");
    host.take_record("PLOTA");
    control.Plot();
    EXPECT_EQ(text_of(host.take_record("FNPic")), figure(200, 35));
    EXPECT_EQ(text_of(host.take_record("PLOTA")), plot(5, 5, 40, 1.5));
}

TEST_F(SigmaSurface, ADragTurnsThePlotAndNotTheFigure)
{
    load(control, twelve_sites);
    control.PanelRotation(200);
    control.Plot();
    std::vector<Value> arguments = {std::int16_t{1}, std::int16_t{0}, 100.F, 100.F};
    host.child("PLOTA").raise("MouseDown", arguments);
    host.take_record("FNPic");
    host.take_record("PLOTA");
    arguments[2] = 50.F;
    host.child("PLOTA").raise("MouseMove", arguments);
    EXPECT_GT(control.GridRotation(), 91);
    EXPECT_EQ(control.PanelRotation(), 200);
    EXPECT_EQ(text_of(host.take_record("FNPic")), figure(200, 35));
    EXPECT_EQ(text_of(host.take_record("PLOTA")), plot(30, 20, control.GridRotation(), 0.5));
}

TEST_F(SigmaSurface, TheLegendShowsThreeBands)
{
    load(control, twelve_sites);
    control.Plot();
    EXPECT_TRUE(host.child("ScaleValue", 1).Visible());
    EXPECT_FALSE(host.child("ScaleValue", 2).Visible());
    EXPECT_EQ(host.child("scalCol", 1).BackColor(), QBColor(4));
    EXPECT_EQ(host.child("scalCol", 5).BackColor(), QBColor(1));
    control.IntervalColor0(7);
    EXPECT_EQ(control.record().ColS1, 7);
}

TEST_F(SigmaSurface, ResolutionsTooHighForTheTestedAreaAreLoweredWithAMessage)
{
    load(control, twelve_sites);
    control.XResolution(80);
    control.Plot();
    ASSERT_EQ(host.platform.take_messages().size(), 1u);
    EXPECT_EQ(control.XResolution(), 75);
}

TEST_F(SigmaSurface, EverySettingSurvivesTheStore)
{
    control.IntervalColor1(9);
    control.XResolution(2.5);
    control.YResolution(3.5);
    control.GridRotation(17);
    control.PanelRotation(317);
    control.GridInclination(81);
    control.SigmaRange(1.25);
    control.PlotScale(12);
    PropertyBag store;
    control.WriteProperties(store);
    Hosted<ZvPlot3DS> other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.IntervalColor1(), 9);
    EXPECT_EQ(other.control.XResolution(), 2.5);
    EXPECT_EQ(other.control.YResolution(), 3.5);
    EXPECT_EQ(other.control.GridRotation(), 17);
    EXPECT_EQ(other.control.PanelRotation(), 317);
    EXPECT_EQ(other.control.GridInclination(), 81);
    EXPECT_EQ(other.control.SigmaRange(), 1.25);
    EXPECT_EQ(other.control.PlotScale(), 12);
}

} // namespace zendara::test
