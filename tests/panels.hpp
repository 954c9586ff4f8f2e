#pragma once

#include "zendara/panel/panel.hpp"

#include <memory>
#include <random>
#include <vector>

namespace zendara::test
{

struct Site {
    double x, y, z;
};

/// A panel with data, as a control leaves it after a load.
inline std::unique_ptr<panel> make_panel(double width, double height, std::vector<Site> const& sites)
{
    auto record = std::make_unique<panel>();
    record->SizeX = record->TestSizeX = width;
    record->SizeY = record->TestSizeY = height;
    record->HalfTestSizeX = width / 2;
    record->HalfTestSizey = height / 2;
    record->reset();
    record->SetNop(static_cast<double>(sites.size()));
    for (auto const& site : sites)
        record->SetGridValue(site.x, site.y, site.z);
    if (!sites.empty())
        record->MaxMin();
    return record;
}

/// Sites at random places of a panel, with values around 500.
inline std::vector<Site> random_sites(int count, double width, double height, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> x(-width / 2, width / 2);
    std::uniform_real_distribution<double> y(-height / 2, height / 2);
    std::uniform_real_distribution<double> z(450, 550);
    std::vector<Site> sites;
    for (int i = 0; i < count; ++i)
        sites.push_back({x(random), y(random), z(random)});
    return sites;
}

} // namespace zendara::test
