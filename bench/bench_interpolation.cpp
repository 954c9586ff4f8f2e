#include "zendara/panel/panel.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

// Interpolation over a raster, point by point and row by row, beside the least that any scalar form has to do: the
// squares of the distances to the sites of the same cells, which lie one behind the other in the order of the search,
// the four nearest, and their mean.

namespace
{

constexpr double size_x = 300, size_y = 200;

struct Raster {
    std::int64_t columns, rows;

    double x(std::int64_t column) const { return centre_of(column, columns) * size_x; }
    double y(std::int64_t row) const { return centre_of(row, rows) * size_y; }

private:
    static double centre_of(std::int64_t index, std::int64_t count)
    {
        return (static_cast<double>(index) + 0.5) / static_cast<double>(count) - 0.5;
    }
};

struct Site {
    double x, y, z;
};

std::vector<Site> random_sites(std::int64_t count)
{
    std::mt19937_64 random(20240229);
    std::uniform_real_distribution<double> x(-size_x / 2, size_x / 2), y(-size_y / 2, size_y / 2), z(80, 120);
    std::vector<Site> sites;
    for (std::int64_t i = 0; i < count; ++i)
        sites.push_back({x(random), y(random), z(random)});
    return sites;
}

void load(zendara::panel& record, std::vector<Site> const& sites)
{
    record.SizeX = size_x;
    record.SizeY = size_y;
    record.reset();
    record.SetNop(static_cast<double>(sites.size()));
    for (Site const& site : sites)
        record.SetGridValue(site.x, site.y, site.z);
    record.MaxMin();
}

// For each cell the sites of the cell and of its first ring. The raster of the benchmark stops there nearly always.
class Neighbourhoods
{
public:
    explicit Neighbourhoods(std::vector<Site> const& sites)
        : pitch_(std::sqrt(4 * size_x * size_y / static_cast<double>(sites.size()))),
          side_(2 * cell_of(std::max(size_x, size_y)) + 3)
    {
        std::vector<std::vector<Site>> cells(static_cast<std::size_t>(side_ * side_));
        for (Site const& site : sites)
            cells[index(cell_of(site.x), cell_of(site.y))].push_back(site);
        around_.resize(cells.size());
        for (std::int64_t i = 1 - side_ / 2; i < side_ / 2; ++i)
            for (std::int64_t j = 1 - side_ / 2; j < side_ / 2; ++j)
                for (auto const& [di, dj] : walk)
                    for (Site const& site : cells[index(i + di, j + dj)])
                        around_[index(i, j)].push_back(site);
    }

    std::vector<Site> const& around(double x, double y) const { return around_[index(cell_of(x), cell_of(y))]; }

private:
    static constexpr std::array<std::array<std::int64_t, 2>, 9> walk = {
        {{0, 0}, {-1, 1}, {0, 1}, {1, 1}, {1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0}}};

    std::int64_t cell_of(double coordinate) const { return std::lrint(coordinate / pitch_); }
    std::size_t index(std::int64_t i, std::int64_t j) const
    {
        return static_cast<std::size_t>((i + side_ / 2) * side_ + j + side_ / 2);
    }

    double pitch_;
    std::int64_t side_;
    std::vector<std::vector<Site>> around_;
};

double mean_of_four_nearest(std::vector<Site> const& sites, double x, double y)
{
    double q1 = 1e9, q2 = 1e9, q3 = 1e9, q4 = 1e9;
    double z1 = 0, z2 = 0, z3 = 0, z4 = 0;
    for (Site const& site : sites) {
        double const dx = x - site.x, dy = y - site.y;
        double const q = dx * dx + dy * dy;
        if (q >= q4)
            continue;
        if (q >= q3) {
            q4 = q, z4 = site.z;
            continue;
        }
        q4 = q3, z4 = z3;
        if (q >= q2) {
            q3 = q, z3 = site.z;
            continue;
        }
        q3 = q2, z3 = z2;
        if (q >= q1) {
            q2 = q, z2 = site.z;
            continue;
        }
        q2 = q1, z2 = z1;
        q1 = q, z1 = site.z;
    }
    return (z1 / q1 + z2 / q2 + z3 / q3 + z4 / q4) / (1 / q1 + 1 / q2 + 1 / q3 + 1 / q4);
}

Raster raster_of(benchmark::State const& state)
{
    return {state.range(1), state.range(2)};
}

std::vector<double> columns_of(Raster const& raster)
{
    std::vector<double> x;
    for (std::int64_t column = 0; column < raster.columns; ++column)
        x.push_back(raster.x(column));
    return x;
}

void count_points(benchmark::State& state)
{
    Raster const raster = raster_of(state);
    auto const points = static_cast<double>(raster.columns * raster.rows);
    state.counters["per_point"] =
        benchmark::Counter(points, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void LowerBound(benchmark::State& state)
{
    Raster const raster = raster_of(state);
    Neighbourhoods const cells(random_sites(state.range(0)));
    std::vector<double> const x = columns_of(raster);
    for (auto _ : state)
        for (std::int64_t row = 0; row < raster.rows; ++row) {
            double const y = raster.y(row);
            for (double const at : x)
                benchmark::DoNotOptimize(mean_of_four_nearest(cells.around(at, y), at, y));
        }
    count_points(state);
}

void Interpolation(benchmark::State& state)
{
    Raster const raster = raster_of(state);
    zendara::panel record;
    load(record, random_sites(state.range(0)));
    std::vector<double> const x = columns_of(raster);
    for (auto _ : state)
        for (std::int64_t row = 0; row < raster.rows; ++row) {
            double const y = raster.y(row);
            for (double const at : x)
                benchmark::DoNotOptimize(record.Interpolation(at, y));
        }
    count_points(state);
}

void InterpolateRow(benchmark::State& state)
{
    Raster const raster = raster_of(state);
    zendara::panel record;
    load(record, random_sites(state.range(0)));
    std::vector<double> const x = columns_of(raster);
    std::vector<double> z(x.size());
    for (auto _ : state)
        for (std::int64_t row = 0; row < raster.rows; ++row) {
            record.interpolate_row(x, raster.y(row), z);
            benchmark::DoNotOptimize(z.data());
            benchmark::ClobberMemory();
        }
    count_points(state);
}

void StepByStep(benchmark::State& state)
{
    Raster const raster = raster_of(state);
    zendara::panel record;
    load(record, random_sites(state.range(0)));
    std::vector<double> const x = columns_of(raster);
    for (auto _ : state)
        for (std::int64_t row = 0; row < raster.rows; ++row) {
            double const y = raster.y(row);
            for (double const at : x)
                benchmark::DoNotOptimize(zendara::interpolation_step_by_step(record, at, y));
        }
    count_points(state);
}

void sites_and_rasters(benchmark::internal::Benchmark* bench)
{
    for (std::int64_t const sites : {100, 1000, 10000, 32766})
        for (Raster const& raster : {Raster{300, 200}, Raster{1000, 667}})
            bench->Args({sites, raster.columns, raster.rows});
    bench->ArgNames({"sites", "columns", "rows"})->Unit(benchmark::kMillisecond);
}

BENCHMARK(LowerBound)->Apply(sites_and_rasters);
BENCHMARK(Interpolation)->Apply(sites_and_rasters);
BENCHMARK(InterpolateRow)->Apply(sites_and_rasters);
BENCHMARK(StepByStep)->Apply(sites_and_rasters);

} // namespace
