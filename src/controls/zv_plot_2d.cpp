#include "zendara/controls/zv_plot_2d.hpp"

#include "zendara/controls/plot_control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_opt_2d.hpp"
#include "zendara/print/print_panel.hpp"

namespace zendara
{

ZvPlot2D::ZvPlot2D(Platform& platform)
    : PlotControl(platform, "ZvPlot2D", AboutKind::Map), RasterSettings(self()), TenIntervalColors(self())
{
    answer_user();
}

void ZvPlot2D::InitProperties()
{
    PlotControl::InitProperties();
    start_raster();
}

void ZvPlot2D::prepare_plot()
{
    PlotControl::prepare_plot();
    fill_in_resolution();
}

void ZvPlot2D::draw_plot()
{
    constexpr std::int16_t ten_intervals = 5;
    record_.D2Plot(plot_surface(), resolution_x_, resolution_y_, ten_intervals, 0, shows_sites_.word, 0, 0, 0, 0, 0);
}

void ZvPlot2D::ShowPlotOption()
{
    frmPlotOpt2d dialog(platform());
    dialog.SetValues(record_, resolution_x_, resolution_y_, shows_sites_, plot_color());
    answer_options(dialog, [&] {
        take_raster(dialog.GetXRes(), dialog.GetYRes(), dialog.GetMarkeSites());
        take_color(dialog.GetBackColor());
    });
}

void ZvPlot2D::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    paper.Print_2DPlot(record_, box.left, box.top, box.width, box.height, resolution_x_, resolution_y_, PlotCaption(),
                       shows_sites_.word, with_frame);
}

std::int16_t ZvPlot2D::PrintGridPlot(double left, double top, double width, double height)
{
    return print_checked(
        [&](PrintPanel& paper) { paper.Print_GridPosPlot(record_, left, top, width, height, PlotCaption()); });
}

Interface const& ZvPlot2D::interface_table()
{
    static Interface const table = [] {
        SharedKeys keys = SharedKeys::with_prefix("2D");
        // Read from keys that nothing writes: a saved control comes back with the default sizes.
        keys.width_on_read = "PANELWD";
        keys.height_on_read = "PANELHD";
        auto const box = by_references("left", "top", "width", "height");
        return plot_interface("ZvPlot2D", "Colour map of one panel.", keys,
                              {raster_rows("2D"),
                               interval_color_rows("2D", "2D"),
                               {method<&ZvPlot2D::PrintGridPlot>("PrintGridPlot", "Prints the site numbers.", box)}});
    }();
    return table;
}

} // namespace zendara
