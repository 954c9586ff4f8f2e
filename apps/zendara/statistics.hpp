#pragma once

#include "loaded_control.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace zendara::program
{

/// One figure: the member of the control that tells it, and how a person reads it.
struct StatisticFigure {
    std::string_view member, label, unit;
};

inline constexpr std::array<StatisticFigure, 7> statistic_figures = {{
    {"mean", "mean", ""},
    {"StdDev", "standard deviation", ""},
    {"Minimum", "minimum", ""},
    {"Maximum", "maximum", ""},
    {"range", "range", ""},
    {"HiLo", "Hi/Lo", " %"},
    {"StdDevPercent", "standard deviation", " %"},
}};

/// What a control tells of its data, the values in the order of statistic_figures.
struct Statistics {
    std::string file;
    std::size_t sites = 0;
    std::array<double, statistic_figures.size()> values = {};
    bool has_zero = false;
    bool has_negative = false;
};

Statistics statistics_of(LoadedControl& loaded, std::string const& file);

} // namespace zendara::program
