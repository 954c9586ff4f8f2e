#include "zendara/dialogs/frm_plot_opt_2d.hpp"

namespace zendara
{

namespace
{

constexpr FieldRow map_resolution_x{"tresx", "Resolution X : ", 'X', "mm"};
constexpr FieldRow map_resolution_y{"tresy", "Resolution Y : ", 'Y', "mm"};
constexpr FieldRow sigma_resolution_x{"tresx", "Resolution X: ", 'X', "mm"};
constexpr FieldRow sigma_resolution_y{"tresy", "Resolution Y: ", 'Y', "mm"};
constexpr FieldRow sigma_range{"SSigma", "Sigma Range: ", 'g', ""};

constexpr FieldCheck check_x{"Resolution X ", 0.001, FieldLimit::share_of(&panel::SizeX, 4)};
constexpr FieldCheck check_y{"Resolution Y ", 0.001, FieldLimit::share_of(&panel::SizeY, 4)};
constexpr FieldCheck check_sigma{"Sigma Range ", 0.001, {1000}};

} // namespace

frmPlotOpt2d::frmPlotOpt2d(Platform& platform)
    : OptionDialog(platform, "frmPlotOpt2d", "2D Plot"), tresx(frame, map_resolution_x), tresy(frame, map_resolution_y),
      marks(frame, show_before_hide), ground(frame)
{
    check_on_ok(tresx, check_x);
    check_on_ok(tresy, check_y);

    RowLayout rows(frame);
    for (NumberField* const field : {&tresx, &tresy})
        rows.add({&field->caption}, {&field->box, &field->unit});
    rows.add({&marks.optMark.caption}, {&marks.optMark.frame});
    rows.add({&ground.whiteback});
    place(rows);
}

void frmPlotOpt2d::SetValues(panel& wafo, double Xres, double yres, BooleanWord markS, Color BackC)
{
    keep_panel(wafo);
    tresx.open(Xres);
    tresy.open(yres);
    marks.open(markS);
    ground.open(BackC);
}

// The two results are added, not joined: one wrong field is let through, and the control corrects what it gets.
bool frmPlotOpt2d::is_valid(std::string& message) const
{
    return count_wrong_fields(message) < checked_fields();
}

Interface const& frmPlotOpt2d::host_interface() const
{
    using D = frmPlotOpt2d;
    static Interface const table{
        "frmPlotOpt2d", "Options of the colour map.",
        join({place_and_looks(),
              {method<&D::SetValues>("SetValues", "Fills the dialog.", by_reference("wafo"), by_value("Xres"),
                                     by_value("yres"), by_value("markS"), by_value("BackC")),
               redraw_row(), method<&D::GetXRes>("GetXRes", "Width of a cell in mm."),
               method<&D::GetYRes>("GetYRes", "Height of a cell in mm."),
               method<&D::GetMarkeSites>("GetMarkeSites", "Whether the sites are marked."),
               method<&D::GetBackColor>("GetBackColor", "Colour around the plot.")}})};
    return table;
}

frmPlotOpt2ds::frmPlotOpt2ds(Platform& platform)
    : OptionDialog(platform, "frmPlotOpt2ds", "2D Sigma Plot"), tresx(frame, sigma_resolution_x),
      tresy(frame, sigma_resolution_y), SSigma(frame, sigma_range), sigma_sign(frame, "lblSigma"),
      marks(frame, show_before_hide), ground(frame)
{
    sigma_sign.Font({"Symbol", 8});
    sigma_sign.caption("s");
    check_on_ok(tresx, check_x);
    check_on_ok(tresy, check_y);
    check_on_ok(SSigma, check_sigma);

    RowLayout rows(frame);
    for (NumberField* const field : {&tresx, &tresy})
        rows.add({&field->caption}, {&field->box, &field->unit});
    rows.add({&SSigma.caption, &sigma_sign}, {&SSigma.box});
    rows.add({&marks.optMark.caption}, {&marks.optMark.frame});
    rows.add({&ground.whiteback});
    place(rows);
}

void frmPlotOpt2ds::SetValues(panel& wafo, double Xres, double yres, double sig, BooleanWord markS, Color BackC)
{
    keep_panel(wafo);
    tresx.open(Xres);
    tresy.open(yres);
    SSigma.open(sig);
    marks.open(markS);
    ground.open(BackC);
}

Interface const& frmPlotOpt2ds::host_interface() const
{
    using D = frmPlotOpt2ds;
    static Interface const table{
        "frmPlotOpt2ds", "Options of the sigma map.",
        join({place_and_looks(),
              {method<&D::SetValues>("SetValues", "Fills the dialog.", by_reference("wafo"), by_value("Xres"),
                                     by_value("yres"), by_value("sig"), by_value("markS"), by_value("BackC")),
               redraw_row(), method<&D::GetXRes>("GetXRes", "Width of a cell in mm."),
               method<&D::GetYRes>("GetYRes", "Height of a cell in mm."),
               method<&D::GetMarkeSites>("GetMarkeSites", "Whether the sites are marked."),
               method<&D::GetBackColor>("GetBackColor", "Colour around the plot."),
               method<&D::GetSigRange>("GetSigRange", "Half width of the sigma band.")}})};
    return table;
}

} // namespace zendara
