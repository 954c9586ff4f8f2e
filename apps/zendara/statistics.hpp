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
    double (Control::*value)() const;
};

inline constexpr std::array<StatisticFigure, 7> statistic_figures = {{
    {"mean", "mean", "", &Control::mean},
    {"StdDev", "standard deviation", "", &Control::StdDev},
    {"Minimum", "minimum", "", &Control::Minimum},
    {"Maximum", "maximum", "", &Control::Maximum},
    {"range", "range", "", &Control::range},
    {"HiLo", "Hi/Lo", " %", &Control::HiLo},
    {"StdDevPercent", "standard deviation", " %", &Control::StdDevPercent},
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
