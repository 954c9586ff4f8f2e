#include "zendara/controls/zv_plot_3ds.hpp"

#include "zendara/controls/plot_interface.hpp"
#include "zendara/controls/stored_properties.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"

namespace zendara
{

ZvPlot3DS::ZvPlot3DS(Platform& platform)
    : frame_(*this, platform, "ZvPlot3DS"),
      plot_frame_(frame_, {[this] { signs_.fill_legend(frame_.record, sigma_); },
                           [this] { plot_frame_.draw([this] { draw_surface(); }); }}),
      signs_(plot_frame_.column), rotation_(frame_, plot_frame_, view_.angles, [this] { draw_preview(); })
{
    plot_frame_.forward_events();
    rotation_.answer_mouse();
    plot_frame_.column.Command1.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
}

void ZvPlot3DS::InitProperties()
{
    start_frame();
    view_ = {};
    sigma_ = {};
    panel_rotation_ = ViewAngles::default_rotation;
}

void ZvPlot3DS::PanelRotation(std::int16_t degrees)
{
    if (degrees < 0)
        degrees = 0;
    panel_rotation_ = degrees >= 360 ? ViewAngles::default_rotation : degrees;
    frame_.settings_changed("PanelRotation");
}

void ZvPlot3DS::draw_surface()
{
    if (limit_resolution(frame_.record, view_.resolution_x, view_.resolution_y, frame_.platform()))
        ShowPlotOption();
    signs_.fill_legend(frame_.record, sigma_);
    plot_frame_.show_position(panel_rotation_, view_.angles.inclination);
    view_.draw(frame_.record, plot_frame_.view.PLOTA.surface(), look());
}

// The figure keeps its own rotation; only its inclination follows the pointer.
void ZvPlot3DS::draw_preview()
{
    plot_frame_.draw_position(panel_rotation_, view_.angles.inclination);
    view_.draw_preview(frame_.record, plot_frame_.view.PLOTA.surface(), look());
}

SurfaceView::Look ZvPlot3DS::look() const
{
    constexpr std::int16_t sigma_colors = 4;
    return {sigma_colors, sigma_.range};
}

void ZvPlot3DS::ShowPlotOption()
{
    frmPlotOpt3ds dialog(frame_.platform());
    dialog.SetValues(frame_.record, view_.resolution_x, view_.resolution_y, sigma_.range, view_.angles.rotation,
                     view_.angles.inclination, view_.scale, plot_color());
    answer_options(dialog, [&] {
        take_view(dialog);
        SigmaRange(dialog.GetSigRange());
        take_color(dialog.GetBackColor());
    });
}

// Unlike the figure on the screen, the one on paper is turned as the plot is.
void ZvPlot3DS::print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame)
{
    paper.Print_3DSigmaPlot(frame_.record, box.left, box.top, box.width, box.height, view_.resolution_x,
                            view_.resolution_y, view_.scale, view_.angles.rotation, view_.angles.inclination,
                            sigma_.range, PlotCaption(), with_frame);
}

std::vector<StoredProperty> const& ZvPlot3DS::stored_properties() const
{
    return stored_properties_of_3ds();
}

Interface const& ZvPlot3DS::interface_table()
{
    using Z = ZvPlot3DS;
    auto const rotation_row = property<Z, std::int16_t, &Z::PanelRotation, &Z::PanelRotation>(
        "PanelRotation", "Rotation of the panel's figure in degrees.");
    static Interface const table = plot_interface<Z>(
        "ZvPlot3DS", "Sigma surface of one panel.",
        {join({surface_view_rows<Z>(), {rotation_row, sigma_range_row<Z>(), enable_rotation_row<Z>()}}),
         sigma_color_rows<Z>()});
    return table;
}

} // namespace zendara
