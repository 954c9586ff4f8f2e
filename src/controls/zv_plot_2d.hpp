#pragma once

#include "zendara/controls/interval_color_members.hpp"
#include "zendara/controls/plot_frame_members.hpp"
#include "zendara/controls/print_members.hpp"
#include "zendara/controls/raster_members.hpp"

namespace zendara
{

/// The colour map of one panel: cells in ten interval colours, with legend, panel figure and options button.
///
/// The host's way: set the sizes, hand in the data, call Plot, read the statistics. Most members are those that the
/// controls share; see SharedMembers, PlotFrameMembers, RasterMembers and IntervalColorMembers.
class ZvPlot2D final : public PlotFrameMembers<ZvPlot2D>,
                       public RasterMembers<ZvPlot2D>,
                       public IntervalColorMembers<ZvPlot2D>,
                       public PrintMembers<ZvPlot2D>
{
public:
    explicit ZvPlot2D(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// Opens the option dialog; its OK draws anew.
    void ShowPlotOption();

    /// Prints the site numbers. Arguments and result as those of PrintPlot.
    std::int16_t PrintGridPlot(double left, double top, double width, double height);

private:
    template <class> friend class SharedMembers;
    template <class> friend class PlotFrameMembers;
    template <class> friend class RasterMembers;
    template <class> friend class IntervalColorMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::Map;

    void prepare_plot();
    void fill_legend();
    void draw_map();
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);

    ControlFrame frame_;
    Raster raster_;
    PlotFrame plot_frame_;
};

} // namespace zendara
