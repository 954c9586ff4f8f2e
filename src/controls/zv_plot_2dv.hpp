#pragma once

#include "zendara/controls/plot_control.hpp"
#include "zendara/controls/ten_interval_colors.hpp"

namespace zendara
{

/// The map of numbers of one panel: each site's value at its place, in the colour of its interval.
///
/// Used as ZvPlot2D is; it has no raster and no options. Unlike on the other controls the next Plot draws anew behind a
/// new BackColor.
class ZvPlot2DV final : public PlotControl, public TenIntervalColors
{
public:
    explicit ZvPlot2DV(Platform& platform);

    /// Does nothing: this control has no options.
    void ShowPlotOption() override {}

    /// Prints the site numbers. Arguments and result as those of PrintPlot.
    std::int16_t PrintGridNumber(double left, double top, double width, double height, BooleanWord& DrawFrame);

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    void set_background(Color color) override;
    void prepare_plot() override { default_sizes(); }
    void draw_plot() override;
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;
};

} // namespace zendara
