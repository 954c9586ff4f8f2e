#pragma once

#include "zendara/controls/interval_color_members.hpp"
#include "zendara/controls/plot_frame_members.hpp"
#include "zendara/controls/print_members.hpp"
#include "zendara/controls/view_rotation.hpp"

namespace zendara
{

/// The bar plot of one panel: a bar on each site, in ten interval colours, turned by the mouse.
///
/// Used as ZvPlot2D is; the members come from SharedMembers, PlotFrameMembers and IntervalColorMembers. Its own
/// settings are kept as they are given, and take effect with the next Plot.
class ZvPlot3DB final : public PlotFrameMembers<ZvPlot3DB>,
                        public IntervalColorMembers<ZvPlot3DB>,
                        public PrintMembers<ZvPlot3DB>
{
public:
    explicit ZvPlot3DB(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// Carried for hosts: a drag turns the view whatever it holds.
    BooleanWord EnableRotation = true;

    /// Size of a bar in millimetres, along x and along y.
    double BeamWidth() const { return bars_.width; }
    void BeamWidth(double width) { set(bars_.width, width, "BeamWidth"); }
    double BeamHeight() const { return bars_.depth; }
    void BeamHeight(double depth) { set(bars_.depth, depth, "BeamHeight"); }

    /// Millimetres of a bar's height for one unit of the value.
    double BeamScale() const { return bars_.scale; }
    void BeamScale(double scale) { set(bars_.scale, scale, "BeamScale"); }

    /// Rotation of the plot in degrees.
    std::int16_t GridRotation() const { return angles_.rotation; }
    void GridRotation(std::int16_t degrees) { set(angles_.rotation, degrees, "GridRotation"); }

    /// Inclination in degrees: 0 along the base, 90 straight down.
    std::int16_t GridInclination() const { return angles_.inclination; }
    void GridInclination(std::int16_t degrees) { set(angles_.inclination, degrees, "GridInclination"); }

    /// Opens the option dialog; its OK draws anew.
    void ShowPlotOption();

private:
    template <class> friend class SharedMembers;
    template <class> friend class PlotFrameMembers;
    template <class> friend class IntervalColorMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::Surface;

    struct Bars {
        double width = 5;
        double depth = 5;
        double scale = 10;
    };

    template <class T> void set(T& setting, T value, std::string_view property)
    {
        setting = value;
        frame_.settings_changed(property);
    }

    void prepare_plot() { default_sizes_crossed(); }
    void fill_legend();
    void draw();
    void draw_preview();
    void draw_bars();
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);

    ControlFrame frame_;
    Bars bars_;
    ViewAngles angles_;
    PlotFrame plot_frame_;
    ViewRotation rotation_;
};

} // namespace zendara
