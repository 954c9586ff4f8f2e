#pragma once

#include "zendara/support/boolean_word.hpp"

#include <string>
#include <string_view>

namespace zendara
{

// What the interface shares between all controls of a process, and nothing else is shared. A container sets it; all of
// it may be read and written by several threads at once.

/// The decimal mark of all number texts of the library; a point until a container sets another.
std::string const& decimal_separator();

/// Sets the decimal mark; an empty text means a point.
void set_decimal_separator(std::string_view mark);

/// The decimal mark of the C locale that is in force.
std::string decimal_separator_of_c_locale();

/// The control limits that the crosswise histograms of the process show, whatever panel they belong to.
struct HistogramLimits {
    BooleanWord HistLimitOn;
    double HistLCL = 0;
    double HistUCL = 0;
};

HistogramLimits histogram_limits();
void set_histogram_limits(HistogramLimits const& limits);

} // namespace zendara
