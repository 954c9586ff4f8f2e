// The histogram: its bins and the statistics behind it, each beside one bare pass with the same arithmetic, and the
// whole drawing.

#include "../tests/panels.hpp"
#include "null_surface.hpp"
#include "zendara/render/plots/histogram_plot.hpp"

#include <benchmark/benchmark.h>

#include <cmath>
#include <numeric>

namespace zendara::bench
{

namespace
{

constexpr int sites = 32766;
constexpr std::int16_t bins = 40;

std::vector<double> values_of_sites()
{
    std::vector<double> values;
    for (auto const& site : test::random_sites(sites, 300, 200, 5))
        values.push_back(site.z);
    return values;
}

void count_values_done(benchmark::State& state)
{
    state.counters["per value"] =
        benchmark::Counter(static_cast<double>(sites) * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

template <class Bins> void CountBins(benchmark::State& state)
{
    auto const values = values_of_sites();
    panel const record;
    Bins const bins_of_values{450, 550, 100.0F / bins, bins};
    for (auto _ : state) {
        HostArray<std::int16_t> counts;
        counts.redim(1, bins);
        count_values({nullptr, record, "CountBins", "bin"}, values, bins_of_values, counts, [] {});
        benchmark::DoNotOptimize(counts);
    }
    count_values_done(state);
}

// One pass, one division, one rounding and one count for each value; nothing is checked.
void CountBinsAlone(benchmark::State& state)
{
    auto const values = values_of_sites();
    std::array<std::int16_t, 64> counts{};
    double const width = 100.0F / bins;
    for (auto _ : state) {
        counts.fill(0);
        for (double const value : values)
            ++counts[static_cast<std::size_t>(round_half_even((value - 450) / width + 0.5)) & 63];
        benchmark::DoNotOptimize(counts);
    }
    count_values_done(state);
}

void StatisticsWithTable(benchmark::State& state)
{
    auto const record = test::make_panel(300, 200, test::random_sites(sites, 300, 200, 5));
    for (auto _ : state)
        record->MaxMin();
    count_values_done(state);
}

// What the figures alone cost. Most of the time of the statistics goes into the table that interpolation searches,
// which bench_buckets.cpp measures beside its own lower bound.
void StatisticsAlone(benchmark::State& state)
{
    auto const values = values_of_sites();
    for (auto _ : state) {
        double sum = 0, highest = values[0], lowest = values[0];
        for (double const value : values) {
            sum += value;
            highest = value > highest ? value : highest;
            lowest = value < lowest ? value : lowest;
        }
        double const mean = sum / sites;
        double squares = 0;
        for (double const value : values)
            squares += (value - mean) * (value - mean);
        benchmark::DoNotOptimize(std::sqrt(squares / (sites - 1)) + highest - lowest);
    }
    count_values_done(state);
}

void Drawing(benchmark::State& state)
{
    auto const record = test::make_panel(300, 200, test::random_sites(sites, 300, 200, 5));
    NullSurface plot(1000, 700), axes(1100, 760);
    for (auto _ : state) {
        auto type = static_cast<std::int16_t>(state.range(0));
        double x0 = 48, y0 = 12, width = 999, height = 699, left = 0, top = 0;
        std::int16_t tick = 4, screen = 0;
        record->Statistic(type, plot, axes, x0, y0, width, height, bins, tick, left, top, screen);
    }
    state.counters["full scale"] = record->maxHauf;
}

BENCHMARK_TEMPLATE(CountBins, UprightBins);
BENCHMARK_TEMPLATE(CountBins, CrosswiseBins);
BENCHMARK(CountBinsAlone);
BENCHMARK(StatisticsWithTable);
BENCHMARK(StatisticsAlone);
BENCHMARK(Drawing)->Arg(1)->Arg(3);

} // namespace

} // namespace zendara::bench
