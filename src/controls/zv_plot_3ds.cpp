#include "zendara/controls/zv_plot_3ds.hpp"

#include "zendara/controls/plot_control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

ZvPlot3DS::ZvPlot3DS(Platform& platform)
    : PlotControl(platform, "ZvPlot3DS", AboutKind::SigmaSurface), SurfaceSettings(self()), SigmaSettings(self()),
      rotation_(*this, surface_view_.angles)
{
    answer_user();
    rotation_.answer_mouse();
}

void ZvPlot3DS::InitProperties()
{
    PlotControl::InitProperties();
    surface_view_ = {};
    start_sigma();
    panel_rotation_ = ViewAngles::default_rotation;
}

void ZvPlot3DS::PanelRotation(std::int16_t degrees)
{
    if (degrees < 0)
        degrees = 0;
    panel_rotation_ = degrees >= 360 ? ViewAngles::default_rotation : degrees;
    settings_changed("PanelRotation");
}

void ZvPlot3DS::check_settings()
{
    check_resolution(surface_view_.resolution_x, surface_view_.resolution_y);
    fill_legend();
}

void ZvPlot3DS::draw_plot()
{
    draw_surface(surface_view_.resolution_x, surface_view_.resolution_y);
}

// Ten cells each way whatever the resolution is, so that a drag stays fluent.
void ZvPlot3DS::draw_preview()
{
    draw_surface(record_.TestSizeX / 10, record_.TestSizeY / 10);
}

void ZvPlot3DS::draw_surface(double resolution_x, double resolution_y)
{
    constexpr std::int16_t sigma_colors = 4;
    auto const& [x, y, angles, scale] = surface_view_;
    record_.D3Plot(plot_surface(), resolution_x, resolution_y, scale, angles.rotation, angles.inclination, sigma_colors,
                   sigma_range_, 0, 0, 0, 0, 0, 0);
}

void ZvPlot3DS::ShowPlotOption()
{
    auto const& [resolution_x, resolution_y, angles, scale] = surface_view_;
    frmPlotOpt3ds dialog(platform());
    dialog.SetValues(record_, resolution_x, resolution_y, sigma_range_, angles.rotation, angles.inclination, scale,
                     plot_color());
    answer_options(dialog, [&] {
        take_surface_view(
            {dialog.GetResx(), dialog.GetResy(), {dialog.GetAlp(), dialog.GetThet()}, to_i16(dialog.GetPlotSccale())});
        SigmaRange(dialog.GetSigRange());
        take_color(dialog.GetBackColor());
    });
}

// Unlike the figure on the screen, the one on paper is turned as the plot is.
void ZvPlot3DS::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    auto const& [resolution_x, resolution_y, angles, scale] = surface_view_;
    paper.Print_3DSigmaPlot(record_, box.left, box.top, box.width, box.height, resolution_x, resolution_y, scale,
                            angles.rotation, angles.inclination, sigma_range_, PlotCaption(), with_frame);
}

void ZvPlot3DS::print_legend(PrintPanel& paper, double left, double top, BooleanWord with_frame)
{
    paper.DrawSigmaLegend(record_, left, top, sigma_range_, with_frame);
}

Interface const& ZvPlot3DS::interface_table()
{
    using Z = ZvPlot3DS;
    auto const rotation_row = [] {
        return property<Z, std::int16_t, &Z::PanelRotation, &Z::PanelRotation>(
                   "PanelRotation", "Rotation of the panel's figure in degrees.")
            .saved(surface_place::panel_rotation, "StdPhi3DS", integer(40));
    };
    static Interface const table =
        plot_interface("ZvPlot3DS", "Sigma surface of one panel.", SharedKeys::with_prefix("3DS"),
                       {join({surface_rows("3DS"), {rotation_row(), sigma_range_row(surface_place::look, "3DS")}}),
                        sigma_color_rows("3DS")});
    return table;
}

} // namespace zendara
