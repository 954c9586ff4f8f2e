#include "golden_picture.hpp"
#include "panels.hpp"
#include "zendara/files/freetype_glyphs.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace zendara::test
{

namespace
{

/// A hill off the centre with a dent beside it, on a grid of sites.
std::unique_ptr<panel> hill()
{
    std::vector<Site> sites;
    for (int row = -4; row <= 4; ++row)
        for (int column = -6; column <= 6; ++column) {
            double const x = column * 24.0, y = row * 24.0;
            double const to_top = std::hypot(x - 50, y - 20), to_dent = std::hypot(x + 70, y + 30);
            sites.push_back(
                {x, y, 100 + 60 * std::exp(-to_top * to_top / 3000) - 20 * std::exp(-to_dent * to_dent / 1500)});
        }
    return make_panel(300, 200, sites);
}

} // namespace

TEST(GoldenPlots, ASurfaceIsPaintedFromTheBackToTheFront)
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(240, 160, glyphs);
    hill()->D3Plot(picture, 10, 10, 60, 25, 30, 1, 0, 0, 0, 0, 0, 0, 0);
    EXPECT_TRUE(matches_golden(*picture.image(), "surface_3d"));
}

TEST(GoldenPlots, BarsStandOnAHatchedPlate)
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(240, 160, glyphs);
    picture.BackColor = QBColor(7); // the hatch is white
    hill()->D2BeamPlot(picture, 12, 12, 1, 25, 30, 0, 0, 0, 0, 0, 0);
    EXPECT_TRUE(matches_golden(*picture.image(), "bars_3d"));
}

} // namespace zendara::test
