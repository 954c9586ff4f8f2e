// A host in C++: a film of 35 x 35 sites as a colour map, written as a PNG.
//
// usage: zendara-embedding-example OUT.png

#include <cmath>
#include <cstdio>
#include <zendara/controls/zv_plot_2d.hpp>
#include <zendara/files/png_file.hpp>
#include <zendara/form/window_painter.hpp>
#include <zendara/platform/headless/headless_platform.hpp>

namespace
{

constexpr int sites_per_side = 35;

/// Three arrays of one element per site, as a host keeps its measured data.
struct Measurement {
    zendara::HostArray<double> x, y, thickness;
};

Measurement measure(double width_mm, double height_mm)
{
    Measurement measured;
    constexpr int count = sites_per_side * sites_per_side;
    for (auto* const array : {&measured.x, &measured.y, &measured.thickness})
        array->redim(1, count);
    for (int site = 1; site <= count; ++site) {
        int const column = (site - 1) % sites_per_side;
        int const row = (site - 1) / sites_per_side;
        double const x = width_mm * 0.95 * (column / (sites_per_side - 1.0) - 0.5);
        double const y = height_mm * 0.95 * (row / (sites_per_side - 1.0) - 0.5);
        measured.x(site) = x;
        measured.y(site) = y;
        measured.thickness(site) = 500 + x * x / 1500 - y / 40 + 2 * std::cos(x / 12) * std::cos(y / 15);
    }
    return measured;
}

} // namespace

int main(int count, char** words)
{
    if (count != 2) {
        std::fprintf(stderr, "usage: zendara-embedding-example OUT.png\n");
        return 2;
    }
    try {
        zendara::HeadlessPlatform platform;
        zendara::ZvPlot2D plot(platform);
        plot.InitProperties();
        plot.window().resize(15000, 10500); // twips: 1000 x 700 pixels
        plot.PanelSizeX(300);
        plot.PanelSizeY(200);

        Measurement measured = measure(plot.PanelSizeX(), plot.PanelSizeY());
        if (plot.SetPanelData(measured.x, measured.y, measured.thickness) != 0)
            return 1;
        plot.PlotCaption("Film thickness in nm");
        plot.ResolutionX(2);
        plot.ResolutionY(2);
        plot.Plot();

        std::printf("mean %.2f nm, standard deviation %.2f nm, %.2f nm in the middle\n", plot.mean(), plot.StdDev(),
                    plot.Interpolation(0.0, 0.0));
        zendara::write_png(zendara::paint_child(plot.window(), platform.glyphs()), words[1]);
    } catch (std::exception const& error) {
        std::fprintf(stderr, "zendara-embedding-example: %s\n", error.what());
        return 2;
    }
    return 0;
}
