#include "zendara/dialogs/frm_plot_opt_3d.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace zendara
{

namespace
{

constexpr FieldRow resolution_x{"tresx", "Resolution X: ", 'X', "mm"};
constexpr FieldRow resolution_y{"tresy", "Resolution Y: ", 'Y', "mm"};
constexpr FieldRow surface_scale{"tscale", "Scale: ", 'S', "mm", Entry::WholeNumber};
constexpr FieldRow sigma_range{"SSigma", "Sigma Range: ", 'g', ""};
constexpr FieldRow bar_width{"tresx", "Bar width: ", 'w', "mm"};
constexpr FieldRow bar_depth{"tresy", "Bar depth: ", 'd', "mm"};
constexpr FieldRow bar_scale{"tscale", "Scale: ", 'S', "mm", Entry::Number, 1.0};

constexpr FieldCheck check_x{"X Resolution ", 0.001, FieldLimit::share_of(&panel::SizeX, 4)};
constexpr FieldCheck check_y{"Y Resolution ", 0.001, FieldLimit::share_of(&panel::SizeY, 4)};
constexpr FieldCheck check_scale{"Scale Factor ", 0, {1000}};
constexpr FieldCheck check_bar_width{"Bar width ", 0.001, FieldLimit::share_of(&panel::SizeX, 2)};
constexpr FieldCheck check_bar_depth{"Bar depth ", 0.001, FieldLimit::share_of(&panel::SizeY, 2)};
constexpr FieldCheck check_bar_scale{"Scale factor ", 1e-7, {1000}};

constexpr AngleRow surface_rotation{"talph", "Rotation:", 'R', 360, 359, 0};
constexpr AngleRow bar_rotation{"talph", "Rotation:", 'R', 361, 90, 90};
constexpr AngleRow inclination{"tthet", "Inclination:", 'I', 361, 90, 90};

// The plot types in the order of the buttons' indices.
constexpr std::array<std::int16_t, 3> plot_types = {1, 3, 2};

template <class D> std::vector<Member> view_rows()
{
    return {method<&D::GetAlp>("GetAlp", "Rotation in degrees."),
            method<&D::GetThet>("GetThet", "Inclination in degrees."),
            method<&D::GetResx>("GetResx", "Size along x in mm."),
            method<&D::GetResy>("GetResy", "Size along y in mm."),
            method<&D::GetPlotSccale>("GetPlotSccale", "Scale of the values."),
            redraw_row()};
}

void add_fields(RowLayout& rows, std::initializer_list<NumberField*> fields)
{
    for (NumberField* const field : fields)
        rows.add({&field->caption}, {&field->box, &field->unit});
}

} // namespace

// Named after what each type draws: 3 fills its cells white, so that they hide what lies behind, 2 leaves all edges.
OptionRow const surface_plot_types[3] = {{2, "Wireframe"}, {1, "Hidden Wireframe"}, {0, "Polys + Edge"}};

std::int16_t plot_type_of_index(int index)
{
    return plot_types.at(static_cast<std::size_t>(index));
}

int index_of_plot_type(std::int16_t plot_type)
{
    auto const found = std::find(plot_types.begin(), plot_types.end(), plot_type);
    return found == plot_types.end() ? -1 : static_cast<int>(found - plot_types.begin());
}

frmPlotOpt3d::frmPlotOpt3d(Platform& platform)
    : OptionDialog(platform, "frmPlotOpt3d", ""), tresx(frame, resolution_x), tresy(frame, resolution_y),
      tscale(frame, surface_scale), optPlot(frame, "optPlot", "Plot Type", 'T', surface_plot_types),
      view(frame, surface_rotation, inclination, ""), ground(frame)
{
    check_on_ok(tresx, check_x);
    check_on_ok(tresy, check_y);
    check_on_ok(tscale, check_scale);

    RowLayout rows(frame);
    add_fields(rows, {&tresx, &tresy, &tscale});
    rows.add({&optPlot.caption}, {&optPlot.frame});
    rows.add({&view.grid});
    rows.add({&ground.whiteback});
    place(rows);
}

void frmPlotOpt3d::SetValues(panel& wafo, double Xres, double yres, std::int16_t al, std::int16_t the, double d3scal,
                             std::int16_t plotop, Color BackC)
{
    keep_panel(wafo);
    tresx.open(Xres);
    tresy.open(yres);
    view.open(al, the);
    tscale.open(d3scal);
    opening_plot_type_ = plotop;
    optPlot.choose(index_of_plot_type(plotop));
    ground.open(BackC);
}

std::int16_t frmPlotOpt3d::GetPlotType()
{
    int const index = optPlot.chosen();
    return index < 0 ? opening_plot_type_ : plot_type_of_index(index);
}

Interface const& frmPlotOpt3d::host_interface() const
{
    using D = frmPlotOpt3d;
    static Interface const table{
        "frmPlotOpt3d", "Options of the surface plot.",
        join({place_and_looks(),
              {method<&D::SetValues>("SetValues", "Fills the dialog.", by_reference("wafo"), by_value("Xres"),
                                     by_value("yres"), by_value("al"), by_value("the"), by_value("d3scal"),
                                     by_value("plotop"), by_value("BackC"))},
              view_rows<D>(),
              {method<&D::GetPlotType>("GetPlotType", "What the cells look like."),
               method<&D::GetBackColor>("GetBackColor", "Colour around the plot.")}})};
    return table;
}

frmPlotOpt3ds::frmPlotOpt3ds(Platform& platform)
    : OptionDialog(platform, "frmPlotOpt3ds", "3D Sigma Range Plot"), tresx(frame, resolution_x),
      tresy(frame, resolution_y), tscale(frame, surface_scale), SSigma(frame, sigma_range),
      view(frame, surface_rotation, inclination, ""), ground(frame)
{
    check_on_ok(tresx, check_x);
    check_on_ok(tresy, check_y);
    check_on_ok(tscale, check_scale);

    RowLayout rows(frame);
    add_fields(rows, {&tresx, &tresy, &tscale, &SSigma});
    rows.add({&view.grid});
    rows.add({&ground.whiteback});
    place(rows);
}

void frmPlotOpt3ds::SetValues(panel& wafo, double Xres, double yres, double sig, std::int16_t al, std::int16_t the,
                              double d3scal, Color BackC)
{
    keep_panel(wafo);
    tresx.open(Xres);
    tresy.open(yres);
    SSigma.open(sig);
    view.open(al, the);
    tscale.open(d3scal);
    ground.open(BackC);
}

Interface const& frmPlotOpt3ds::host_interface() const
{
    using D = frmPlotOpt3ds;
    static Interface const table{
        "frmPlotOpt3ds", "Options of the sigma surface.",
        join({place_and_looks(),
              {method<&D::SetValues>("SetValues", "Fills the dialog.", by_reference("wafo"), by_value("Xres"),
                                     by_value("yres"), by_value("sig"), by_value("al"), by_value("the"),
                                     by_value("d3scal"), by_value("BackC"))},
              view_rows<D>(),
              {method<&D::GetSigRange>("GetSigRange", "Half width of the sigma band."),
               method<&D::GetBackColor>("GetBackColor", "Colour around the plot.")}})};
    return table;
}

frmPlotOpt2DB::frmPlotOpt2DB(Platform& platform)
    : OptionDialog(platform, "frmPlotOpt2DB", "3D Bar Plot"), tresx(frame, bar_width), tresy(frame, bar_depth),
      tscale(frame, bar_scale), view(frame, bar_rotation, inclination, "Beam Rotation:"), ground(frame)
{
    ground.whiteback.Visible(false);
    check_on_ok(tresx, check_bar_width);
    check_on_ok(tresy, check_bar_depth);
    check_on_ok(tscale, check_bar_scale);

    RowLayout rows(frame);
    add_fields(rows, {&tresx, &tresy, &tscale});
    rows.add({&view.grid});
    place(rows);
}

void frmPlotOpt2DB::SetValues(panel& wafo, double Xres, double yres, std::int16_t al, std::int16_t the, double d3scal)
{
    keep_panel(wafo);
    tresx.open(Xres);
    tresy.open(yres);
    view.open(al, the);
    tscale.open(d3scal);
}

Interface const& frmPlotOpt2DB::host_interface() const
{
    using D = frmPlotOpt2DB;
    static Interface const table{
        "frmPlotOpt2DB", "Options of the bar plot.",
        join({place_and_looks(),
              {method<&D::SetValues>("SetValues", "Fills the dialog.", by_reference("wafo"), by_value("Xres"),
                                     by_value("yres"), by_value("al"), by_value("the"), by_value("d3scal"))},
              view_rows<D>()})};
    return table;
}

} // namespace zendara
