// A whole plot in one process: sites in, PNG out. Beside it the least that any program has to do for it.

#include "../tests/panels.hpp"
#include "zendara/controls/zv_plot_2d.hpp"
#include "zendara/files/png_file.hpp"
#include "zendara/form/window_painter.hpp"
#include "zendara/panel/load.hpp"
#include "zendara/platform/headless/headless_platform.hpp"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace zendara::bench
{

namespace
{

constexpr int width_px = 1000;
constexpr int height_px = 700;
constexpr int columns = 300; // cells of 1 mm
constexpr int rows = 200;

std::filesystem::path picture_file()
{
    return std::filesystem::temp_directory_path() / "zendara_bench_whole_plot.png";
}

struct Arrays {
    HostArray<double> x, y, z;

    explicit Arrays(int count)
    {
        auto const sites = test::random_sites(count, columns, rows, 9);
        for (auto* const array : {&x, &y, &z})
            array->redim(0, count - 1);
        for (int i = 0; i < count; ++i) {
            auto const& site = sites[static_cast<std::size_t>(i)];
            x(i) = site.x;
            y(i) = site.y;
            z(i) = 500 + site.x * site.x / 500 - site.y * site.y / 900;
        }
    }
};

void SitesToPng(benchmark::State& state)
{
    Arrays arrays(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        HeadlessPlatform platform;
        ZvPlot2D plot(platform);
        plot.InitProperties();
        plot.window().resize(width_px * 15, height_px * 15);
        plot.SetPanelData(arrays.x, arrays.y, arrays.z);
        plot.ResolutionX(1);
        plot.ResolutionY(1);
        plot.Plot();
        write_png(paint_child(plot.window(), platform.glyphs()), picture_file());
    }
}

// One value for each corner, one write for each pixel, one PNG: no layout, no text, no clipping.
void BareLoop(benchmark::State& state)
{
    Arrays arrays(static_cast<int>(state.range(0)));
    std::vector<double> x, values(columns + 1);
    for (int column = 0; column <= columns; ++column)
        x.push_back(columns / 2.0 - column);
    for (auto _ : state) {
        panel record;
        record.SizeX = record.TestSizeX = columns;
        record.SizeY = record.TestSizeY = rows;
        load_arrays(record, arrays.x, arrays.y, arrays.z, false);
        Image image(width_px, height_px);
        double const interval = record.range / 10;
        for (int row = 0; row < rows; ++row) {
            record.interpolate_row(x, rows / 2.0 - row, values);
            for (int column = 0; column < columns; ++column) {
                auto const interval_index =
                    static_cast<unsigned>((values[static_cast<std::size_t>(column)] - record.mini) / interval);
                auto const color = static_cast<std::uint32_t>(QBColor(static_cast<int>(interval_index)));
                for (int y = 0; y < 3; ++y)
                    for (int pixel = 0; pixel < 3; ++pixel)
                        image.row(row * 3 + y)[column * 3 + pixel] = color;
            }
        }
        write_png(image, picture_file());
    }
}

BENCHMARK(SitesToPng)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BareLoop)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace zendara::bench
