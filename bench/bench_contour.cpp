// The contour plot: the segments alone, the routine without and with pixels, and what reading the values and computing
// the same crossings costs in a bare loop.

#include "../tests/panels.hpp"
#include "../tests/render/surface/block_glyphs.hpp"
#include "null_surface.hpp"
#include "zendara/render/plots/contour_mesh.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <benchmark/benchmark.h>

namespace zendara::bench
{

namespace
{

constexpr int columns = 155;
constexpr int rows = 103;
constexpr int levels = 20;

// The count of sites and the sizes that lead to a raster of 155 by 103 nodes in high quality.
std::unique_ptr<panel> wide_panel()
{
    return test::make_panel(301, 200, test::random_sites(2601, 301, 200, 5));
}

double level_at(panel const& record, int index)
{
    return record.mini + (record.maxi - record.mini) * (index + 0.5) / levels;
}

void count_levels(benchmark::State& state)
{
    state.counters["per level"] = benchmark::Counter(levels * static_cast<double>(state.iterations()),
                                                     benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

struct Sum {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;

    void add(double from_x, double from_y, double to_x, double to_y)
    {
        x1 += from_x;
        y1 += from_y;
        x2 += to_x;
        y2 += to_y;
    }
};

void Segments(benchmark::State& state)
{
    auto const record = wide_panel();
    auto const mesh = ContourMesh::sampled(*record, columns, rows);
    Sum sum;
    for (auto _ : state) {
        for (int i = 0; i < levels; ++i)
            mesh.for_each_segment(level_at(*record, i), [&](ContourMesh::Segment const& segment) {
                sum.add(segment.x1, segment.y1, segment.x2, segment.y2);
            });
        benchmark::DoNotOptimize(sum);
    }
    count_levels(state);
}

struct Place {
    double x, y, value;
};

// Adds the crossing of each edge that has its ends on two sides of the level; no rule of order or of corners.
void add_crossings(Sum& sum, Place const& a, Place const& b, Place const& c, double level)
{
    bool const is_a_above = a.value > level;
    bool const is_b_above = b.value > level;
    bool const is_c_above = c.value > level;
    if (is_a_above == is_b_above && is_a_above == is_c_above)
        return;
    // The corner that lies alone on its side.
    Place const& lone = is_a_above == is_b_above ? c : is_a_above == is_c_above ? b : a;
    Place const& first = &lone == &a ? b : a;
    Place const& second = &lone == &c ? b : c;
    double const to_first = (lone.value - level) / (lone.value - first.value);
    double const to_second = (lone.value - level) / (lone.value - second.value);
    sum.add(lone.x - (lone.x - first.x) * to_first, lone.y - (lone.y - first.y) * to_first,
            lone.x - (lone.x - second.x) * to_second, lone.y - (lone.y - second.y) * to_second);
}

// Lower bound: every value read once for each level, every crossing computed.
void CrossingsAlone(benchmark::State& state)
{
    auto const record = wide_panel();
    auto const mesh = ContourMesh::sampled(*record, columns, rows);
    std::vector<Place> nodes;
    for (std::size_t row = 0; row < rows; ++row)
        for (std::size_t column = 0; column < columns; ++column) {
            auto const node = mesh.node(column, row);
            nodes.push_back({node.x, node.y, node.value});
        }
    Sum sum;
    for (auto _ : state) {
        for (int i = 0; i < levels; ++i) {
            double const level = level_at(*record, i);
            for (std::size_t row = 0; row + 1 < rows; ++row) {
                Place const* const lower = &nodes[row * columns];
                Place const* const upper = lower + columns;
                for (std::size_t column = 0; column + 1 < columns; ++column) {
                    add_crossings(sum, lower[column], lower[column + 1], upper[column], level);
                    add_crossings(sum, lower[column + 1], upper[column + 1], upper[column], level);
                }
            }
        }
        benchmark::DoNotOptimize(sum);
    }
    count_levels(state);
}

void MeshOfPanel(benchmark::State& state)
{
    auto const record = wide_panel();
    for (auto _ : state)
        benchmark::DoNotOptimize(ContourMesh::sampled(*record, columns, rows));
}

void plot_on(panel& record, Surface& surface)
{
    constexpr std::int16_t no_marks = 3, high_quality = 1, ten_colors = 2;
    constexpr double one_percent = 1; // 5.5 in values of 450 to 550: 19 levels
    record.D2Contour(surface, one_percent, no_marks, high_quality, ten_colors, 0, 0, 0, 0, 0);
}

void OnNullSurface(benchmark::State& state)
{
    auto const record = wide_panel();
    NullSurface surface(1000, 700);
    for (auto _ : state)
        plot_on(*record, surface);
}

void OnPixels(benchmark::State& state)
{
    auto const record = wide_panel();
    test::BlockGlyphs glyphs;
    RasterPicture picture(1000, 700, glyphs);
    for (auto _ : state)
        plot_on(*record, picture);
}

BENCHMARK(Segments);
BENCHMARK(CrossingsAlone);
BENCHMARK(MeshOfPanel);
BENCHMARK(OnNullSurface);
BENCHMARK(OnPixels);

} // namespace

} // namespace zendara::bench
