// Surface and bars: the routine on nothing, on pixels, and what the same polygons cost from a prepared list; then one
// step of a drag.

#include "../tests/panels.hpp"
#include "../tests/render/surface/block_glyphs.hpp"
#include "null_surface.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <benchmark/benchmark.h>

#include <vector>

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

/// 300 x 200 cells.
void draw_surface(panel& record, Surface& surface)
{
    record.D3Plot(surface, 1, 1, 40, 40, 35, 1, 0, 0, 0, 0, 0, 0, 0);
}

void draw_bars(panel& record, Surface& surface)
{
    record.D2BeamPlot(surface, 2, 2, 0.5, 40, 35, 0, 0, 0, 0, 0, 0);
}

/// What a plot draws while the view is dragged.
void draw_preview(panel& record, Surface& surface)
{
    record.D3Plot(surface, record.TestSizeX / 10, record.TestSizeY / 10, 40, 40, 35, 1, 0, 0, 0, 0, 0, 0, 0);
}

using Plot = void (*)(panel&, Surface&);

/// A plot's polygons with the fill of each.
class PolygonList : public NullSurface
{
public:
    PolygonList() : NullSurface(width_px, height_px) {}

    void Polygon(std::array<DevicePoint, 4> const& corners) override
    {
        list_.push_back({corners, FillColor, FillStyle});
    }

    void draw(Surface& surface) const
    {
        surface.Cls();
        for (auto const& polygon : list_) {
            surface.FillColor = polygon.color;
            surface.FillStyle = polygon.style;
            surface.Polygon(polygon.corners);
        }
    }

    std::size_t size() const { return list_.size(); }

private:
    struct Polygon_ {
        std::array<DevicePoint, 4> corners;
        Color color;
        std::int16_t style;
    };
    std::vector<Polygon_> list_;
};

void count_polygons(benchmark::State& state, panel& record, Plot plot)
{
    NullSurface surface(width_px, height_px);
    plot(record, surface);
    state.counters["polygons"] = static_cast<double>(surface.polygons);
    state.counters["per polygon"] =
        benchmark::Counter(static_cast<double>(surface.polygons),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void on_null_surface(benchmark::State& state, Plot plot)
{
    auto const record = panel_with(state.range(0));
    NullSurface surface(width_px, height_px);
    for (auto _ : state)
        plot(*record, surface);
    count_polygons(state, *record, plot);
}

void on_pixels(benchmark::State& state, Plot plot)
{
    auto const record = panel_with(state.range(0));
    test::BlockGlyphs glyphs;
    RasterPicture picture(width_px, height_px, glyphs);
    for (auto _ : state)
        plot(*record, picture);
    count_polygons(state, *record, plot);
}

/// The lower bound.
void from_a_list(benchmark::State& state, Plot plot)
{
    auto const record = panel_with(state.range(0));
    PolygonList list;
    plot(*record, list);
    test::BlockGlyphs glyphs;
    RasterPicture picture(width_px, height_px, glyphs);
    for (auto _ : state)
        list.draw(picture);
    count_polygons(state, *record, plot);
}

void sites(benchmark::internal::Benchmark* bench)
{
    bench->Arg(100)->Arg(1000)->Arg(10000)->ArgName("sites")->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(on_null_surface, surface, draw_surface)->Apply(sites);
BENCHMARK_CAPTURE(on_pixels, surface, draw_surface)->Apply(sites);
BENCHMARK_CAPTURE(from_a_list, surface, draw_surface)->Apply(sites);
BENCHMARK_CAPTURE(on_null_surface, bars, draw_bars)->Apply(sites);
BENCHMARK_CAPTURE(on_pixels, bars, draw_bars)->Apply(sites);
BENCHMARK_CAPTURE(from_a_list, bars, draw_bars)->Apply(sites);
BENCHMARK_CAPTURE(on_pixels, preview, draw_preview)->Apply(sites);
BENCHMARK_CAPTURE(from_a_list, preview, draw_preview)->Apply(sites);

} // namespace

} // namespace zendara::bench
