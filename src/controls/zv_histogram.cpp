#include "zendara/controls/zv_histogram.hpp"

#include "zendara/controls/hourglass.hpp"
#include "zendara/controls/stored_properties.hpp"
#include "zendara/dialogs/frm_plot_hist.hpp"
#include "zendara/support/process_state.hpp"

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

ZvHistogram::ZvHistogram(Platform& platform) : frame_(*this, platform, "ZvHistogram"), view_(frame_.window)
{
    ResetControlLimit();
    std::initializer_list<Child*> const sources = {&frame_.window, &view_.PLOTA, &view_.histPic, &view_.frmhist};
    frame_.forward(sources, click_events);
    frame_.forward(sources, mouse_events);
    frame_.window.on_resize = [this] { lay_out(); };
    view_.Command1.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
}

void ZvHistogram::InitProperties()
{
    start_sizes();
    resolution_ = default_resolution;
    plot_type_ = 1;
    frame_.legend_shown = true;
    view_.Command1.Visible(true);
}

void ZvHistogram::PlotType(PlotTyEnum plot_type)
{
    bool const is_known = plot_type >= PlotTyEnum::vbbottom && plot_type <= PlotTyEnum::vbRight;
    plot_type_ = static_cast<std::int16_t>(is_known ? plot_type : PlotTyEnum::vbbottom);
    frame_.report_change("PlotType");
}

void ZvHistogram::Resolution(double resolution)
{
    resolution_ = to_i16(resolution == 0 ? default_resolution : resolution);
    frame_.report_change("Resolution");
}

void ZvHistogram::BeamColor(Color color)
{
    set_panel_color(frame_, &panel::ColS2, color, "BeamColor");
}

void ZvHistogram::GaussCurveColor(Color color)
{
    set_panel_color(frame_, &panel::ColS1, color, "GaussCurveColor");
}

std::int16_t ZvHistogram::Plot()
{
    return plot_at_once();
}

void ZvHistogram::draw()
{
    HourglassScope const hourglass(frame_.window);
    view_.PLOTA.Cls();
    view_.histPic.Cls();
    view_.Command1.Enabled(false);

    double x0 = view_.PLOTA.Left();
    double y0 = view_.PLOTA.Top();
    double width = view_.PLOTA.Width() - 1;
    double height = view_.PLOTA.Height() - 1;
    double left = 0;
    double top = 0;
    std::int16_t plot_type = plot_type_;
    std::int16_t tick = 4;
    std::int16_t on_screen = 0;
    frame_.record.Statistic(plot_type, view_.PLOTA.surface(), view_.histPic.surface(), x0, y0, width, height,
                            resolution_, tick, left, top, on_screen);

    view_.Command1.Enabled(true);
}

void ZvHistogram::lay_out()
{
    Window& window = frame_.window;
    bool const is_too_small = window.Width() < smallest_side || window.Height() < smallest_side;
    if (is_too_small) {
        window.take_size(at_least_smallest(window.Width()), at_least_smallest(window.Height()));
        if (window.Width() < smallest_side || window.Height() < smallest_side)
            return; // the host did not allow it
    }
    view_.lay_out(window.Width(), window.Height(), chart_);
    Plot();
}

void ZvHistogram::clear_display()
{
    view_.PLOTA.Cls();
    frame_.forget_plot();
}

void ZvHistogram::BackColor(Color color)
{
    view_.BackColor(color);
    frame_.report_change("BackColor");
}

void ZvHistogram::HideLegend(BooleanWord is_hidden)
{
    frame_.legend_shown = !is_hidden;
    view_.Command1.Visible(!is_hidden);
    frame_.window.Refresh();
    frame_.report_change("HideLegend");
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
    frmPlotHist dialog(frame_.platform());
    dialog.SetValues(frame_.record, resolution_, BackColor());
    if (!frame_.confirms(dialog))
        return;
    Resolution(dialog.GetResolution());
    if (dialog.GetBackColor() != BackColor())
        BackColor(dialog.GetBackColor());
    draw();
}

// Here the size comes before data and printer, and it is another one than that of the maps.
PrintCheck ZvHistogram::check_print() const
{
    bool const is_too_small =
        frame_.window.Width() < view_.Command1.Width() || frame_.window.Height() < smallest_printed_height;
    if (is_too_small)
        return PrintCheck::ControlTooSmall;
    return has_print_input(frame_) ? PrintCheck::Ready : PrintCheck::NothingToPrint;
}

void ZvHistogram::print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame)
{
    paper.Print_Histo(plot_type_, frame_.record, box.left, box.top, box.width, box.height, resolution_,
                      frame_.window.Width(), view_.frmhist.caption(), with_frame);
}

std::int16_t ZvHistogram::PrintPlot_THN(double left, double top, double width, double height)
{
    return print_checked([&](PrintPanel& paper) {
        paper.Print_Histo_THN(plot_type_, frame_.record, left, top, width, height, resolution_, frame_.window.Width(),
                              view_.frmhist.caption());
    });
}

std::vector<StoredProperty> const& ZvHistogram::stored_properties() const
{
    return stored_properties_of_histogram();
}

Interface const& ZvHistogram::interface_table()
{
    using Z = ZvHistogram;
    static Interface const table{
        "ZvHistogram", "Histogram of one panel's values.",
        join({
            platform_rows<Z>(),
            statistics_rows<Z>(),
            size_rows<Z>(),
            {property<Z, PlotTyEnum, &Z::PlotType, &Z::PlotType>("PlotType", "From which edge the bars grow.")
                 .of(plot_ty_enumeration()),
             property<Z, double, &Z::Resolution, &Z::Resolution>("Resolution", "Resolution of the histogram"),
             color_row<Z, Z, &Z::BeamColor, &Z::BeamColor>("BeamColor", "Colour of the bars."),
             color_row<Z, Z, &Z::GaussCurveColor, &Z::GaussCurveColor>("GaussCurveColor",
                                                                       "Colour of curve and sigma marks."),
             method<&Z::Plot>("Plot", "Shows the plot: 0 done, 1 no data."),
             color_row<Z, Z, &Z::BackColor, &Z::BackColor>("BackColor", "Colour around the plot."),
             show_plot_option_row<Z>()},
            limit_rows<Z>(),
            {set_panel_data_row<Z>(),
             property<Z, BooleanWord, &Z::HideLegend, &Z::HideLegend>("HideLegend", "Hides the options button.")
                 .of_kind(MemberKind::PutGet),
             print_plot_row<Z>(), method<&Z::PrintPlot_THN>("PrintPlot_THN", "Prints a small plot.", print_box())},
            print_data_rows<Z>(),
            read_out_rows<Z>(),
            {method<&Z::SetPlotNotVaild>("SetPlotNotVaild", "Does nothing."), set_data_file_row<Z>(),
             method<&Z::SetChartDim>("SetChartDim", "Takes top and height of the plot from another chart.",
                                     by_reference("topC"), by_reference("heightC")),
             method<&Z::Borderstyle>("Borderstyle", "Border of the frame.", by_reference("Bstyle")),
             method<&Z::ShowControlLimit>("ShowControlLimit", "Shows limits on crosswise histograms.",
                                          by_reference("LCLs"), by_reference("UCLs")),
             method<&Z::ResetControlLimit>("ResetControlLimit", "Takes those limits away.")},
        }),
        control_events()};
    return table;
}

} // namespace zendara
