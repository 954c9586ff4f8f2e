#include "zendara/panel/panel.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

// MaxMin, which builds the table of sites, beside the least that it has to do: two passes over the values, the cell of
// each site, and one store of each site at its place in the table.

namespace
{

constexpr double size_x = 300, size_y = 200;

struct Columns {
    std::vector<double> x, y, z;
};

Columns random_sites(std::int64_t count)
{
    std::mt19937_64 random(20240229);
    std::uniform_real_distribution<double> x(-size_x / 2, size_x / 2), y(-size_y / 2, size_y / 2), z(80, 120);
    Columns sites;
    for (std::int64_t i = 0; i < count; ++i) {
        sites.x.push_back(x(random));
        sites.y.push_back(y(random));
        sites.z.push_back(z(random));
    }
    return sites;
}

void count_sites(benchmark::State& state)
{
    state.counters["per_site"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void LowerBound(benchmark::State& state)
{
    Columns const sites = random_sites(state.range(0));
    std::size_t const count = sites.x.size();
    double const pitch = std::sqrt(4 * size_x * size_y / static_cast<double>(count));
    auto const half = static_cast<double>(std::lrint(std::max(size_x, size_y) / pitch));
    auto const side = static_cast<std::size_t>(2 * half + 1);

    std::vector<std::size_t> place(count);
    {
        std::vector<std::size_t> start(side * side + 1);
        auto const cell = [&](std::size_t s) {
            auto const i = static_cast<std::size_t>(std::lrint(sites.x[s] / pitch + half));
            return i * side + static_cast<std::size_t>(std::lrint(sites.y[s] / pitch + half));
        };
        for (std::size_t s = 0; s < count; ++s)
            ++start[cell(s) + 1];
        for (std::size_t c = 1; c < start.size(); ++c)
            start[c] += start[c - 1];
        for (std::size_t s = 0; s < count; ++s)
            place[s] = start[cell(s)]++;
    }

    Columns table{std::vector<double>(count), std::vector<double>(count), std::vector<double>(count)};
    for (auto _ : state) {
        double sum = 0, most = sites.z[0], least = sites.z[0], cells = 0, squares = 0;
        for (std::size_t s = 0; s < count; ++s) {
            cells += std::nearbyint(sites.x[s] / pitch + half) + std::nearbyint(sites.y[s] / pitch + half);
            table.x[place[s]] = sites.x[s];
            table.y[place[s]] = sites.y[s];
            table.z[place[s]] = sites.z[s];
            sum += sites.z[s];
            most = std::max(most, sites.z[s]);
            least = std::min(least, sites.z[s]);
        }
        double const mean = sum / static_cast<double>(count);
        for (double const z : sites.z)
            squares += (z - mean) * (z - mean);
        benchmark::DoNotOptimize(cells + most + least + squares);
        benchmark::DoNotOptimize(table.x.data());
        benchmark::ClobberMemory();
    }
    count_sites(state);
}

void BuildSiteBuckets(benchmark::State& state)
{
    Columns const sites = random_sites(state.range(0));
    zendara::panel record;
    record.SizeX = size_x;
    record.SizeY = size_y;
    record.SetNop(static_cast<double>(sites.x.size()));
    for (std::size_t s = 0; s < sites.x.size(); ++s)
        record.SetGridValue(sites.x[s], sites.y[s], sites.z[s]);
    for (auto _ : state) {
        record.MaxMin();
        benchmark::DoNotOptimize(record.mean);
    }
    count_sites(state);
}

BENCHMARK(LowerBound)->Arg(100)->Arg(1000)->Arg(10000)->Arg(32766)->ArgName("sites");
BENCHMARK(BuildSiteBuckets)->Arg(100)->Arg(1000)->Arg(10000)->Arg(32766)->ArgName("sites");

} // namespace
