#pragma once

#include "zendara/panel/panel.hpp"

#include <cstdint>

namespace zendara
{

/// What D2Contour marks: the sites, the nodes of its raster, or nothing.
enum class ContourMarks : std::int32_t { Exact = 1, Converted = 2, None = 3 };

/// How fine the raster of D2Contour is. All three follow the number of sites.
enum class ContourResolution : std::int32_t { LowQuality = 0, HighQuality = 1, Automatic = 2 };

/// The colours of the lines: the surface's own; one each for mean, upper and lower lines; that of the level's interval.
enum class ContourColors : std::int32_t { BWhitePlot = 0, Three_ColorPlot = 1, Ten_ColorPlot = 2 };

/// The magnitude of which D2Contour takes an interval in percent: the spread of the values where the mean is too small
/// beside it, else that of the largest or the smallest value where the mean is smaller, else that of the mean.
/// @param distance  the interval in percent
double contour_reference(panel const& record, double distance);

/// The interval in percent that makes D2Contour draw a line at every `interval`, in the measuring unit.
/// @return  1 where all values are 0: there is nothing then to take a percentage of
/// @throws Failure  Overflow when the percentage is not finite
double contour_percent(panel const& record, double interval);

} // namespace zendara
