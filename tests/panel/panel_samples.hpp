#pragma once

#include "zendara/panel/panel.hpp"
#include "zendara/support/trap.hpp"

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace zendara::samples
{

struct Site {
    double x = 0, y = 0, Z = 0;
};

/// A panel's size and sites, before they are in a record.
struct Sample {
    std::string name;
    double size_x = 0, size_y = 0;
    std::vector<Site> sites;
};

inline void store(panel& record, Sample const& sample)
{
    record.SizeX = sample.size_x;
    record.SizeY = sample.size_y;
    record.reset();
    record.SetNop(static_cast<double>(sample.sites.size()));
    for (Site const& site : sample.sites)
        record.SetGridValue(site.x, site.y, site.Z);
}

/// Stores the sites and builds the table. A failure of the statistics behind it does not matter here.
inline void fill(panel& record, Sample const& sample)
{
    store(record, sample);
    trap({nullptr, record, "test", "statistics"}, [&] { record.MaxMin(); });
}

inline std::uint64_t bits(double value)
{
    std::uint64_t result = 0;
    std::memcpy(&result, &value, sizeof result);
    return result;
}

/// A measured set of the data folder with its statistics.
struct DataSet {
    Sample sample;
    double least = 0, most = 0, mean = 0, deviation = 0;
};

/// The sets of the data folder; none where the folder is missing.
std::vector<DataSet> data_sets();

/// Random panels of many kinds, friendly and hostile.
std::vector<Sample> random_panels(std::uint64_t seed);

} // namespace zendara::samples
