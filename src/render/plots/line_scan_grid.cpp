#include "zendara/panel/panel.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

namespace
{

constexpr int grid_lines = 5; // in each direction
constexpr Color grid_color = QBColor(1);

// Places of grid lines, counted on in 32-bit floats.
class GridPlaces
{
public:
    GridPlaces(double first, double length) : place_(to_f32(first)), step_(length / (grid_lines - 1)) {}

    double next()
    {
        float const place = place_;
        place_ = to_f32(place_ + step_);
        return place;
    }

private:
    float place_;
    double step_;
};

} // namespace

void panel::D1Plot_AdjustLines(Surface& Plot, double& left, double& top, double& width, double& height)
{
    // The last pixel of a picture is the last one inside it.
    bool const is_picture = !Plot.is_printer();
    double const pixel_x = is_picture ? Plot.TwipsPerPixelX() : 0;
    double const pixel_y = is_picture ? Plot.TwipsPerPixelY() : 0;

    GridPlaces columns(left, width - pixel_x);
    for (int i = 0; i < grid_lines; ++i) {
        double const x = columns.next();
        Plot.Line(x, top, x, top + height, grid_color);
    }
    GridPlaces rows(top, height - pixel_y);
    for (int i = 0; i < grid_lines; ++i) {
        double const y = rows.next();
        Plot.Line(left, y, left + width, y, grid_color);
    }

    if (is_picture) {
        Plot.Refresh();
        Plot.set_picture(Plot.image()); // so that the grid stays when the curve is cleared away
    }
}

} // namespace zendara
