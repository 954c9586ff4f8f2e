#pragma once

#include "zendara/controls/control.hpp"
#include "zendara/controls/legend_column.hpp"
#include "zendara/controls/plot_view.hpp"
#include "zendara/controls/view_angles.hpp"

#include <functional>
#include <string>
#include <string_view>

namespace zendara
{

/// What the controls with a plot beside a legend are: a frame with the plot, the column with legend, panel figure and
/// options button, and between two plots the stored picture, so that a resize computes nothing.
class PlotControl : public Control
{
public:
    void InitProperties() override;

    /// Text in the upper edge of the plot's frame.
    std::string const& PlotCaption() const { return view_.Frplot.caption(); }
    void PlotCaption(std::string_view caption);

    void SetPlotNotVaild() override { image_valid_ = false; }

    /// Prints the legend.
    /// @return  0 done, 1 no data or no printer
    std::int16_t PrintLegend(double left, double top, BooleanWord& DrawFrame);

    // --- For the parts that a control is made of --------------------------------------------------------------------

    PlotView& plot_view() { return view_; }
    LegendColumn& legend_column() { return column_; }

    /// Lays everything out in the window's present size and draws where the picture does not hold. All lengths in
    /// twips. Ends quietly on a failure.
    void lay_out();
    /// Draws panel figure and plot quickly, and stores the picture.
    void show_preview();

protected:
    PlotControl(Platform& platform, std::string name, AboutKind about_kind);
    /// For the constructors of parts, which a control that is one of them could not be told from.
    PlotControl& self() { return *this; }

    // What each control does in its own way.

    /// Checks the settings ahead of drawing; there are data.
    virtual void check_settings() {}
    /// Draws the plot on PLOTA.
    virtual void draw_plot() = 0;
    /// Draws it as a drag shows it.
    virtual void draw_preview() { draw_plot(); }
    /// How the panel figure lies: flat, or as the plot is seen.
    virtual ViewAngles figure_view() const { return {0, 90}; }
    /// Fills the legend: the scale of ten intervals.
    virtual void fill_legend();
    virtual void print_legend(PrintPanel& paper, double left, double top, BooleanWord with_frame);

    void set_background(Color color) override;
    void repaint_background() override;
    void show_legend(bool is_shown) override;
    void prepare_plot() override { default_sizes_crossed(); }
    void show_plot() override { lay_out(); }
    void clear_display() override;
    void drop_stored_picture() override { view_.show_surface(); }

    // What they do alike.

    /// Hands clicks and mouse events of the control, the column, the plot's frame and the plot on to the host, and
    /// opens the options by their button.
    void answer_user();
    /// Draws under the hourglass and without the options button, whatever the picture shows, and stores the picture as
    /// the valid one. Yields once to the message loop. Without data nothing is drawn.
    void draw();
    /// Brings cell sizes down to a quarter of the tested area; the user is told, and may set others in the options.
    void check_resolution(double& resolution_x, double& resolution_y);

    /// Shows an option dialog; after its OK the settings are stored and the plot is drawn at once.
    void answer_options(OptionDialog& dialog, std::function<void()> const& store);
    /// The colour that an option dialog starts with, and what its choice does: another one goes around the plot.
    Color plot_color() const { return view_.PLOTA.BackColor(); }
    void take_color(Color color);

    Surface& plot_surface() { return view_.PLOTA.surface(); }

    PlotView view_;
    LegendColumn column_;
    PictureBox copypic; // spare

private:
    void lay_out_steps();
    void lay_out_plot(double side);
    bool take_smallest_size(double width, double height);
    void draw_figure(Widget* label);

    bool figure_drawn_ = false;
};

} // namespace zendara
