#include "control_fixture.hpp"
#include "zendara/controls/zv_plot_2ds.hpp"

namespace zendara::test
{

namespace
{

using Hosted2DS = Hosted<ZvPlot2DS>;

std::vector<Site> const twenty_sites = random_sites(20, 300, 200, 21);

} // namespace

TEST(ZvPlot2DS, ANegativeSigmaRangeIsStoredAsOneHalf)
{
    Hosted2DS host;
    host.control.SigmaRange(-1);
    EXPECT_EQ(host.control.SigmaRange(), 0.5);
    host.control.SigmaRange(0);
    EXPECT_EQ(host.control.SigmaRange(), 0);
    EXPECT_EQ(host.changes, (std::vector<std::string>{"SigmaRange", "SigmaRange"}));
}

TEST(ZvPlot2DS, DrawsTheSigmaMapOfItsSettings)
{
    Hosted2DS host;
    load(host.control, twenty_sites);
    host.control.SigmaRange(1.25);
    host.control.ShowSites(Sites::MarkSites);
    host.take_record("PLOTA");
    host.control.Plot();
    auto const by_control = host.take_record("PLOTA");
    auto const& picture = host.child("PLOTA");
    auto const surface = Recorder::picture({0, 0, picture.Width() / 15, picture.Height() / 15});
    host.control.record().D2Plot(*surface, 5, 5, 0, 1.25, -1, 0, 0, 0, 0, 0);
    EXPECT_EQ(text_of(by_control), text_of(surface->take_record()));
}

TEST(ZvPlot2DS, ItsSettingsWaitForTheNextPlot)
{
    Hosted2DS host;
    load(host.control, twenty_sites);
    host.control.Plot();
    host.take_record("PLOTA");
    host.control.SigmaRange(2);
    EXPECT_FALSE(host.has_drawn());
    host.control.Plot();
    EXPECT_TRUE(host.has_drawn());
    host.control.IntervalColor1(77);
    host.control.Plot();
    EXPECT_TRUE(host.has_drawn());
}

TEST(ZvPlot2DS, TheLegendShowsThreeBandsWithASigmaBehindEach)
{
    Hosted2DS host;
    host.control.SigmaRange(1.5);
    load(host.control, twenty_sites);
    host.control.Plot();
    EXPECT_EQ(host.child("ScaleValue", 1).caption(), ">   1.50");
    EXPECT_EQ(host.child("ScaleValue", 3).caption(), "+-  1.50");
    EXPECT_EQ(host.child("ScaleValue", 5).caption(), "< - 1.50");
    EXPECT_FALSE(host.child("ScaleValue", 2).Visible());
    for (int band = 1; band <= 3; ++band) {
        auto const& sign = host.child("lblSigma", band);
        auto const& text = host.child("ScaleValue", 2 * band - 1);
        EXPECT_EQ(sign.Font().Name, "Symbol");
        EXPECT_EQ(sign.Top(), text.Top());
        EXPECT_GT(sign.Left(), text.Left() + text.Width());
    }
}

TEST(ZvPlot2DS, ItsColoursAreThoseOfTheSigmaBand)
{
    Hosted2DS host;
    EXPECT_EQ(host.control.IntervalColor0(), QBColor(4));
    host.control.IntervalColor2(99);
    EXPECT_EQ(host.control.record().ColS3, 99);
    EXPECT_EQ(host.control.host_interface().find("IntervalColor3"), nullptr);
}

TEST(ZvPlot2DS, CrossesTheDefaultsOfAnEmptySize)
{
    Hosted2DS host;
    load(host.control, twenty_sites);
    host.control.PanelSizeX(0);
    host.control.Plot();
    EXPECT_EQ(host.control.PanelSizeX(), 0);
    EXPECT_EQ(host.control.PanelSizeY(), 200);
}

TEST(ZvPlot2DS, ItsSettingsSurviveTheStore)
{
    Hosted2DS host, other;
    host.control.SigmaRange(2.5);
    host.control.IntervalColor1(7);
    host.control.PanelSizeX(123);
    PropertyBag store;
    host.control.WriteProperties(store);
    other.control.ReadProperties(store);
    EXPECT_EQ(other.control.SigmaRange(), 2.5);
    EXPECT_EQ(other.control.IntervalColor1(), 7);
    EXPECT_EQ(other.control.PanelSizeX(), 123);
}

TEST(ZvPlot2DS, ResolutionsTooHighAreLoweredWithAMessage)
{
    Hosted2DS host;
    load(host.control, twenty_sites);
    host.control.TestSizeX(8);
    host.control.Plot();
    auto const messages = host.platform.take_messages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "Maximal possible Resolutionx is 2 mm");
}

} // namespace zendara::test
