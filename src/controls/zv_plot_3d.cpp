#include "zendara/controls/zv_plot_3d.hpp"

#include "zendara/controls/plot_interface.hpp"
#include "zendara/controls/stored_properties.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"

namespace zendara
{

Enumeration const& plot_type_enumeration()
{
    static Enumeration const values{"PlotTypeEnum", {{"PolyEdge", 1}, {"HiddenWireFrame", 2}, {"WireFrame", 3}}};
    return values;
}

ZvPlot3D::ZvPlot3D(Platform& platform)
    : frame_(*this, platform, "ZvPlot3D"),
      plot_frame_(frame_, {[this] { fill_legend(); }, [this] { plot_frame_.draw([this] { draw_surface(); }); }}),
      rotation_(frame_, plot_frame_, view_.angles, [this] { draw_preview(); })
{
    plot_frame_.forward_events();
    rotation_.answer_mouse();
    plot_frame_.column.Command1.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
}

void ZvPlot3D::InitProperties()
{
    start_frame();
    view_ = {};
    plot_type_ = PlotTypeEnum::PolyEdge;
}

void ZvPlot3D::PlotType(PlotTypeEnum type)
{
    plot_type_ = type;
    frame_.settings_changed("PlotType");
}

void ZvPlot3D::fill_legend()
{
    frame_.record.scale_colored(plot_frame_.column.scalCol, plot_frame_.column.ScaleValue);
}

void ZvPlot3D::draw_surface()
{
    if (limit_resolution(frame_.record, view_.resolution_x, view_.resolution_y, frame_.platform()))
        ShowPlotOption();
    plot_frame_.show_position(view_.angles.rotation, view_.angles.inclination);
    view_.draw(frame_.record, plot_frame_.view.PLOTA.surface(), look());
}

void ZvPlot3D::draw_preview()
{
    plot_frame_.draw_position(view_.angles.rotation, view_.angles.inclination);
    view_.draw_preview(frame_.record, plot_frame_.view.PLOTA.surface(), look());
}

SurfaceView::Look ZvPlot3D::look() const
{
    return {to_i16(static_cast<double>(plot_type_))};
}

void ZvPlot3D::ShowPlotOption()
{
    frmPlotOpt3d dialog(frame_.platform());
    dialog.SetValues(frame_.record, view_.resolution_x, view_.resolution_y, view_.angles.rotation,
                     view_.angles.inclination, view_.scale, to_i16(static_cast<double>(plot_type_)), plot_color());
    answer_options(dialog, [&] {
        take_view(dialog);
        PlotType(static_cast<PlotTypeEnum>(dialog.GetPlotType()));
        take_color(dialog.GetBackColor());
    });
}

void ZvPlot3D::print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame)
{
    paper.Print_3DPlot(frame_.record, box.left, box.top, box.width, box.height, look().plot_style, view_.resolution_x,
                       view_.resolution_y, view_.scale, view_.angles.rotation, view_.angles.inclination, PlotCaption(),
                       with_frame);
}

std::vector<StoredProperty> const& ZvPlot3D::stored_properties() const
{
    return stored_properties_of_3d();
}

Interface const& ZvPlot3D::interface_table()
{
    using Z = ZvPlot3D;
    auto const type_row = property<Z, PlotTypeEnum, &Z::PlotType, &Z::PlotType>("PlotType", "What the cells look like.")
                              .of(plot_type_enumeration());
    static Interface const table = plot_interface<Z>(
        "ZvPlot3D", "Surface plot of one panel.",
        {join({surface_view_rows<Z>(), {type_row, enable_rotation_row<Z>()}}), interval_color_rows<Z>()});
    return table;
}

} // namespace zendara
