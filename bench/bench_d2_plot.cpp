// The colour map: the routine alone, on pixels, and what the same values and polygons cost in bare loops.

#include "../tests/panels.hpp"
#include "../tests/render/surface/block_glyphs.hpp"
#include "null_surface.hpp"
#include "zendara/render/plots/site_plot.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <benchmark/benchmark.h>

namespace zendara::bench
{

namespace
{

constexpr int width_px = 1000;
constexpr int height_px = 700;

std::unique_ptr<panel> panel_with(std::int64_t sites)
{
    return test::make_panel(300, 200, test::random_sites(static_cast<int>(sites), 300, 200, 5));
}

// 300 x 200 cells.
constexpr double cell_mm = 1;
constexpr double cells = 300.0 * 200.0;

void plot_on(panel& record, Surface& surface)
{
    record.D2Plot(surface, cell_mm, cell_mm, 5, 0, 0, 0, 0, 0, 0, 0);
}

void count_cells(benchmark::State& state)
{
    state.counters["per cell"] = benchmark::Counter(cells * static_cast<double>(state.iterations()),
                                                    benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void InterpolationAlone(benchmark::State& state)
{
    auto const record = panel_with(state.range(0));
    std::vector<double> x, values(301);
    for (int column = 0; column <= 300; ++column)
        x.push_back(150 - column);
    for (auto _ : state)
        for (int row = 0; row <= 200; ++row) {
            record->interpolate_row(x, 100 - row, values);
            benchmark::DoNotOptimize(values.data());
        }
    count_cells(state);
}

void OnNullSurface(benchmark::State& state)
{
    auto const record = panel_with(state.range(0));
    NullSurface surface(width_px, height_px);
    for (auto _ : state)
        plot_on(*record, surface);
    count_cells(state);
}

void OnPixels(benchmark::State& state)
{
    auto const record = panel_with(state.range(0));
    test::BlockGlyphs glyphs;
    RasterPicture picture(width_px, height_px, glyphs);
    for (auto _ : state)
        plot_on(*record, picture);
    count_cells(state);
}

// Lower bound of the drawing: a new colour for every cell, its pixels written row by row.
void PixelsAlone(benchmark::State& state)
{
    Image image(width_px, height_px);
    for (auto _ : state) {
        for (int row = 0; row < 200; ++row)
            for (int column = 0; column < 300; ++column) {
                auto const color = static_cast<std::uint32_t>(row * column);
                for (int y = 0; y < 3; ++y)
                    for (int x = 0; x < 3; ++x)
                        image.row(row * 3 + y)[column * 3 + x] = color;
            }
        benchmark::DoNotOptimize(image.row(0));
    }
    count_cells(state);
}

BENCHMARK(InterpolationAlone)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(OnNullSurface)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(OnPixels)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(PixelsAlone);

} // namespace

} // namespace zendara::bench
