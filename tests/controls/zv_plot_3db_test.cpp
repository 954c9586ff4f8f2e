#include "control_fixture.hpp"
#include "zendara/controls/zv_plot_3db.hpp"

namespace zendara::test
{

namespace
{

using Names = std::vector<std::string>;

std::vector<Site> const twelve_sites = random_sites(12, 300, 200, 11);

struct Bars3D : testing::Test {
    Hosted<ZvPlot3DB> host;
    ZvPlot3DB& control = host.control;

    std::vector<std::string> plot(double width, double depth, double scale, double rotation, double inclination)
    {
        auto const& picture = host.child("PLOTA");
        auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
        control.record().D2BeamPlot(*surface, width, depth, scale, rotation, inclination, 0, 0, 0, 0, 0, 0);
        return text_of(surface->take_record());
    }

    std::vector<std::string> figure(double rotation, double inclination)
    {
        auto const& picture = host.child("FNPic");
        auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
        control.record().GridPosShow(nullptr, *surface, rotation, inclination);
        return text_of(surface->take_record());
    }
};

} // namespace

TEST_F(Bars3D, StartsWithThePublishedValues)
{
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.BeamWidth(), 5);
    EXPECT_EQ(control.BeamHeight(), 5);
    EXPECT_EQ(control.BeamScale(), 10);
    EXPECT_EQ(control.GridRotation(), 40);
    EXPECT_EQ(control.GridInclination(), 35);
    EXPECT_TRUE(control.EnableRotation);
}

TEST_F(Bars3D, EverySettingIsStoredAsItIsGiven)
{
    control.BeamWidth(-1.5);
    control.BeamHeight(0);
    control.BeamScale(-3);
    control.GridRotation(400);
    control.GridInclination(-100);
    EXPECT_EQ(control.BeamWidth(), -1.5);
    EXPECT_EQ(control.BeamHeight(), 0);
    EXPECT_EQ(control.BeamScale(), -3);
    EXPECT_EQ(control.GridRotation(), 400);
    EXPECT_EQ(control.GridInclination(), -100);
}

TEST_F(Bars3D, SettersReportTheirPublicNamesAndWaitForTheNextPlot)
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
    EXPECT_TRUE(draws_after([&] { control.BeamWidth(10); }));
    EXPECT_TRUE(draws_after([&] { control.BeamHeight(10); }));
    EXPECT_TRUE(draws_after([&] { control.BeamScale(1); }));
    EXPECT_TRUE(draws_after([&] { control.GridRotation(10); }));
    EXPECT_TRUE(draws_after([&] { control.GridInclination(10); }));
    EXPECT_EQ(host.changes, (Names{"BeamWidth", "BeamHeight", "BeamScale", "GridRotation", "GridInclination"}));
}

TEST_F(Bars3D, DrawsTheBarsOfItsSettings)
{
    load(control, twelve_sites);
    control.BeamWidth(8);
    control.BeamHeight(6);
    control.BeamScale(0.5);
    control.GridRotation(400);
    control.GridInclination(20);
    host.take_record("PLOTA");
    host.take_record("FNPic");
    control.Plot();
    EXPECT_EQ(text_of(host.take_record("PLOTA")), plot(8, 6, 0.5, 400, 20));
    EXPECT_EQ(text_of(host.take_record("FNPic")), figure(400, 20));
}

TEST_F(Bars3D, ADragDrawsAllBarsInTheNewView)
{
    load(control, twelve_sites);
    control.Plot();
    std::vector<Value> arguments = {std::int16_t{1}, std::int16_t{0}, 100.F, 100.F};
    host.child("PLOTA").raise("MouseDown", arguments);
    host.take_record("PLOTA");
    host.take_record("FNPic");
    arguments[2] = 60.F;
    host.child("PLOTA").raise("MouseMove", arguments);
    EXPECT_GT(control.GridRotation(), 91);
    EXPECT_EQ(text_of(host.take_record("PLOTA")), plot(5, 5, 10, control.GridRotation(), 35));
    EXPECT_EQ(text_of(host.take_record("FNPic")), figure(control.GridRotation(), 35));
}

TEST_F(Bars3D, NoBarSizeIsTooLargeForAMessage)
{
    load(control, twelve_sites);
    control.BeamWidth(1000);
    control.Plot();
    EXPECT_TRUE(host.platform.take_messages().empty());
    EXPECT_EQ(control.BeamWidth(), 1000);
}

TEST_F(Bars3D, APanelWithoutHeightGetsAWidthOf300AndNoHeight)
{
    load(control, twelve_sites);
    control.PanelSizeY(0);
    control.Plot();
    EXPECT_EQ(control.PanelSizeX(), 300);
    EXPECT_EQ(control.PanelSizeY(), 0);
}

TEST_F(Bars3D, SettingsSurviveTheStoreAndColoursAreReadFromTheKeysOfTheColourMap)
{
    control.BeamWidth(2.5);
    control.BeamHeight(3.5);
    control.BeamScale(0.25);
    control.GridRotation(400);
    control.GridInclination(-7);
    control.IntervalColor0(77);
    PropertyBag store;
    control.WriteProperties(store);
    Hosted<ZvPlot3DB> other;
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.BeamWidth(), 2.5);
    EXPECT_EQ(other.control.BeamHeight(), 3.5);
    EXPECT_EQ(other.control.BeamScale(), 0.25);
    EXPECT_EQ(other.control.GridRotation(), 400);
    EXPECT_EQ(other.control.GridInclination(), -7);
    EXPECT_EQ(other.control.IntervalColor0(), QBColor(4));
}

} // namespace zendara::test
