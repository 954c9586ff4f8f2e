#include "control_fixture.hpp"
#include "zendara/controls/zv_plot_3d.hpp"

namespace zendara::test
{

namespace
{

using Names = std::vector<std::string>;

std::vector<Site> const twelve_sites = random_sites(12, 300, 200, 11);

struct Surface3D : testing::Test {
    Hosted<ZvPlot3D> host;
    ZvPlot3D& control = host.control;

    std::vector<std::string> figure(double rotation, double inclination)
    {
        auto const& picture = host.child("FNPic");
        auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
        control.record().GridPosShow(nullptr, *surface, rotation, inclination);
        return text_of(surface->take_record());
    }

    std::vector<std::string> plot(double resx, double resy, double scale, double rotation, double inclination,
                                  std::int16_t style)
    {
        auto const& picture = host.child("PLOTA");
        auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
        control.record().D3Plot(*surface, resx, resy, scale, rotation, inclination, style, 0, 0, 0, 0, 0, 0, 0);
        return text_of(surface->take_record());
    }

    void load_and_forget_records()
    {
        load(control, twelve_sites);
        host.take_record("PLOTA");
        host.take_record("FNPic");
    }
};

} // namespace

TEST_F(Surface3D, StartsWithThePublishedValues)
{
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.XResolution(), 5);
    EXPECT_EQ(control.YResolution(), 5);
    EXPECT_EQ(control.GridRotation(), 40);
    EXPECT_EQ(control.GridInclination(), 35);
    EXPECT_EQ(control.PlotScale(), 40);
    EXPECT_EQ(control.PlotType(), PlotTypeEnum::PolyEdge);
    EXPECT_TRUE(control.EnableRotation);
    EXPECT_FALSE(control.HideLegend());
    EXPECT_EQ(control.PlotCaption(), "Panel");
}

TEST_F(Surface3D, AnglesBelow0Become0AndFrom92OnTheStandardOnes)
{
    control.GridRotation(91);
    control.GridInclination(91);
    EXPECT_EQ(control.GridRotation(), 91);
    EXPECT_EQ(control.GridInclination(), 91);
    control.GridRotation(92);
    control.GridInclination(92);
    EXPECT_EQ(control.GridRotation(), 40);
    EXPECT_EQ(control.GridInclination(), 35);
    control.GridRotation(-5);
    control.GridInclination(-5);
    EXPECT_EQ(control.GridRotation(), 0);
    EXPECT_EQ(control.GridInclination(), 0);
    control.GridRotation(100);
    control.GridInclination(100);
    EXPECT_EQ(control.GridRotation(), 40);
    EXPECT_EQ(control.GridInclination(), 35);
}

TEST_F(Surface3D, AnyResolutionTellsThePanelOfTheChange)
{
    control.record().changeResx = false;
    control.XResolution(5);
    EXPECT_TRUE(control.record().changeResx);
    control.record().changeResx = false;
    control.YResolution(7);
    EXPECT_TRUE(control.record().changeResx);
    control.record().changeResx = false;
    control.GridRotation(7);
    EXPECT_FALSE(control.record().changeResx);
}

TEST_F(Surface3D, AScaleBelow1Becomes40)
{
    control.PlotScale(1);
    EXPECT_EQ(control.PlotScale(), 1);
    for (std::int16_t const scale : {std::int16_t{0}, std::int16_t{-7}}) {
        control.PlotScale(scale);
        EXPECT_EQ(control.PlotScale(), 40);
    }
}

TEST_F(Surface3D, ANegativeResolutionBecomes5AndAnyOtherIsKept)
{
    control.XResolution(-1);
    control.YResolution(-0.1);
    EXPECT_EQ(control.XResolution(), 5);
    EXPECT_EQ(control.YResolution(), 5);
    control.XResolution(0);
    control.YResolution(1000);
    EXPECT_EQ(control.XResolution(), 0);
    EXPECT_EQ(control.YResolution(), 1000);
}

TEST_F(Surface3D, SettersReportTheirPublicNamesAndWaitForTheNextPlot)
{
    load(control, twelve_sites);
    control.Plot();
    host.take_record("PLOTA");
    auto const draws_after = [&](auto&& set) {
        set();
        EXPECT_FALSE(host.has_drawn());
        control.Plot();
        return host.has_drawn();
    };
    EXPECT_TRUE(draws_after([&] { control.XResolution(10); }));
    EXPECT_TRUE(draws_after([&] { control.YResolution(10); }));
    EXPECT_TRUE(draws_after([&] { control.GridRotation(10); }));
    EXPECT_TRUE(draws_after([&] { control.GridInclination(10); }));
    EXPECT_TRUE(draws_after([&] { control.PlotScale(10); }));
    EXPECT_TRUE(draws_after([&] { control.PlotType(PlotTypeEnum::WireFrame); }));
    EXPECT_TRUE(draws_after([&] { control.IntervalColor3(7); }));
    EXPECT_FALSE(draws_after([&] { control.EnableRotation = false; }));
    EXPECT_EQ(host.changes, (Names{"XResolution", "YResolution", "GridRotation", "GridInclination", "PlotScale",
                                   "PlotType", "IntervalColor3"}));
}

