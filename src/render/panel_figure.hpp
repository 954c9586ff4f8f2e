#pragma once

#include "render/surface.hpp"

namespace zendara
{

/// Draws the small figure of a panel of 200 by 150 into a picture of pixels, turned and tilted, with a red mark on its
/// lower edge.
/// @param alpha, theta  rotation and inclination in degrees; 90 shows the panel flat
/// @throws Failure  Overflow for an angle that is no number
void DrawFlatPicture(Surface& picture, double alpha, double theta);

} // namespace zendara
