#pragma once

#include "zendara/controls/plot_control.hpp"
#include "zendara/controls/raster_settings.hpp"
#include "zendara/controls/sigma_settings.hpp"

namespace zendara
{

/// The sigma map of one panel: cells in three colours, above, inside and below a band around the mean.
///
/// Used as ZvPlot2D is.
class ZvPlot2DS final : public PlotControl, public RasterSettings, public SigmaSettings
{
public:
    explicit ZvPlot2DS(Platform& platform);

    void InitProperties() override;
    void ShowPlotOption() override;

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    void prepare_plot() override;
    void fill_legend() override { fill_sigma_legend(); }
    void check_settings() override { check_resolution(resolution_x_, resolution_y_); }
    void draw_plot() override;
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;
    void print_legend(PrintPanel& paper, double left, double top, BooleanWord with_frame) override;
};

} // namespace zendara
