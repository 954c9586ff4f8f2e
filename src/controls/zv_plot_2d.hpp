#pragma once

#include "zendara/controls/plot_control.hpp"
#include "zendara/controls/raster_settings.hpp"
#include "zendara/controls/ten_interval_colors.hpp"

namespace zendara
{

/// The colour map of one panel: cells in ten interval colours, with legend, panel figure and options button.
///
/// The host's way: set the sizes, hand in the data, call Plot, read the statistics.
class ZvPlot2D final : public PlotControl, public RasterSettings, public TenIntervalColors
{
public:
    explicit ZvPlot2D(Platform& platform);

    void InitProperties() override;
    void ShowPlotOption() override;

    /// Prints the site numbers. Arguments and result as those of PrintPlot.
    std::int16_t PrintGridPlot(double left, double top, double width, double height);

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    void prepare_plot() override;
    void check_settings() override { check_resolution(resolution_x_, resolution_y_); }
    void draw_plot() override;
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;
};

} // namespace zendara
