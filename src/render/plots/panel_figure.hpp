#pragma once

#include "zendara/render/surface/surface.hpp"

#include <array>

namespace zendara
{

/// A rectangle to be shown turned and tilted, in any unit of length.
struct PanelShape {
    double size_x;
    double size_y;
    double half_x;
    double half_y;
};

/// Where a figure of a panel goes, in pixels: its middle, and the room that it may fill.
struct FigurePlace {
    double center_x;
    double center_y;
    double room_x;
    double room_y;
};

/// The corners of a panel that is turned and tilted.
/// @param alpha, theta  rotation and inclination in degrees; 90 shows the panel flat
/// @throws Failure  Overflow for an angle that is no number
std::array<DevicePoint, 4> figure_corners(FigurePlace const& place, PanelShape const& shape, double alpha,
                                          double theta);

void fill_figure(Surface& surface, std::array<DevicePoint, 4> const& corners);

/// Draws the red mark on the edge between the third and the fourth corner, which is the lower one of a panel that is
/// not turned.
/// @param arm_px  from the mark's middle to its corners
void draw_orientation_mark(Surface& surface, std::array<DevicePoint, 4> const& corners, int arm_px);

/// Draws the small figure of a panel of 200 by 150 into a picture of pixels, turned and tilted, with a red mark on its
/// lower edge.
/// @param alpha, theta  rotation and inclination in degrees; 90 shows the panel flat
/// @throws Failure  Overflow for an angle that is no number
void DrawFlatPicture(Surface& picture, double alpha, double theta);

} // namespace zendara
