#pragma once

#include "zendara/panel/panel.hpp"

#include <optional>
#include <string>
#include <vector>

namespace zendara
{

/// A row of a data block: where it stands below the block's top, in twips, and its two texts. Rows follow each other
/// every 240 twips.
struct BlockRow {
    std::int16_t offset;
    std::string label; // empty for none
    std::string value;
};

/// The remarks that hosts keep in a panel's record, the first 15 letters of each.
std::vector<BlockRow> remark_rows(panel const& record);

/// The values of a statistics block, as texts.
struct StatisticsTexts {
    std::string mean, maximum, minimum, deviation;
    std::optional<std::string> deviation_percent; // nothing where the mean is not positive
    std::string range, variation, unit;
};

std::vector<BlockRow> statistics_rows(StatisticsTexts const& texts);

/// The standard deviation in percent of the mean; nothing where the mean is not positive.
/// @throws Failure  Overflow when it is not finite
std::optional<double> deviation_in_percent(panel const& record);

} // namespace zendara
