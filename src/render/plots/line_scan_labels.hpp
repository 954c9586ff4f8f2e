#pragma once

#include "zendara/panel/panel.hpp"
#include "zendara/support/boolean_word.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace zendara
{

/// The number texts of a scan's value axis: as many decimals as the top of the scale leaves room for.
class ScanValueText
{
public:
    explicit ScanValueText(double top);

    std::string operator()(double value) const;

private:
    BooleanWord is_scientific_;
    std::int16_t decimals_;
};

/// The values that the five labels of the value axis show, from the lowest to the highest.
std::array<double, 5> scan_axis_values(panel const& record);

} // namespace zendara
