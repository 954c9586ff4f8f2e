#include "zendara/controls/zv_histogram.hpp"

#include "zendara/controls/busy.hpp"
#include "zendara/controls/control_rows.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/frm_plot_hist.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/process_state.hpp"
#include "zendara/support/trap.hpp"

namespace zendara
{

namespace
{

constexpr double default_resolution = 10;
constexpr double smallest_side = 2000;          // twips; below it the control grows
constexpr double side_grown_to = 2100;          // twips
constexpr double smallest_printed_height = 100; // twips

Enumeration const& plot_ty_enumeration()
{
    static Enumeration const values{"PlotTyEnum", {{"vbbottom", 1}, {"vbTop", 2}, {"vbLeft", 3}, {"vbRight", 4}}};
    return values;
}

double at_least_smallest(double side)
{
    return side < smallest_side ? side_grown_to : side;
}

} // namespace

ZvHistogram::ZvHistogram(Platform& platform) : Control(platform, "ZvHistogram", AboutKind::Histogram), view_(window_)
{
    ResetControlLimit();
    forward({"Click", "DblClick", "MouseDown", "MouseMove", "MouseUp"},
            {&window_, &view_.PLOTA, &view_.histPic, &view_.frmhist});
    window_.on_resize = [this] { lay_out(); };
    view_.Command1.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
}

void ZvHistogram::InitProperties()
{
    Control::InitProperties();
    resolution_ = default_resolution;
    plot_type_ = 1;
    view_.Command1.Visible(true);
}

// --- Settings --------------------------------------------------------------------------------------------------------

void ZvHistogram::PlotType(PlotTyEnum plot_type)
{
    bool const is_known = plot_type >= PlotTyEnum::vbbottom && plot_type <= PlotTyEnum::vbRight;
    plot_type_ = static_cast<std::int16_t>(is_known ? plot_type : PlotTyEnum::vbbottom);
    report_change("PlotType");
}

void ZvHistogram::Resolution(double resolution)
{
    resolution_ = to_i16(resolution == 0 ? default_resolution : resolution);
    report_change("Resolution");
}

void ZvHistogram::repaint_background()
{
    if (plot_requested_)
        trap(trap_place("BackColor", "plot"), [this] { draw_again(); });
}

void ZvHistogram::show_legend(bool is_shown)
{
    view_.Command1.Visible(is_shown);
    window_.Refresh();
}

void ZvHistogram::SetChartDim(double topC, double heightC)
{
    chart_ = {topC, heightC};
    lay_out();
}

void ZvHistogram::Borderstyle(std::int16_t Bstyle)
{
    view_.frmhist.has_border = Bstyle != 0;
    view_.frmhist.Refresh();
}

void ZvHistogram::ShowControlLimit(double LCLs, double UCLs)
{
    set_histogram_limits({true, LCLs, UCLs});
}

void ZvHistogram::ResetControlLimit()
{
    auto limits = histogram_limits();
    limits.HistLimitOn = false;
    set_histogram_limits(limits);
}

void ZvHistogram::ShowPlotOption()
{
    frmPlotHist dialog(platform());
    dialog.SetValues(record_, resolution_, BackColor());
    if (!confirms(dialog))
        return;
    Resolution(dialog.GetResolution());
    if (dialog.GetBackColor() != BackColor())
        take_background(dialog.GetBackColor());
    draw();
}

// --- Drawing ---------------------------------------------------------------------------------------------------------

void ZvHistogram::draw()
{
    drawn_with_ = {DrawingState(view_.PLOTA.surface()), DrawingState(view_.histPic.surface()), plot_type_, resolution_};
    draw_statistic(plot_type_, resolution_);
}

// The axes are drawn in the colour and the face that the surface happens to have: the same ones once more.
void ZvHistogram::draw_again()
{
    if (!drawn_with_)
        return;
    drawn_with_->plot.give(view_.PLOTA.surface());
    drawn_with_->outer.give(view_.histPic.surface());
    draw_statistic(drawn_with_->plot_type, drawn_with_->resolution);
}

void ZvHistogram::draw_statistic(std::int16_t plot_type, double resolution)
{
    HourglassScope const hourglass(window_);
    view_.PLOTA.Cls();
    view_.histPic.Cls();
    DisabledScope const no_options(view_.Command1);

    double x0 = view_.PLOTA.Left();
    double y0 = view_.PLOTA.Top();
    double width = view_.PLOTA.Width() - 1;
    double height = view_.PLOTA.Height() - 1;
    double left = 0;
    double top = 0;
    std::int16_t tick = 4;
    std::int16_t on_screen = 0;
    record_.Statistic(plot_type, view_.PLOTA.surface(), view_.histPic.surface(), x0, y0, width, height, resolution,
                      tick, left, top, on_screen);
}

// Ends quietly on a failure.
void ZvHistogram::lay_out()
{
    trap(trap_place("layout", "all"), [this] { lay_out_steps(); });
}

void ZvHistogram::lay_out_steps()
{
    if (window_.Width() < smallest_side || window_.Height() < smallest_side) {
        window_.take_size(at_least_smallest(window_.Width()), at_least_smallest(window_.Height()));
        if (window_.Width() < smallest_side || window_.Height() < smallest_side)
            return; // the host did not allow it
    }
    view_.lay_out(window_.Width(), window_.Height(), chart_);
    Plot();
}

void ZvHistogram::clear_display()
{
    view_.PLOTA.Cls();
    forget_plot();
}

// --- Printing --------------------------------------------------------------------------------------------------------

// Here the size comes before data and printer, and it is another one than that of the maps.
Control::PrintCheck ZvHistogram::check_print() const
{
    bool const is_too_small = window_.Width() < view_.Command1.Width() || window_.Height() < smallest_printed_height;
    if (is_too_small)
        return PrintCheck::ControlTooSmall;
    return has_print_input() ? PrintCheck::Ready : PrintCheck::NothingToPrint;
}

void ZvHistogram::print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame)
{
    paper.Print_Histo(plot_type_, record_, box.left, box.top, box.width, box.height, resolution_, window_.Width(),
                      view_.frmhist.caption(), with_frame);
}

