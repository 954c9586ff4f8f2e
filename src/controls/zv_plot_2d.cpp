#include "zendara/controls/zv_plot_2d.hpp"

#include "zendara/controls/plot_interface.hpp"
#include "zendara/controls/resolution_limit.hpp"
#include "zendara/controls/stored_properties.hpp"
#include "zendara/dialogs/frm_plot_opt_2d.hpp"

namespace zendara
{

ZvPlot2D::ZvPlot2D(Platform& platform)
    : frame_(*this, platform, "ZvPlot2D"),
      plot_frame_(frame_, {[this] { fill_legend(); }, [this] { plot_frame_.draw([this] { draw_map(); }); }})
{
    plot_frame_.forward_events();
    plot_frame_.column.Command1.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
}

void ZvPlot2D::InitProperties()
{
    start_frame();
    raster_ = {};
}

void ZvPlot2D::prepare_plot()
{
    default_sizes_crossed();
    raster_.fill_in_defaults();
}

void ZvPlot2D::fill_legend()
{
    frame_.record.scale_colored(plot_frame_.column.scalCol, plot_frame_.column.ScaleValue);
}

void ZvPlot2D::draw_map()
{
    constexpr std::int16_t ten_intervals = 5;
    if (limit_resolution(frame_.record, raster_.resolution_x, raster_.resolution_y, frame_.platform()))
        ShowPlotOption();
    plot_frame_.show_position(0, 90);
    frame_.record.D2Plot(plot_frame_.view.PLOTA.surface(), raster_.resolution_x, raster_.resolution_y, ten_intervals, 0,
                         raster_.shows_sites.word, 0, 0, 0, 0, 0);
}

void ZvPlot2D::ShowPlotOption()
{
    frmPlotOpt2d dialog(frame_.platform());
    dialog.SetValues(frame_.record, raster_.resolution_x, raster_.resolution_y, raster_.shows_sites, plot_color());
    answer_options(dialog, [&] {
        take_raster(dialog);
        take_color(dialog.GetBackColor());
    });
}

void ZvPlot2D::print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame)
{
    paper.Print_2DPlot(frame_.record, box.left, box.top, box.width, box.height, raster_.resolution_x,
                       raster_.resolution_y, PlotCaption(), raster_.shows_sites.word, with_frame);
}

std::int16_t ZvPlot2D::PrintGridPlot(double left, double top, double width, double height)
{
    return print_checked(
        [&](PrintPanel& paper) { paper.Print_GridPosPlot(frame_.record, left, top, width, height, PlotCaption()); });
}

std::vector<StoredProperty> const& ZvPlot2D::stored_properties() const
{
    return stored_properties_of_2d();
}

Interface const& ZvPlot2D::interface_table()
{
    using Z = ZvPlot2D;
    auto const box = by_references("left", "top", "width", "height");
    static Interface const table =
        plot_interface<Z>("ZvPlot2D", "Colour map of one panel.",
                          {raster_rows<Z>(),
                           interval_color_rows<Z>(),
                           {method<&Z::PrintGridPlot>("PrintGridPlot", "Prints the site numbers.", box)}});
    return table;
}

} // namespace zendara
