#pragma once

#include "zendara/render/surface/image.hpp"
#include "zendara/render/surface/surface.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace zendara
{

/// A pen that draws outlines.
struct OutlinePen {
    std::uint32_t pixel = 0;
    std::int32_t width = 1; // device pixels

    bool operator==(OutlinePen const&) const = default;
};

/// A polygon in device pixels, see_through where it is not filled.
struct PaperPolygon {
    std::array<DevicePoint, 4> corners;
    std::uint32_t fill = see_through;
};

/// Polygons drawn one after the other with the same outline, or all without one.
class PolygonRun
{
public:
    /// A rectangle in device pixels; a fraction lies within a pixel.
    struct Area {
        double left = 0;
        double top = 0;
        double right = 0;
        double bottom = 0;

        bool is_empty() const { return !(left < right && top < bottom); }
    };

    /// Whether a polygon with this outline goes on with the run.
    bool goes_on(std::optional<OutlinePen> const& pen) const;
    void add(PaperPolygon const& polygon, std::optional<OutlinePen> const& pen);
    void clear();

    bool empty() const { return polygons_.empty(); }
    std::vector<PaperPolygon> const& polygons() const { return polygons_; }
    std::optional<OutlinePen> const& pen() const { return pen_; }

    /// Whether the run is better shown as an image: without outlines as soon as there are neighbours, and with them
    /// where they are so many that the file would grow large.
    bool wants_image() const;

    /// The run painted by the rules of the picture boxes.
    struct Picture {
        Image image; // see_through where nothing is
        Area place;
    };
    /// @param page  what lies outside it is left out
    /// @return  nothing where the run does not touch the page
    std::optional<Picture> picture(Area const& page) const;

private:
    Area extent_on(Area const& page) const;

    std::vector<PaperPolygon> polygons_;
    std::optional<OutlinePen> pen_;
};

} // namespace zendara
