#pragma once

#include "zendara/panel/panel.hpp"

#include <cstdint>

namespace zendara
{

/// Where a scan enters and leaves the tested area, in millimetres from the centre. It runs from start to end.
struct ScanLine {
    double start_x = 0, start_y = 0;
    double end_x = 0, end_y = 0;

    /// The line misses the tested area.
    bool is_point() const { return start_x == end_x && start_y == end_y; }
    bool is_vertical() const { return start_x == end_x; }
    double width() const { return end_x - start_x; }
    double height() const { return end_y - start_y; }
};

/// The scan through a point at an angle. Shows a message when it misses the tested area, as the one below does.
/// @param phi  degrees; 0 runs upward, 90 from the right to the left
/// @throws Failure  DivisionByZero for an angle outside 0 to 360 that makes the line exactly horizontal
ScanLine scan_at_angle(panel& record, double x, double y, std::int16_t phi);

/// The scan through two points, from edge to edge in the direction from the first to the second.
ScanLine scan_through(panel& record, double x1, double y1, double x2, double y2);

/// The line as the curve and its marks get it: the values of the form that counts.
struct ScanArguments {
    std::int16_t phi;
    std::int16_t is_angle;
    double x1, y1, x2, y2;

    ScanLine scan(panel& record) const
    {
        return is_angle != 0 ? scan_at_angle(record, x1, y1, phi) : scan_through(record, x1, y1, x2, y2);
    }
};

/// The form of a line through a point at an angle; any other word means through two points.
constexpr std::int16_t scan_by_angle = 1;

/// The line as the labels and the indicator get it: the values of both forms, and which of them counts.
struct EitherFormArguments {
    std::int16_t plotopt, phi;
    double x1, y1, x2, y2, x3, y3;

    /// The values of the form that counts.
    ScanArguments chosen() const
    {
        if (plotopt == scan_by_angle)
            return {phi, -1, x1, y1, 0, 0};
        return {0, 0, x2, y2, x3, y3};
    }

    ScanLine scan(panel& record) const { return chosen().scan(record); }
};

} // namespace zendara