TEST_F(Surface3D, DrawsTheSurfaceOfItsSettings)
{
    load_and_forget_records();
    control.XResolution(30);
    control.YResolution(20);
    control.PlotScale(60);
    control.GridRotation(70);
    control.GridInclination(20);
    control.PlotType(PlotTypeEnum::WireFrame);
    control.Plot();
    EXPECT_EQ(text_of(host.take_record("PLOTA")), plot(30, 20, 60, 70, 20, 3));
    EXPECT_EQ(text_of(host.take_record("FNPic")), figure(70, 20));
}

TEST_F(Surface3D, ADragDrawsTenCellsEachWay)
{
    load(control, twelve_sites);
    control.PlotType(PlotTypeEnum::HiddenWireFrame);
    control.Plot();
    host.take_record("PLOTA");
    host.take_record("FNPic");
    std::vector<Value> arguments = {std::int16_t{1}, std::int16_t{0}, 100.F, 100.F};
    host.child("PLOTA").raise("MouseDown", arguments);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), plot(30, 20, 40, 40, 35, 2));
    EXPECT_EQ(text_of(host.take_record("FNPic")), figure(40, 35));
    arguments[2] = 90.F;
    host.child("PLOTA").raise("MouseMove", arguments);
    EXPECT_GT(control.GridRotation(), 40);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), plot(30, 20, 40, control.GridRotation(), 35, 2));
    EXPECT_EQ(text_of(host.take_record("FNPic")), figure(control.GridRotation(), 35));
}

TEST_F(Surface3D, AResolutionOf0IsDrawnByTheRepairedRectangle)
{
    load_and_forget_records();
    control.XResolution(0);
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_EQ(control.XResolution(), 0);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), plot(0, 5, 40, 40, 35, 1));
}

TEST_F(Surface3D, ResolutionsTooHighForTheTestedAreaAreLoweredWithAMessage)
{
    load(control, twelve_sites);
    struct Case {
        double x, y;
        std::string text;
    };
    for (auto const& [x, y, text] : std::vector<Case>{
             {75.5, 50.5, "Maximal possible Resolutionx is 75 mm and the maximal possible ResolutionY is 50 mm"},
             {75.5, 50, "Maximal possible Resolutionx is 75 mm"},
             {75, 50.5, "Maximal possible ResolutionY is 50 mm"},
         }) {
        control.XResolution(x);
        control.YResolution(y);
        control.Plot();
        auto const messages = host.platform.take_messages();
        ASSERT_EQ(messages.size(), 1u);
        EXPECT_EQ(messages[0].text, text);
        EXPECT_EQ(messages[0].title, "Standard resolution to high ");
        EXPECT_EQ(messages[0].style, 64 + 4096);
        EXPECT_EQ(control.XResolution(), 75);
        EXPECT_EQ(control.YResolution(), 50);
    }
    control.SetPlotNotVaild();
    control.Plot();
    EXPECT_TRUE(host.platform.take_messages().empty());
}

TEST_F(Surface3D, APanelWithoutSizeGetsAHeightOf200AndNoWidth)
{
    load(control, twelve_sites);
    control.PanelSizeX(0);
    control.PanelSizeY(0);
    control.Plot();
    EXPECT_EQ(control.PanelSizeY(), 200);
    EXPECT_EQ(control.PanelSizeX(), 0);
}

TEST_F(Surface3D, ColoursAreReadBackFromTheKeysOfTheColourMap)
{
    control.IntervalColor0(77);
    PropertyBag store;
    control.WriteProperties(store);
    Hosted<ZvPlot3D> other;
    other.control.IntervalColor0(5);
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.IntervalColor0(), QBColor(4));
    store.WriteProperty("2DInterCol0", std::int32_t{78}, std::int32_t{0});
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.IntervalColor0(), 78);
}

TEST_F(Surface3D, EveryOtherSettingSurvivesTheStore)
{
    control.PanelSizeX(250);
    control.XResolution(2.5);
    control.YResolution(3.5);
    control.GridRotation(17);
    control.GridInclination(81);
    control.PlotType(PlotTypeEnum::HiddenWireFrame);
    control.PlotScale(12);
    PropertyBag store;
    control.WriteProperties(store);
    Hosted<ZvPlot3D> other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.PanelSizeX(), 250);
    EXPECT_EQ(other.control.XResolution(), 2.5);
    EXPECT_EQ(other.control.YResolution(), 3.5);
    EXPECT_EQ(other.control.GridRotation(), 17);
    EXPECT_EQ(other.control.GridInclination(), 81);
    EXPECT_EQ(other.control.PlotType(), PlotTypeEnum::HiddenWireFrame);
    EXPECT_EQ(other.control.PlotScale(), 12);
}

} // namespace zendara::test
