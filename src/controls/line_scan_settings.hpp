#pragma once

#include "zendara/render/plots/scan_line.hpp"

#include <cstdint>

namespace zendara
{

/// The forms of a scan line: through a point at an angle, or through two points.
enum class PlotTypeEnumLineScan : std::int32_t { vbAngle = 1, vbline = 2 };

/// A point of the panel in millimetres from its centre.
struct PanelPoint {
    double x = 0;
    double y = 0;
};

/// Where the line of a scan runs, in both forms, and which of them counts.
struct LineScanSettings {
    std::int16_t plot_type = scan_by_angle;
    std::int16_t angle_deg = 0;
    PanelPoint rotation_point;
    PanelPoint line_start;
    PanelPoint line_end;

    bool is_angle_form() const { return plot_type == scan_by_angle; }
    bool is_line_form() const { return plot_type == static_cast<std::int16_t>(PlotTypeEnumLineScan::vbline); }

    /// What the curve and its marks are drawn with.
    ScanArguments for_curve() const { return for_labels().chosen(); }

    /// What the labels and the indicator are drawn with.
    EitherFormArguments for_labels() const
    {
        return {plot_type,    angle_deg,    rotation_point.x, rotation_point.y,
                line_start.x, line_start.y, line_end.x,       line_end.y};
    }
};

/// An angle as the control keeps it, from 0 to 359 degrees.
constexpr std::int16_t within_circle(std::int16_t angle_deg)
{
    int const rest = angle_deg % 360;
    return static_cast<std::int16_t>(rest < 0 ? rest + 360 : rest);
}

} // namespace zendara
