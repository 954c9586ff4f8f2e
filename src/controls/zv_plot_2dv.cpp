#include "zendara/controls/zv_plot_2dv.hpp"

#include "zendara/controls/plot_control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/print/print_panel.hpp"

namespace zendara
{

// The plot itself raises nothing here, the control no click, and nothing answers the button.
ZvPlot2DV::ZvPlot2DV(Platform& platform)
    : PlotControl(platform, "ZvPlot2DV", AboutKind::Numbers), TenIntervalColors(self())
{
    forward({"Click", "DblClick"}, {&column_.frmove, &view_.Frplot});
    forward({"DblClick"}, {&window_});
    forward({"MouseDown", "MouseMove", "MouseUp"}, {&window_, &column_.frmove, &view_.Frplot});
}

void ZvPlot2DV::set_background(Color color)
{
    PlotControl::set_background(color);
    image_valid_ = false;
}

void ZvPlot2DV::draw_plot()
{
    record_.D2Number(plot_surface(), 0, 0, 0, 0, 0);
    plot_surface().Refresh();
}

void ZvPlot2DV::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    paper.Print_2DVPlot(record_, box.left, box.top, box.width, box.height, PlotCaption(), with_frame);
}

std::int16_t ZvPlot2DV::PrintGridNumber(double left, double top, double width, double height, BooleanWord& DrawFrame)
{
    return print_checked([&](PrintPanel& paper) {
        paper.Print_2DVGridPlot(record_, left, top, width, height, PlotCaption(), DrawFrame);
    });
}

// Unlike on the maps, the two load members stand together.
Interface const& ZvPlot2DV::interface_table()
{
    static SharedKeys const keys = SharedKeys::with_prefix("2DV");
    static Interface const table{
        "ZvPlot2DV", "Measured values of one panel as numbers.",
        join({
            platform_rows(keys),
            statistics_rows(),
            size_rows(keys),
            {plot_row(), back_color_row(keys), show_plot_option_row()},
            limit_rows(),
            {set_panel_data_row(), set_data_file_row()},
            legend_and_caption_rows(keys),
            {print_plot_row(), print_legend_row()},
            print_data_rows(),
            read_out_rows(),
            interval_color_rows("2DV", "2DV"),
            {set_plot_not_valid_row(), method<&ZvPlot2DV::PrintGridNumber>(
                                           "PrintGridNumber", "Prints the site numbers.", print_box() + draw_frame())},
        }),
        control_events()};
    return table;
}

} // namespace zendara
