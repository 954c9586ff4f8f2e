#pragma once

#include "zendara/controls/plot_control.hpp"
#include "zendara/controls/ten_interval_colors.hpp"
#include "zendara/controls/view_rotation.hpp"

namespace zendara
{

/// The bar plot of one panel: a bar on each site, in ten interval colours, turned by the mouse.
///
/// Used as ZvPlot2D is. Its own settings are kept as they are given, and take effect with the next Plot.
class ZvPlot3DB final : public PlotControl, public TenIntervalColors
{
public:
    explicit ZvPlot3DB(Platform& platform);

    void InitProperties() override;
    void ShowPlotOption() override;

    /// Carried for hosts: a drag turns the view whatever it holds.
    BooleanWord EnableRotation = true;

    /// Size of a bar in millimetres, along x and along y.
    double BeamWidth() const { return bars_.width; }
    void BeamWidth(double width);
    double BeamHeight() const { return bars_.depth; }
    void BeamHeight(double depth);

    /// Millimetres of a bar's height for one unit of the value.
    double BeamScale() const { return bars_.scale; }
    void BeamScale(double scale);

    /// Rotation of the plot in degrees.
    std::int16_t GridRotation() const { return angles_.rotation; }
    void GridRotation(std::int16_t degrees);

    /// Inclination in degrees: 0 along the base, 90 straight down.
    std::int16_t GridInclination() const { return angles_.inclination; }
    void GridInclination(std::int16_t degrees);

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    struct Bars {
        double width = 5;
        double depth = 5;
        double scale = 10;
    };

    void draw_plot() override; // a drag draws all bars: there is no coarser form of them
    ViewAngles figure_view() const override { return angles_; }
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;

    Bars bars_;
    ViewAngles angles_;
    ViewRotation rotation_;
};

} // namespace zendara
