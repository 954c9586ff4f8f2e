#include "zendara/controls/plot_frame.hpp"

#include "zendara/support/trap.hpp"

#include <algorithm>

namespace zendara
{

namespace
{

constexpr double smallest_width = 4500;
constexpr double smallest_height = 3180;
constexpr double smallest_side_without_legend = 750;

constexpr std::int16_t usual_pointer = 0;
constexpr std::int16_t hourglass = 11;

/// The looks of a control at work, until the end of the scope.
class BusyScope
{
public:
    BusyScope(Window& window, Button& options) : window_(window), options_(options)
    {
        window_.MousePointer(hourglass);
        options_.Visible(false);
    }
    BusyScope(BusyScope const&) = delete;
    ~BusyScope()
    {
        options_.Visible(true);
        window_.MousePointer(usual_pointer);
    }

private:
    Window& window_;
    Button& options_;
};

} // namespace

PlotFrame::PlotFrame(ControlFrame& frame, Hooks hooks)
    : view(frame.window), column(frame.window), copypic(frame.window, "copypic"), frame_(frame),
      hooks_(std::move(hooks))
{
    copypic.Visible(false);
    frame.window.on_resize = [this] { lay_out(); };
}

void PlotFrame::forward_events()
{
    std::initializer_list<Child*> const sources = {&frame_.window, &view.PLOTA, &column.frmove, &view.Frplot};
    frame_.forward(sources, click_events);
    frame_.forward(sources, mouse_events);
}

void PlotFrame::draw_position(double rotation_deg, double inclination_deg)
{
    frame_.record.GridPosShow(&column.FNLabel, column.FNPic.surface(), rotation_deg, inclination_deg);
}

void PlotFrame::show_position(double rotation_deg, double inclination_deg)
{
    draw_position(rotation_deg, inclination_deg);
    frame_.window.Refresh();
}

void PlotFrame::lay_out()
{
    trap({&frame_.platform(), frame_.record, "layout", "all"}, [this] { lay_out_steps(); });
}

void PlotFrame::lay_out_steps()
{
    Window& window = frame_.window;
    hooks_.fill_legend();
    if (!frame_.legend_shown) {
        if (take_smallest_size(smallest_side_without_legend, smallest_side_without_legend))
            return;
        lay_out_plot(std::min(window.Width(), window.Height()));
        return;
    }
    take_smallest_size(smallest_width, smallest_height);
    if (window.Width() < smallest_width || window.Height() < smallest_height)
        return; // the host did not allow it
    column.lay_out(window.Width());
    double const room = window.Width() - column.frmove.Width();
    lay_out_plot(room < window.Height() ? room : window.Height());
}

// Answers whether the window was too small.
bool PlotFrame::take_smallest_size(double width, double height)
{
    Window& window = frame_.window;
    if (window.Width() >= width && window.Height() >= height)
        return false;
    window.take_size(std::max(window.Width(), width), std::max(window.Height(), height));
    return true;
}

// A resize of a plotted control costs no new computing: the old picture is stretched until the next change.
void PlotFrame::lay_out_plot(double side)
{
    view.lay_out(side);
    if (!frame_.image_valid)
        hooks_.draw();
    else if (!view.RePlot.Visible())
        view.show_stored_picture();
}

void PlotFrame::draw(std::function<void()> const& routine)
{
    BusyScope const busy(frame_.window, column.Command1);
    if (frame_.record.GetNop() <= 0)
        return;
    if (view.RePlot.Visible())
        view.show_surface();
    frame_.platform().do_events();
    routine();
    frame_.image_valid = true;
    view.store_picture();
}

void PlotFrame::clear_display()
{
    view.PLOTA.Cls();
    frame_.forget_plot();
}

void PlotFrame::BackColor(Color color)
{
    column.BackColor(color);
    view.Frplot.BackColor(color);
    frame_.window.BackColor(color);
}

void PlotFrame::show_legend(bool is_shown)
{
    column.frmove.Visible(is_shown);
    frame_.legend_shown = is_shown;
}

} // namespace zendara
