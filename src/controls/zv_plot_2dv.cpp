#include "zendara/controls/zv_plot_2dv.hpp"

#include "zendara/controls/stored_properties.hpp"

namespace zendara
{

ZvPlot2DV::ZvPlot2DV(Platform& platform)
    : frame_(*this, platform, "ZvPlot2DV"),
      plot_frame_(frame_, {[this] { fill_legend(); }, [this] { plot_frame_.draw([this] { draw_numbers(); }); }})
{
    auto& column = plot_frame_.column;
    auto& view = plot_frame_.view;
    // The plot itself raises nothing here, and the control no click.
    frame_.forward({&column.frmove, &view.Frplot}, click_events);
    frame_.forward({&frame_.window}, std::array<std::string_view, 1>{"DblClick"});
    frame_.forward({&frame_.window, &column.frmove, &view.Frplot}, mouse_events);
}

void ZvPlot2DV::InitProperties()
{
    start_frame();
}

void ZvPlot2DV::BackColor(Color color)
{
    frame_.image_valid = false;
    PlotFrameMembers::BackColor(color);
}

void ZvPlot2DV::fill_legend()
{
    frame_.record.scale_colored(plot_frame_.column.scalCol, plot_frame_.column.ScaleValue);
}

void ZvPlot2DV::draw_numbers()
{
    plot_frame_.show_position(0, 90);
    auto& picture = plot_frame_.view.PLOTA;
    frame_.record.D2Number(picture.surface(), 0, 0, 0, 0, 0);
    picture.surface().Refresh();
}

void ZvPlot2DV::print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame)
{
    paper.Print_2DVPlot(frame_.record, box.left, box.top, box.width, box.height, PlotCaption(), with_frame);
}

std::int16_t ZvPlot2DV::PrintGridNumber(double left, double top, double width, double height, BooleanWord& DrawFrame)
{
    return print_checked([&](PrintPanel& paper) {
        paper.Print_2DVGridPlot(frame_.record, left, top, width, height, PlotCaption(), DrawFrame);
    });
}

std::vector<StoredProperty> const& ZvPlot2DV::stored_properties() const
{
    return stored_properties_of_2dv();
}

Interface const& ZvPlot2DV::interface_table()
{
    using Z = ZvPlot2DV;
    static Interface const table{
        "ZvPlot2DV", "Measured values of one panel as numbers.",
        join({
            platform_rows<Z>(),
            statistics_rows<Z>(),
            size_rows<Z>(),
            {plot_row<Z>(), color_row<Z, Z, &Z::BackColor, &Z::BackColor>("BackColor", "Colour around the plot."),
             show_plot_option_row<Z>()},
            limit_rows<Z>(),
            {set_panel_data_row<Z>(), set_data_file_row<Z>()},
            legend_and_caption_rows<Z>(),
            {print_plot_row<Z>()},
            print_block_rows<Z>(),
            read_out_rows<Z>(),
            interval_color_rows<Z>(),
            {set_plot_not_valid_row<Z>(),
             method<&Z::PrintGridNumber>("PrintGridNumber", "Prints the site numbers.", print_box() + draw_frame())},
        }),
        control_events()};
    return table;
}

} // namespace zendara
