#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/trap.hpp"

namespace zendara
{

namespace
{

TrapPlace place_of(panel const& record, char const* step)
{
    return {record.container, record, "Print_Histo", step};
}

} // namespace

void PrintPanel::Print_Histo(std::int16_t plott, panel& panobj, double left, double top, double width, double height,
                             double stat_resol, double, std::string const& caption, BooleanWord drawfr)
{
    constexpr double below_caption = 600;
    if (drawfr)
        trap(place_of(panobj, "frame"), [&] { DrawFrame(caption, left, top, width, height); });
    print_histogram(plott, panobj, {left, top, width, height}, below_caption, stat_resol);
}

void PrintPanel::Print_Histo_THN(std::int16_t plott, panel& panobj, double left, double top, double width,
                                 double height, double stat_resol, double, std::string const&)
{
    print_histogram(plott, panobj, {left, top, width, height}, 0, stat_resol);
}

// Each step for itself: a failed one leaves the others.
void PrintPanel::print_histogram(std::int16_t plott, panel& panobj, PaperBox const& box, double lower_by,
                                 double stat_resol)
{
    constexpr double padding_share = 0.08; // of the width, to the left and to the right
    double padding = 0;
    trap(place_of(panobj, "padding"), [&] { padding = to_i16(padding_share * box.width); });
    trap(place_of(panobj, "reset"), [&] { ResetPrinterObj(); });
    // Twice and a fifth that length is left below the plot, for texts.
    trap(place_of(panobj, "box"), [&] {
        surface().Box(box.left + padding, box.top + lower_by, box.left + box.width - padding,
                      box.top + box.height - 2.2 * lower_by, QBColor(1));
    });
    trap(place_of(panobj, "unit"), [&] { surface().ScaleMode(scale_pixels); });
    trap(place_of(panobj, "plot"), [&] {
        // All of these come back converted to pixels.
        double x0 = box.left + padding;
        double y0 = box.top + lower_by;
        double width = box.width - 2 * padding;
        double height = box.height - 2.2 * lower_by;
        double plot_left = x0;
        double plot_top = y0;
        std::int16_t plot_type = plott;
        std::int16_t tick = 60;
        std::int16_t for_paper = 1;
        panobj.Statistic(plot_type, surface(), surface(), x0, y0, width, height, stat_resol, tick, plot_left, plot_top,
                         for_paper);
    });
    trap(place_of(panobj, "unit"), [&] { surface().ScaleMode(scale_twips); });
    trap(place_of(panobj, "reset"), [&] { ResetPrinterObj(); });
}

} // namespace zendara
