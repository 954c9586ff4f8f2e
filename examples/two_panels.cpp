// Two panels on one printed page: the same film before and after polishing, each as a small map and small contours.
//
// usage: zendara-two-panels-example OUT.pdf

#include <cmath>
#include <cstdio>
#include <exception>
#include <string>
#include <zendara/files/paper_surface.hpp>
#include <zendara/panel/panel.hpp>
#include <zendara/print/print_panel.hpp>

namespace
{

constexpr double width_mm = 300;
constexpr double height_mm = 200;
constexpr int sites_per_side = 25;

/// Measures a film that is thicker towards its rim.
/// @param bow_nm  how much
void measure(zendara::panel& record, double bow_nm)
{
    record.SizeX = record.TestSizeX = width_mm;
    record.SizeY = record.TestSizeY = height_mm;
    record.HalfTestSizeX = width_mm / 2;
    record.HalfTestSizey = height_mm / 2;
    record.reset();
    record.SetNop(sites_per_side * sites_per_side);
    for (int row = 0; row < sites_per_side; ++row)
        for (int column = 0; column < sites_per_side; ++column) {
            double const x = column / (sites_per_side - 1.0) - 0.5;
            double const y = row / (sites_per_side - 1.0) - 0.5;
            double const thickness = 500 + bow_nm * (x * x + y * y) + 2 * std::cos(20 * x) * std::cos(14 * y);
            record.SetGridValue(0.95 * x * width_mm, 0.95 * y * height_mm, thickness);
        }
    record.MaxMin();
}

/// Boxes on an A4 page, in twips: a row for each panel, the map to the left and the contours to the right.
struct Row {
    double top;
    static constexpr double map_left = 850, contours_left = 6100, width = 4900, height = 4600;
};

void print_panel(zendara::PrintPanel& printer, zendara::panel& record, Row const& row, std::string const& name)
{
    constexpr double cell_mm = 4;
    std::string info = name + ": mean " + std::to_string(std::lround(record.mean)) + " nm";
    printer.Print_2DPlot_THN(record, row.map_left, row.top, row.width, row.height, cell_mm, cell_mm, name, info);

    // Contours begin at the very left of their box: without a frame of their own they can be set into one.
    constexpr double interval_percent = 1, inset = 450, side = 4000;
    constexpr std::int16_t no_marks = 3, automatic = 2, ten_colors = 2, black = 0;
    printer.DrawFrame(name, row.contours_left, row.top, row.width, row.height);
    printer.Print_Contour_THN(record, row.contours_left + inset, row.top + inset, side, side, interval_percent, false,
                              no_marks, automatic, ten_colors, name, info, false);
    info = "a line for each percent";
    printer.DrawLeftText(info, row.contours_left + inset, row.top + inset + side, side, black);
}

void print_page(std::string const& file)
{
    zendara::panel before, after;
    measure(before, 60);
    measure(after, 20);

    zendara::PaperSurface page(file);
    zendara::PrintPanel printer;
    printer.PrinterObj = &page;
    print_panel(printer, before, {1200}, "before");
    print_panel(printer, after, {6400}, "after");
    page.EndDoc();
}

} // namespace

int main(int count, char** words)
{
    if (count != 2) {
        std::fprintf(stderr, "usage: zendara-two-panels-example OUT.pdf\n");
        return 2;
    }
    try {
        print_page(words[1]);
    } catch (std::exception const& error) {
        std::fprintf(stderr, "zendara-two-panels-example: %s\n", error.what());
        return 2;
    }
    return 0;
}
