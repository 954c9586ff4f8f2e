#include "zendara/controls/zv_plot_2ds.hpp"

#include "zendara/controls/plot_interface.hpp"
#include "zendara/controls/resolution_limit.hpp"
#include "zendara/controls/stored_properties.hpp"
#include "zendara/dialogs/frm_plot_opt_2d.hpp"

namespace zendara
{

ZvPlot2DS::ZvPlot2DS(Platform& platform)
    : frame_(*this, platform, "ZvPlot2DS"), plot_frame_(frame_, {[this] { signs_.fill_legend(frame_.record, sigma_); },
                                                                 [this] { plot_frame_.draw([this] { draw_map(); }); }}),
      signs_(plot_frame_.column)
{
    plot_frame_.forward_events();
    plot_frame_.column.Command1.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
}

void ZvPlot2DS::InitProperties()
{
    start_frame();
    raster_ = {};
    sigma_ = {};
}

void ZvPlot2DS::prepare_plot()
{
    default_sizes_crossed();
    raster_.fill_in_defaults();
}

void ZvPlot2DS::draw_map()
{
    constexpr std::int16_t sigma_bands = 0;
    if (limit_resolution(frame_.record, raster_.resolution_x, raster_.resolution_y, frame_.platform()))
        ShowPlotOption();
    plot_frame_.show_position(0, 90);
    signs_.fill_legend(frame_.record, sigma_);
    frame_.record.D2Plot(plot_frame_.view.PLOTA.surface(), raster_.resolution_x, raster_.resolution_y, sigma_bands,
                         sigma_.range, raster_.shows_sites.word, 0, 0, 0, 0, 0);
}

void ZvPlot2DS::ShowPlotOption()
{
    frmPlotOpt2ds dialog(frame_.platform());
    dialog.SetValues(frame_.record, raster_.resolution_x, raster_.resolution_y, sigma_.range, raster_.shows_sites,
                     plot_color());
    answer_options(dialog, [&] {
        take_raster(dialog);
        SigmaRange(dialog.GetSigRange());
        take_color(dialog.GetBackColor());
    });
}

void ZvPlot2DS::print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame)
{
    paper.Print_2DSigmaPlot(frame_.record, box.left, box.top, box.width, box.height, raster_.resolution_x,
                            raster_.resolution_y, sigma_.range, PlotCaption(), raster_.shows_sites.word, with_frame);
}

std::vector<StoredProperty> const& ZvPlot2DS::stored_properties() const
{
    return stored_properties_of_2ds();
}

Interface const& ZvPlot2DS::interface_table()
{
    using Z = ZvPlot2DS;
    static Interface const table =
        plot_interface<Z>("ZvPlot2DS", "Sigma map of one panel.",
                          {join({raster_rows<Z>(), {sigma_range_row<Z>()}}), sigma_color_rows<Z>()});
    return table;
}

} // namespace zendara
