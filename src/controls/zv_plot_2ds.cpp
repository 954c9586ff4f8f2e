#include "zendara/controls/zv_plot_2ds.hpp"

#include "zendara/controls/plot_control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_opt_2d.hpp"
#include "zendara/print/print_panel.hpp"

namespace zendara
{

ZvPlot2DS::ZvPlot2DS(Platform& platform)
    : PlotControl(platform, "ZvPlot2DS", AboutKind::SigmaMap), RasterSettings(self()), SigmaSettings(self())
{
    answer_user();
}

void ZvPlot2DS::InitProperties()
{
    PlotControl::InitProperties();
    start_raster();
    start_sigma();
}

void ZvPlot2DS::prepare_plot()
{
    PlotControl::prepare_plot();
    fill_in_resolution();
}

void ZvPlot2DS::draw_plot()
{
    constexpr std::int16_t sigma_bands = 0;
    fill_legend();
    record_.D2Plot(plot_surface(), resolution_x_, resolution_y_, sigma_bands, sigma_range_, shows_sites_.word, 0, 0, 0,
                   0, 0);
}

void ZvPlot2DS::ShowPlotOption()
{
    frmPlotOpt2ds dialog(platform());
    dialog.SetValues(record_, resolution_x_, resolution_y_, sigma_range_, shows_sites_, plot_color());
    answer_options(dialog, [&] {
        take_raster(dialog.GetXRes(), dialog.GetYRes(), dialog.GetMarkeSites());
        SigmaRange(dialog.GetSigRange());
        take_color(dialog.GetBackColor());
    });
}

void ZvPlot2DS::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    paper.Print_2DSigmaPlot(record_, box.left, box.top, box.width, box.height, resolution_x_, resolution_y_,
                            sigma_range_, PlotCaption(), shows_sites_.word, with_frame);
}

void ZvPlot2DS::print_legend(PrintPanel& paper, double left, double top, BooleanWord with_frame)
{
    paper.DrawSigmaLegend(record_, left, top, sigma_range_, with_frame);
}

Interface const& ZvPlot2DS::interface_table()
{
    static Interface const table = plot_interface(
        "ZvPlot2DS", "Sigma map of one panel.", SharedKeys::with_prefix("2DS"),
        {join({raster_rows("2DS"), {sigma_range_row(store_place::settings + 3, "2DS")}}), sigma_color_rows("2DS")});
    return table;
}

} // namespace zendara
