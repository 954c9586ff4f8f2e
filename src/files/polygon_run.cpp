#include "zendara/files/polygon_run.hpp"

#include "zendara/render/surface/scan_converter.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zendara
{

namespace
{

// A file of 10000 outlined polygons takes some 100 kB of it; at this many on a page their outlines nearly touch.
constexpr std::size_t most_outlined_vectors = 10000;
// What a run keeps in memory: 150 MB.
constexpr std::size_t most_polygons = std::size_t{1} << 22;
// Larger images get coarser pixels than the device's: with 4 million, a square of 17 cm still has 300 dots per inch.
// Packing them is what a page costs most time for. Very many outlines are one tangle in any case.
constexpr double most_pixels = 4e6;
constexpr double most_outlined_pixels = 2e6;

/// Takes device pixels to those of an image.
class Scale
{
public:
    Scale(double device_start, double device_length, double pixels, int margin)
        : start_(device_start), factor_(pixels / device_length), margin_(margin)
    {
    }

    std::int32_t operator()(std::int32_t coordinate) const
    {
        constexpr double far = 1e9; // keeps the direction and fits into 32 bits
        double const scaled = std::nearbyint((coordinate - start_) * factor_) + margin_;
        return static_cast<std::int32_t>(std::clamp(scaled, -far, far));
    }

    double factor() const { return factor_; }

private:
    double start_;
    double factor_;
    int margin_;
};

PolygonRun::Area common(PolygonRun::Area const& a, PolygonRun::Area const& b)
{
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
}

PolygonRun::Area extent_of(PaperPolygon const& polygon)
{
    auto const& corners = polygon.corners;
    auto const [left, right] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
    auto const [top, bottom] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
    return {static_cast<double>(left), static_cast<double>(top), static_cast<double>(right),
            static_cast<double>(bottom)};
}

std::array<DevicePoint, 4> scaled(std::array<DevicePoint, 4> corners, Scale const& x, Scale const& y)
{
    for (auto& corner : corners)
        corner = {x(corner.x), y(corner.y)};
    return corners;
}

void draw_outline(Image& image, std::array<DevicePoint, 4> const& corners, std::uint32_t pixel, std::int32_t width)
{
    for (std::size_t i = 0; i < corners.size(); ++i) {
        auto const& next = corners[(i + 1) % corners.size()];
        if (width <= 1)
            draw_line(image, corners[i], next, pixel);
        else
            draw_band(image, corners[i], next, width, pixel);
    }
}

} // namespace

bool PolygonRun::goes_on(std::optional<OutlinePen> const& pen) const
{
    return empty() || (pen == pen_ && polygons_.size() < most_polygons);
}

void PolygonRun::add(PaperPolygon const& polygon, std::optional<OutlinePen> const& pen)
{
    pen_ = pen;
    polygons_.push_back(polygon);
}

void PolygonRun::clear()
{
    polygons_.clear();
}

bool PolygonRun::wants_image() const
{
    return polygons_.size() > (pen_ ? most_outlined_vectors : 1);
}

// Only what lies on the page counts: one corner far out must not make the image large.
PolygonRun::Area PolygonRun::extent_on(Area const& page) const
{
    constexpr double far = 1e12;
    Area extent{far, far, -far, -far};
    for (auto const& polygon : polygons_) {
        Area const area = common(extent_of(polygon), page);
        if (!area.is_empty())
            extent = {std::min(extent.left, area.left), std::min(extent.top, area.top),
                      std::max(extent.right, area.right), std::max(extent.bottom, area.bottom)};
    }
    return extent;
}

std::optional<PolygonRun::Picture> PolygonRun::picture(Area const& page) const
{
    Area const area = extent_on(page);
    if (area.is_empty())
        return std::nullopt;
    double const device_width = area.right - area.left;
    double const device_height = area.bottom - area.top;
    double const coarseness =
        std::max(1.0, std::sqrt(device_width * device_height / (pen_ ? most_outlined_pixels : most_pixels)));

    // Whole pixels between the edges, so that these lie where vectors would lie; outlines stand out beyond them.
    auto const width = static_cast<int>(std::ceil(device_width / coarseness));
    auto const height = static_cast<int>(std::ceil(device_height / coarseness));
    auto const pen_width = pen_ ? std::max(1, static_cast<int>(pen_->width / coarseness)) : 0;
    int const margin = pen_ ? pen_width / 2 + 1 : 0;
    Scale const x(area.left, device_width, width, margin);
    Scale const y(area.top, device_height, height, margin);

    Image image(width + 2 * margin, height + 2 * margin, see_through);
    for (auto const& polygon : polygons_) {
        auto const corners = scaled(polygon.corners, x, y);
        if (polygon.fill != see_through)
            fill_polygon(image, corners, {polygon.fill});
        if (pen_)
            draw_outline(image, corners, pen_->pixel, pen_width);
    }

    // A pixel's centre is the point of its column and row: its square begins half a device pixel before, beside the
    // frame that a map is drawn in.
    Area place;
    place.left = area.left - 0.5 - margin / x.factor();
    place.top = area.top - 0.5 - margin / y.factor();
    place.right = place.left + image.width() / x.factor();
    place.bottom = place.top + image.height() / y.factor();
    return Picture{std::move(image), place};
}

} // namespace zendara
