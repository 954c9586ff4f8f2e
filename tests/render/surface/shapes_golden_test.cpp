#include "golden_picture.hpp"
#include "zendara/files/freetype_glyphs.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace zendara::test
{

namespace
{

DevicePoint on_circle(DevicePoint center, double radius, int step, int steps)
{
    double const angle = 2 * 3.14159265358979 * step / steps;
    return {center.x + static_cast<std::int32_t>(std::lround(radius * std::cos(angle))),
            center.y + static_cast<std::int32_t>(std::lround(radius * std::sin(angle)))};
}

/// Sectors that meet in the middle, each in another colour.
void draw_fan(Surface& surface, DevicePoint center, double radius)
{
    constexpr int sectors = 24;
    surface.DrawStyle = pen_none;
    surface.FillStyle = fill_solid;
    for (int i = 0; i < sectors; ++i) {
        surface.FillColor = QBColor(1 + i % 14);
        DevicePoint const end = on_circle(center, radius, i + 1, sectors);
        surface.Polygon({center, on_circle(center, radius, i, sectors), end, end});
    }
    surface.DrawStyle = pen_solid;
}

/// Lines of one width in all directions.
void draw_star(Surface& surface, DevicePoint center, double radius, std::int16_t width)
{
    constexpr int rays = 16;
    surface.DrawWidth = width;
    for (int i = 0; i < rays; ++i) {
        DevicePoint const end = on_circle(center, radius, i, rays);
        DevicePoint const start = on_circle(center, radius / 3, i, rays);
        surface.Line(start.x, start.y, end.x, end.y, QBColor(i % 8));
    }
    surface.DrawWidth = 1;
}

void draw_polygons(Surface& surface)
{
    surface.ForeColor = QBColor(0);
    surface.FillColor = QBColor(9);
    surface.FillStyle = fill_diagonal_cross;
    surface.Polygon({{{110, 10}, {180, 25}, {170, 75}, {100, 60}}});
    surface.FillStyle = fill_solid;
    surface.FillColor = QBColor(14);
    surface.DrawWidth = 3;
    surface.Polygon({{{205, 12}, {265, 70}, {265, 12}, {205, 70}}});
    surface.DrawWidth = 1;
}

void draw_boxes_and_circles(Surface& surface)
{
    surface.FillColor = QBColor(11);
    surface.FillStyle = fill_solid;
    surface.Box(10, 190, 60, 230, QBColor(4));
    surface.FillStyle = fill_none;
    surface.DrawWidth = 4;
    surface.Box(75, 190, 125, 230, QBColor(2));
    surface.DrawWidth = 1;
    surface.FillBox(140, 190, 140, 230, QBColor(0));
    surface.FillBox(145, 190, 155, 230, QBColor(12));
    surface.FillStyle = fill_diagonal_cross;
    surface.Circle(190, 210, 25, QBColor(1));
    surface.FillStyle = fill_solid;
    surface.DrawWidth = 5;
    surface.Circle(245, 210, 18, QBColor(5));
    surface.DrawWidth = 1;
}

} // namespace

TEST(GoldenShapes, PolygonsLinesBoxesAndCirclesHaveTheirPixels)
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(280, 240, glyphs);
    draw_fan(picture, {45, 45}, 40);
    draw_polygons(picture);
    draw_star(picture, {45, 135}, 40, 1);
    draw_star(picture, {140, 135}, 40, 2);
    draw_star(picture, {235, 135}, 40, 5);
    draw_boxes_and_circles(picture);
    EXPECT_TRUE(matches_golden(*picture.image(), "raster_shapes"));
}

} // namespace zendara::test
