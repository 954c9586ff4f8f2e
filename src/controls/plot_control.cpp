#include "zendara/controls/plot_control.hpp"

#include "zendara/controls/busy.hpp"
#include "zendara/controls/resolution_limit.hpp"
#include "zendara/dialogs/option_dialog.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/support/trap.hpp"

#include <algorithm>

namespace zendara
{

namespace
{

// In twips.
constexpr double smallest_width = 4500;
constexpr double smallest_height = 3180;
constexpr double smallest_side_without_legend = 750;

} // namespace

PlotControl::PlotControl(Platform& platform, std::string name, AboutKind about_kind)
    : Control(platform, std::move(name), about_kind), view_(window_), column_(window_), copypic(window_, "copypic")
{
    copypic.Visible(false);
    window_.on_resize = [this] { lay_out(); };
}

void PlotControl::InitProperties()
{
    Control::InitProperties();
    column_.frmove.Visible(true);
    view_.Frplot.caption("Panel");
}

void PlotControl::answer_user()
{
    forward({"Click", "DblClick", "MouseDown", "MouseMove", "MouseUp"},
            {&window_, &view_.PLOTA, &column_.frmove, &view_.Frplot});
    column_.Command1.on("Click", [this](std::span<Value>) { ShowPlotOption(); });
}

// --- Settings --------------------------------------------------------------------------------------------------------

void PlotControl::PlotCaption(std::string_view caption)
{
    view_.Frplot.caption(caption);
    window_.Refresh();
    report_change("PlotCaption");
}

void PlotControl::set_background(Color color)
{
    column_.BackColor(color);
    view_.Frplot.BackColor(color);
    window_.BackColor(color);
}

void PlotControl::repaint_background()
{
    if (figure_drawn_)
        trap(trap_place("BackColor", "figure"), [this] { draw_figure(nullptr); });
}

void PlotControl::show_legend(bool is_shown)
{
    column_.frmove.Visible(is_shown);
    window_.Refresh();
    lay_out();
}

void PlotControl::answer_options(OptionDialog& dialog, std::function<void()> const& store)
{
    if (!confirms(dialog))
        return;
    store();
    draw();
}

void PlotControl::take_color(Color color)
{
    if (color != plot_color())
        take_background(color);
}

void PlotControl::check_resolution(double& resolution_x, double& resolution_y)
{
    if (limit_resolution(record_, resolution_x, resolution_y, platform()))
        ShowPlotOption();
}

// --- Layout ----------------------------------------------------------------------------------------------------------

void PlotControl::lay_out()
{
    trap(trap_place("layout", "all"), [this] { lay_out_steps(); });
}

void PlotControl::lay_out_steps()
{
    fill_legend();
    if (!legend_shown_) {
        if (take_smallest_size(smallest_side_without_legend, smallest_side_without_legend))
            return;
        lay_out_plot(std::min(window_.Width(), window_.Height()));
        return;
    }
    take_smallest_size(smallest_width, smallest_height);
    if (window_.Width() < smallest_width || window_.Height() < smallest_height)
        return; // the host did not allow it
    column_.lay_out(window_.Width(), window_.Height());
    double const room = window_.Width() - column_.frmove.Width();
    lay_out_plot(room < window_.Height() ? room : window_.Height());
}

// Answers whether the window was too small.
bool PlotControl::take_smallest_size(double width, double height)
{
    if (window_.Width() >= width && window_.Height() >= height)
        return false;
    window_.take_size(std::max(window_.Width(), width), std::max(window_.Height(), height));
    return true;
}

// A resize of a plotted control costs no new computing: the old picture is stretched until the next change.
void PlotControl::lay_out_plot(double side)
{
    view_.lay_out(side);
    if (!image_valid_)
        draw();
    else if (!view_.RePlot.Visible())
        view_.show_stored_picture();
}

// --- Drawing ---------------------------------------------------------------------------------------------------------

void PlotControl::draw()
{
    HourglassScope const hourglass(window_);
    HiddenScope const no_second_drawing(column_.Command1);
    if (record_.GetNop() <= 0)
        return;
    if (view_.RePlot.Visible())
        view_.show_surface();
    platform().do_events();
    check_settings();
    draw_figure(&column_.FNLabel);
    window_.Refresh();
    draw_plot();
    image_valid_ = true;
    view_.store_picture();
}

void PlotControl::show_preview()
{
    draw_figure(&column_.FNLabel);
    draw_preview();
    view_.store_picture();
}

void PlotControl::draw_figure(Widget* label)
{
    ViewAngles const view = figure_view();
    record_.GridPosShow(label, column_.FNPic.surface(), view.rotation, view.inclination);
    figure_drawn_ = true;
}

void PlotControl::fill_legend()
{
    record_.scale_colored(column_.scalCol, column_.ScaleValue);
}

void PlotControl::clear_display()
{
    view_.PLOTA.Cls();
    forget_plot();
}

// --- Printing --------------------------------------------------------------------------------------------------------

std::int16_t PlotControl::PrintLegend(double left, double top, BooleanWord& DrawFrame)
{
    return print_beside([&](PrintPanel& paper) { print_legend(paper, left, top, DrawFrame); });
}

void PlotControl::print_legend(PrintPanel& paper, double left, double top, BooleanWord with_frame)
{
    paper.DrawColoredLegend(record_, left, top, with_frame);
}

} // namespace zendara
