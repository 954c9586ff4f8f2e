#pragma once

#include "zendara/panel/panel.hpp"

#include <array>
#include <string>

namespace zendara
{

/// A row of the ten-interval legend.
struct IntervalRow {
    std::string text;
    std::string exact_text; // with more decimals
    double color;
};

/// The rows of the ten-interval legend, the highest interval first. With plot limits in force the first and the last
/// row are open to one side.
/// @throws Failure  Overflow when an interval is not finite
std::array<IntervalRow, 10> interval_rows(panel const& record);

/// A row of the three-band legend, without the sigma sign behind its text.
struct SigmaRow {
    std::string text;
    double color;
};

/// The rows of the three-band legend, the highest band first.
/// @param range  the number text of the band's half width
std::array<SigmaRow, 3> sigma_rows(panel const& record, std::string const& range);

} // namespace zendara
