// The map as pixels, from the data to the picture box of a control.

#include "control_fixture.hpp"
#include "golden_picture.hpp"
#include "zendara/controls/zv_plot_2d.hpp"

namespace zendara::test
{

namespace
{

/// A bowl with a tilt on a grid of 7 x 7 sites, without a random number in it.
std::vector<Site> bowl()
{
    std::vector<Site> sites;
    for (int row = -3; row <= 3; ++row)
        for (int column = -3; column <= 3; ++column)
            sites.push_back({column * 45.0, row * 30.0, 500.0 + column * column + 2 * row * row + 3 * column - row});
    return sites;
}

Image const& picture_of(ZvPlot2D& control)
{
    auto* const box = dynamic_cast<PictureBox*>(control.find_child("PLOTA", {}));
    return *box->surface().image();
}

} // namespace

TEST(MapPicture, AMapWithMarkedSitesLooksAsItDid)
{
    HeadlessPlatform platform;
    ZvPlot2D control(platform);
    control.InitProperties();
    control.HideLegend(true);
    control.window().resize(4800, 4200);
    load(control, bowl());
    control.ShowSites(Sites::MarkSites);
    control.Plot();
    EXPECT_TRUE(matches_golden(picture_of(control), "map_with_sites"));
}

TEST(MapPicture, AMapWithLimitsLooksAsItDid)
{
    HeadlessPlatform platform;
    ZvPlot2D control(platform);
    control.InitProperties();
    control.HideLegend(true);
    control.window().resize(4800, 4200);
    load(control, bowl());
    control.SetPlotLimit(500, 515);
    control.Plot();
    EXPECT_TRUE(matches_golden(picture_of(control), "map_with_limits"));
}

} // namespace zendara::test
