#include "zendara/dialogs/frm_plot_opt_2dc.hpp"

namespace zendara
{

namespace
{

constexpr FieldRow interval{"tdist", "Interval:", 'I', ""};
constexpr FieldCheck check_interval{"Interval ", 0.009, {1000}};

constexpr OptionRow resolutions[] = {{0, "Low"}, {2, "Auto"}, {1, "High"}};
constexpr OptionRow marks[] = {{3, "none"}, {1, "exact"}, {2, "converted"}};
constexpr OptionRow colors[] = {{0, "black/white"}, {1, "3 Color"}, {2, "MultiColor"}};

} // namespace

frmPlotOpt2DC::frmPlotOpt2DC(Platform& platform)
    : OptionDialog(platform, "frmPlotOpt2DC", "2D Contour Plot"), tdist(frame, interval), com2DC(frame, "com2DC"),
      OptQuali(frame, "OptQuali", "Plot Resolution:", 'R', resolutions),
      OptExcon(frame, "OptExcon", "Marked Sites:", 'M', marks), Optcol(frame, "Optcol", "Draw Plot:", 'D', colors),
      ground(frame)
{
    com2DC.is_push_button = true;
    com2DC.caption("Measurement Units!");
    com2DC.access_key = 'U';
    check_on_ok(tdist, check_interval);

    RowLayout rows(frame);
    rows.add({&tdist.caption}, {&tdist.box, &com2DC});
    for (OptionGroup* const group : {&OptQuali, &OptExcon, &Optcol})
        rows.add({&group->caption}, {&group->frame});
    rows.add({&ground.whiteback});
    place(rows);
}

void frmPlotOpt2DC::SetValues(panel& wafo, std::int16_t exCo, std::int16_t res, std::int16_t col, double dis,
                              Color BackC, BooleanWord distper)
{
    keep_panel(wafo);
    OptExcon.choose(exCo);
    OptQuali.choose(res);
    Optcol.choose(col);
    tdist.open(dis);
    com2DC.Value(distper ? 1 : 0);
    ground.open(BackC);
}

double frmPlotOpt2DC::GetDist(BooleanWord& distPerc) const
{
    distPerc = com2DC.is_checked();
    return tdist.value();
}

Interface const& frmPlotOpt2DC::host_interface() const
{
    using D = frmPlotOpt2DC;
    static Interface const table{
        "frmPlotOpt2DC", "Options of the contour plot.",
        join({place_and_looks(),
              {method<&D::SetValues>("SetValues", "Fills the dialog.", by_reference("wafo"), by_value("exCo"),
                                     by_value("res"), by_value("col"), by_value("dis"), by_value("BackC"),
                                     by_value("distper")),
               redraw_row(),
               method<&D::GetDist>("GetDist", "Interval of the lines, and whether it is in measurement units.",
                                   by_reference("distPerc")),
               method<&D::GetReso>("GetReso", "Fineness of the raster."),
               method<&D::GetMarkeSites>("GetMarkeSites", "Which marks are drawn."),
               method<&D::GetShowColor>("GetShowColor", "Colours of the lines."),
               method<&D::GetBackColor>("GetBackColor", "Colour around the plot.")}})};
    return table;
}

} // namespace zendara
