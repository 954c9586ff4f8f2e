#pragma once

#include "zendara/render/surface/image.hpp"
#include "zendara/render/surface/surface.hpp"

#include <array>
#include <cstdint>

namespace zendara
{

// Which pixels belong to a shape. A pixel's centre is the integer point of its column and row; whatever lies outside
// the image is cut off, and takes no time, however far out it is.

/// How the pixels of an area are coloured.
struct Paint {
    std::uint32_t pixel = 0;
    /// Only the lines of a diagonal cross hatch of 8x8 pixels are painted; it is fixed to the image's origin.
    bool is_hatched = false;
};

/// A block of pixels; the right column and the bottom row are the first ones outside.
struct PixelBox {
    std::int64_t left = 0;
    std::int64_t top = 0;
    std::int64_t right = 0;
    std::int64_t bottom = 0;
};

void fill_box(Image& image, PixelBox const& box, Paint const& paint);

/// Paints the pixels whose centre is inside. Left and top edges belong to a polygon, right and bottom ones do not, so
/// that polygons with a common edge share no pixel and leave none out. Edges may cross: inside is what has an odd
/// number of edges to its left.
void fill_polygon(Image& image, std::array<DevicePoint, 4> const& corners, Paint const& paint);

/// As fill_polygon, without its short cuts.
void fill_polygon_by_edges(Image& image, std::array<DevicePoint, 4> const& corners, Paint const& paint);

/// A line one pixel wide, its last point left out. Along its longer direction it has one pixel at each step, the one
/// nearest to it, and of two equally near the lower or right one: back and forth go through the same pixels.
void draw_line(Image& image, DevicePoint from, DevicePoint to, std::uint32_t pixel);

/// A line of more than one pixel's width with round ends. With an even width it lies half a pixel to the left and up.
void draw_band(Image& image, DevicePoint from, DevicePoint to, std::int32_t width, std::uint32_t pixel);

/// All pixels whose distance from the centre rounds to the radius or less.
void fill_disc(Image& image, DevicePoint center, std::int32_t radius, Paint const& paint);

/// The rim of a disc. With more than one pixel's width it grows to both sides, outwards first.
void draw_ring(Image& image, DevicePoint center, std::int32_t radius, std::int32_t width, std::uint32_t pixel);

} // namespace zendara
