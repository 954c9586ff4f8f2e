#pragma once

#include "zendara/controls/control_frame.hpp"
#include "zendara/controls/legend_column.hpp"
#include "zendara/controls/plot_view.hpp"

#include <functional>

namespace zendara
{

/// What the controls with a plot beside a legend own: the view, the column, their layout, and the frame of drawing.
class PlotFrame
{
public:
    /// The two places where a control puts in what is its own.
    struct Hooks {
        std::function<void()> fill_legend;
        std::function<void()> draw; // with data and an invalid picture, inside the layout or an option dialog's end
    };

    PlotFrame(ControlFrame& frame, Hooks hooks);

    PlotView view;
    LegendColumn column;
    PictureBox copypic; // spare

    /// Hands clicks and mouse events of the control, the column, the plot's frame and the plot on to the host.
    void forward_events();

    /// Draws where the panel lies, turned and tilted as the plot is.
    void draw_position(double rotation_deg, double inclination_deg);
    /// The same, and brings the control up to date.
    void show_position(double rotation_deg, double inclination_deg);

    /// Lays everything out in the window's present size and draws where the picture does not hold. All lengths in
    /// twips. Ends quietly on a failure.
    void lay_out();

    /// Draws under the hourglass and without the options button: yields once to the message loop, runs the drawing
    /// routine, and takes its picture as the valid one. Without data nothing is drawn.
    void draw(std::function<void()> const& routine);

    /// Draws at once, whatever the picture shows.
    void draw_now() { hooks_.draw(); }

    /// Empties the surface; no plot exists then.
    void clear_display();
    void drop_stored_picture() { view.show_surface(); }

    Color BackColor() const { return frame_.window.BackColor(); }
    void BackColor(Color color);
    void show_legend(bool is_shown);

private:
    void lay_out_steps();
    void lay_out_plot(double side);
    bool take_smallest_size(double width, double height);

    ControlFrame& frame_;
    Hooks hooks_;
};

} // namespace zendara
