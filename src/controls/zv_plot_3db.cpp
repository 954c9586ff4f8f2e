#include "zendara/controls/zv_plot_3db.hpp"

#include "zendara/controls/plot_control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_opt_3d.hpp"
#include "zendara/print/print_panel.hpp"

namespace zendara
{

ZvPlot3DB::ZvPlot3DB(Platform& platform)
    : PlotControl(platform, "ZvPlot3DB", AboutKind::Surface), TenIntervalColors(self()), rotation_(*this, angles_)
{
    answer_user();
    rotation_.answer_mouse();
}

void ZvPlot3DB::InitProperties()
{
    PlotControl::InitProperties();
    bars_ = {};
    angles_ = {};
}

void ZvPlot3DB::BeamWidth(double width)
{
    bars_.width = width;
    settings_changed("BeamWidth");
}

void ZvPlot3DB::BeamHeight(double depth)
{
    bars_.depth = depth;
    settings_changed("BeamHeight");
}

void ZvPlot3DB::BeamScale(double scale)
{
    bars_.scale = scale;
    settings_changed("BeamScale");
}

void ZvPlot3DB::GridRotation(std::int16_t degrees)
{
    angles_.rotation = degrees;
    settings_changed("GridRotation");
}

void ZvPlot3DB::GridInclination(std::int16_t degrees)
{
    angles_.inclination = degrees;
    settings_changed("GridInclination");
}

void ZvPlot3DB::draw_plot()
{
    record_.D2BeamPlot(plot_surface(), bars_.width, bars_.depth, bars_.scale, angles_.rotation, angles_.inclination, 0,
                       0, 0, 0, 0, 0);
}

// The colour around the plot is no option of this control.
void ZvPlot3DB::ShowPlotOption()
{
    frmPlotOpt2DB dialog(platform());
    dialog.SetValues(record_, bars_.width, bars_.depth, angles_.rotation, angles_.inclination, bars_.scale);
    answer_options(dialog, [&] {
        BeamWidth(dialog.GetResx());
        BeamHeight(dialog.GetResy());
        GridRotation(dialog.GetAlp());
        GridInclination(dialog.GetThet());
        BeamScale(dialog.GetPlotSccale());
    });
}

void ZvPlot3DB::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    paper.Print_2DBPlot(record_, box.left, box.top, box.width, box.height, bars_.width, bars_.depth, bars_.scale,
                        angles_.rotation, angles_.inclination, PlotCaption(), with_frame);
}

namespace
{

std::vector<Member> bar_rows()
{
    using Z = ZvPlot3DB;
    using I2 = std::int16_t;
    constexpr int place = store_place::settings;
    return {
        property<Z, double, &Z::BeamWidth, &Z::BeamWidth>("BeamWidth", "Size of a bar along x in mm.")
            .saved(place, "Stdbx2DB", integer(5)),
        property<Z, double, &Z::BeamHeight, &Z::BeamHeight>("BeamHeight", "Size of a bar along y in mm.")
            .saved(place + 1, "Stdby2DB", integer(5)),
        property<Z, double, &Z::BeamScale, &Z::BeamScale>("BeamScale", "Height of a bar per unit of the value.")
            .saved(place + 4, "StdD3Scale2DB", integer(10)),
        property<Z, I2, &Z::GridRotation, &Z::GridRotation>("GridRotation", "Rotation of the plot in degrees.")
            .saved(place + 2, "StdAlp2DB", integer(40)),
        property<Z, I2, &Z::GridInclination, &Z::GridInclination>("GridInclination",
                                                                  "Inclination of the plot in degrees.")
            .saved(place + 3, "StdThet2DB", integer(35)),
        enable_rotation_row<Z>(),
    };
}

} // namespace

Interface const& ZvPlot3DB::interface_table()
{
    static Interface const table =
        plot_interface("ZvPlot3DB", "Bar plot of one panel.", SharedKeys::with_prefix("2DB"),
                       {bar_rows(), interval_color_rows("2DB", "2D")}); // reading takes the keys of the colour map
    return table;
}

} // namespace zendara
