#include "zendara/controls/zv_plot_3db.hpp"

#include "zendara/controls/plot_interface.hpp"
#include "zendara/controls/stored_properties.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"

namespace zendara
{

ZvPlot3DB::ZvPlot3DB(Platform& platform)
    : frame_(*this, platform, "ZvPlot3DB"),
      plot_frame_(frame_, {[this] { fill_legend(); }, [this] { plot_frame_.draw([this] { draw(); }); }}),
      rotation_(frame_, plot_frame_, angles_, [this] { draw_preview(); })
{
    plot_frame_.forward_events();
    rotation_.answer_mouse();
    plot_frame_.column.Command1.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
}

void ZvPlot3DB::InitProperties()
{
    start_frame();
    bars_ = {};
    angles_ = {};
}

void ZvPlot3DB::fill_legend()
{
    frame_.record.scale_colored(plot_frame_.column.scalCol, plot_frame_.column.ScaleValue);
}

void ZvPlot3DB::draw()
{
    plot_frame_.show_position(angles_.rotation, angles_.inclination);
    draw_bars();
}

// A drag draws all bars: there is no coarser form of them.
void ZvPlot3DB::draw_preview()
{
    plot_frame_.draw_position(angles_.rotation, angles_.inclination);
    draw_bars();
}

void ZvPlot3DB::draw_bars()
{
    frame_.record.D2BeamPlot(plot_frame_.view.PLOTA.surface(), bars_.width, bars_.depth, bars_.scale, angles_.rotation,
                             angles_.inclination, 0, 0, 0, 0, 0, 0);
}

// The colour around the plot is no option of this control.
void ZvPlot3DB::ShowPlotOption()
{
    frmPlotOpt2DB dialog(frame_.platform());
    dialog.SetValues(frame_.record, bars_.width, bars_.depth, angles_.rotation, angles_.inclination, bars_.scale);
    answer_options(dialog, [&] {
        BeamWidth(dialog.GetResx());
        BeamHeight(dialog.GetResy());
        GridRotation(dialog.GetAlp());
        GridInclination(dialog.GetThet());
        BeamScale(dialog.GetPlotSccale());
    });
}

void ZvPlot3DB::print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame)
{
    paper.Print_2DBPlot(frame_.record, box.left, box.top, box.width, box.height, bars_.width, bars_.depth, bars_.scale,
                        angles_.rotation, angles_.inclination, PlotCaption(), with_frame);
}

std::vector<StoredProperty> const& ZvPlot3DB::stored_properties() const
{
    return stored_properties_of_3db();
}

Interface const& ZvPlot3DB::interface_table()
{
    using Z = ZvPlot3DB;
    using Degrees = std::int16_t;
    std::vector<Member> settings = {
        property<Z, double, &Z::BeamWidth, &Z::BeamWidth>("BeamWidth", "Size of a bar along x in mm."),
        property<Z, double, &Z::BeamHeight, &Z::BeamHeight>("BeamHeight", "Size of a bar along y in mm."),
        property<Z, double, &Z::BeamScale, &Z::BeamScale>("BeamScale", "Height of a bar per unit of the value."),
        property<Z, Degrees, &Z::GridRotation, &Z::GridRotation>("GridRotation", "Rotation of the plot in degrees."),
        property<Z, Degrees, &Z::GridInclination, &Z::GridInclination>("GridInclination",
                                                                       "Inclination of the plot in degrees."),
        enable_rotation_row<Z>()};
    static Interface const table =
        plot_interface<Z>("ZvPlot3DB", "Bar plot of one panel.", {std::move(settings), interval_color_rows<Z>()});
    return table;
}

} // namespace zendara