std::int16_t ZvHistogram::PrintPlot_THN(double left, double top, double width, double height)
{
    return print_checked([&](PrintPanel& paper) {
        paper.Print_Histo_THN(plot_type_, record_, left, top, width, height, resolution_, window_.Width(),
                              view_.frmhist.caption());
    });
}

namespace
{

std::vector<Member> histogram_rows()
{
    using Z = ZvHistogram;
    constexpr int place = store_place::settings;
    return {
        property<Z, PlotTyEnum, &Z::PlotType, &Z::PlotType>("PlotType", "From which edge the bars grow.")
            .of(plot_ty_enumeration())
            .saved(place, "StdPlotType", integer(1)),
        property<Z, double, &Z::Resolution, &Z::Resolution>("Resolution", "Resolution of the histogram")
            .saved(place + 1, "StdStatResol", integer(10)),
        color_property<Z, &Z::BeamColor, &Z::BeamColor>("BeamColor", "Colour of the bars.")
            .saved(place + 2, "StdBeamColor", long_integer(QBColor(2))),
        color_property<Z, &Z::GaussCurveColor, &Z::GaussCurveColor>("GaussCurveColor",
                                                                    "Colour of curve and sigma marks.")
            .saved(place + 3, "StdGaussCurveColor", long_integer(QBColor(4))),
    };
}

std::vector<Member> chart_rows()
{
    using Z = ZvHistogram;
    return {
        method<&Z::SetChartDim>("SetChartDim", "Takes top and height of the plot from another chart.",
                                by_references("topC", "heightC")),
        method<&Z::Borderstyle>("Borderstyle", "Border of the frame.", by_reference("Bstyle")),
        method<&Z::ShowControlLimit>("ShowControlLimit", "Shows limits on crosswise histograms.",
                                     by_references("LCLs", "UCLs")),
        method<&Z::ResetControlLimit>("ResetControlLimit", "Takes those limits away."),
    };
}

} // namespace

Interface const& ZvHistogram::interface_table()
{
    static SharedKeys const keys = {"BackColor", "PanelSizeX", "PanelSizeY", "Legend", "", "MousePointer", "MouseIcon"};
    static Interface const table{
        "ZvHistogram", "Histogram of one panel's values.",
        join({
            platform_rows(keys),
            statistics_rows(),
            size_rows(keys),
            histogram_rows(),
            {plot_row(), back_color_row(keys), show_plot_option_row()},
            limit_rows(),
            {set_panel_data_row(), hide_legend_row(keys, "Hides the options button."), print_plot_row(),
             method<&ZvHistogram::PrintPlot_THN>("PrintPlot_THN", "Prints a small plot.", print_box())},
            print_data_rows(),
            read_out_rows(),
            {set_plot_not_valid_row("Does nothing."), set_data_file_row()},
            chart_rows(),
        }),
        control_events()};
    return table;
}

} // namespace zendara
