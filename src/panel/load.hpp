#pragma once

#include "zendara/panel/panel.hpp"

#include <cstdint>
#include <string>

namespace zendara
{

/// How a load ended, as hosts get it.
enum class LoadResult : std::int16_t { Done = 0, UpperBoundsDiffer = 1, LowerBoundsDiffer = 2, RunTimeFailure = 4 };

/// Loads a panel's sites from three arrays of one element per site: host arrays, or anything that is a span of doubles,
/// which counts from 0.
/// @param keep_limits  the panel's plot limits outlive the load
/// @return  anything but RunTimeFailure: the load ended normally. A coordinate that is infinite or no number ends it
LoadResult load_arrays(panel& record, HostArrayView<double> x, HostArrayView<double> y, HostArrayView<double> Z,
                       bool keep_limits);

/// Loads a panel's sites from a raw data file: `nops` x values, then as many y values and Z values, little-endian
/// 64-bit floats. A file that is missing is created, empty; what a short file lacks is 0, but a file that cannot be
/// read ends the load.
/// @param keep_limits  the panel's plot limits outlive the load
LoadResult load_file(panel& record, std::string const& datafile, double nops, bool keep_limits);

/// Reads the sites out.
/// @return  their number; the arrays get the bounds 1 to that number, or stay as they are when it is 0
/// @throws Failure  Overflow with 32767 sites or more, where the 16-bit counter passes its end; so many are read out
double read_sites(panel const& record, HostArray<double>& x, HostArray<double>& y, HostArray<double>& Z);

/// Moves a panel's scale limits.
/// @return  False, with nothing changed, when LPL is not below UPL
BooleanWord ApplyPlotLimit(panel& panobj, double LPL, double UPL);

} // namespace zendara
