#include "zendara/panel/panel.hpp"
#include "zendara/render/plots/line_scan_area.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

namespace
{

// The floor of the scale lies a little under a lone value. Its side hangs on the sign of the lowest value of the data,
// also where plot limits are in force.
double scale_floor(panel const& record)
{
    if (record.maximal != record.minimal)
        return record.minimal;
    return (record.mini < 0 ? 1.1 : 0.9) * record.minimal - 0.001;
}

void draw_curve(panel const& record, Surface& surface, ScanArea const& area, ScanLine const& line, std::int16_t steps,
                Color color)
{
    double const step_x = divide(line.width(), steps);
    double const step_y = divide(line.height(), steps);
    double const pitch = divide(area.width, steps);
    double x = line.start_x;
    double y = line.start_y;
    double previous = record.Interpolation(x, y);
    for (std::int32_t i = 1; i <= steps; ++i) {
        x += step_x;
        y += step_y;
        double const value = record.Interpolation(x, y);
        surface.Line((i - 1) * pitch + area.left, area.y_of(previous, record), i * pitch + area.left,
                     area.y_of(value, record), color);
        previous = value;
    }
}

} // namespace

void panel::D1Plot(Surface& Plot, std::int16_t& resol, std::int16_t& phi, std::int16_t& D1Angle, double& x1, double& y1,
                   double& x2, double& y2, Color& DrawCol, double& left, double& top, double& width, double& height,
                   std::int16_t& ShowDisp)
{
    ScanArea const area(Plot, {left, top, width, height}, ShowDisp);
    if (GetNop() < fewest_scanned_sites)
        return;
    Low = scale_floor(*this);
    ScanLine const line = ScanArguments{phi, D1Angle, x1, y1, x2, y2}.scan(*this);
    if (!line.is_point())
        draw_curve(*this, Plot, area, line, resol, DrawCol);
}

} // namespace zendara
