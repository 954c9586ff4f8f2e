#include "zendara/print/print_panel.hpp"
#include "zendara/render/plots/panel_figure.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

void PrintPanel::DrawPanelOutline(double left, double top, double sizeX, double sizeY, double size, double alpha,
                                  double theta)
{
    constexpr double border_px = 16; // both sides together
    constexpr int mark_arm_px = 8;
    ResetPrinterObj();
    Surface& page = surface();
    page.ScaleMode(scale_pixels);
    page.DrawWidth = pen_for(2, 1);

    // The width in pixels serves as the height too.
    double const side = divide(size, page.TwipsPerPixelX());
    double const middle = round_half_even(side / 2);
    FigurePlace const place{divide(left, page.TwipsPerPixelX()) + middle, divide(top, page.TwipsPerPixelY()) + middle,
                            side - border_px, side - border_px};
    auto const corners = figure_corners(place, {sizeX, sizeY, sizeX / 2, sizeY / 2}, alpha, theta);
    fill_figure(page, corners);
    draw_orientation_mark(page, corners, mark_arm_px);
    ResetPrinterObj();
}

void PrintPanel::PlaceOutline(double x, double y, double sizeX, double sizeY, double alpha, double theta)
{
    constexpr double side = 900;
    DrawPanelOutline(x + 35, y + 200, sizeX, sizeY, side, alpha, theta);
}

} // namespace zendara
