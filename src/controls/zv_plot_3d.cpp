#include "zendara/controls/zv_plot_3d.hpp"

#include "zendara/controls/plot_control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

namespace
{

Enumeration const& plot_type_enumeration()
{
    static Enumeration const values{"PlotTypeEnum", {{"PolyEdge", 1}, {"HiddenWireFrame", 2}, {"WireFrame", 3}}};
    return values;
}

} // namespace

ZvPlot3D::ZvPlot3D(Platform& platform)
    : PlotControl(platform, "ZvPlot3D", AboutKind::Surface), SurfaceSettings(self()), TenIntervalColors(self()),
      rotation_(*this, surface_view_.angles)
{
    answer_user();
    rotation_.answer_mouse();
}

void ZvPlot3D::InitProperties()
{
    PlotControl::InitProperties();
    surface_view_ = {};
    plot_type_ = PlotTypeEnum::PolyEdge;
}

void ZvPlot3D::PlotType(PlotTypeEnum type)
{
    plot_type_ = type;
    settings_changed("PlotType");
}

void ZvPlot3D::draw_plot()
{
    draw_surface(surface_view_.resolution_x, surface_view_.resolution_y);
}

// Ten cells each way whatever the resolution is, so that a drag stays fluent.
void ZvPlot3D::draw_preview()
{
    draw_surface(record_.TestSizeX / 10, record_.TestSizeY / 10);
}

void ZvPlot3D::draw_surface(double resolution_x, double resolution_y)
{
    auto const& [x, y, angles, scale] = surface_view_;
    record_.D3Plot(plot_surface(), resolution_x, resolution_y, scale, angles.rotation, angles.inclination, plot_style(),
                   0, 0, 0, 0, 0, 0, 0);
}

std::int16_t ZvPlot3D::plot_style() const
{
    return to_i16(static_cast<double>(plot_type_));
}

void ZvPlot3D::ShowPlotOption()
{
    auto const& [resolution_x, resolution_y, angles, scale] = surface_view_;
    frmPlotOpt3d dialog(platform());
    dialog.SetValues(record_, resolution_x, resolution_y, angles.rotation, angles.inclination, scale, plot_style(),
                     plot_color());
    answer_options(dialog, [&] {
        take_surface_view(
            {dialog.GetResx(), dialog.GetResy(), {dialog.GetAlp(), dialog.GetThet()}, to_i16(dialog.GetPlotSccale())});
        PlotType(static_cast<PlotTypeEnum>(dialog.GetPlotType()));
        take_color(dialog.GetBackColor());
    });
}

void ZvPlot3D::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    auto const& [resolution_x, resolution_y, angles, scale] = surface_view_;
    paper.Print_3DPlot(record_, box.left, box.top, box.width, box.height, plot_style(), resolution_x, resolution_y,
                       scale, angles.rotation, angles.inclination, PlotCaption(), with_frame);
}

Interface const& ZvPlot3D::interface_table()
{
    using Z = ZvPlot3D;
    auto const type_row = [] {
        return property<Z, PlotTypeEnum, &Z::PlotType, &Z::PlotType>("PlotType", "What the cells look like.")
            .of(plot_type_enumeration())
            .saved(surface_place::look, "StdD3PlotType", long_integer(1));
    };
    static Interface const table =
        plot_interface("ZvPlot3D", "Surface plot of one panel.", SharedKeys::with_prefix("3D"),
                       {join({surface_rows("3D"), {type_row(), enable_rotation_row<Z>()}}),
                        interval_color_rows("3D", "2D")}); // reading takes the keys of the colour map
    return table;
}

} // namespace zendara
