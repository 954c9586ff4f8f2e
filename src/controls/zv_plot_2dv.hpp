#pragma once

#include "zendara/controls/interval_color_members.hpp"
#include "zendara/controls/plot_frame_members.hpp"
#include "zendara/controls/print_members.hpp"

namespace zendara
{

/// The map of numbers of one panel: each site's value at its place, in the colour of its interval.
///
/// Used as ZvPlot2D is; it has no raster and no option dialog.
class ZvPlot2DV final : public PlotFrameMembers<ZvPlot2DV>,
                        public IntervalColorMembers<ZvPlot2DV>,
                        public PrintMembers<ZvPlot2DV>
{
public:
    explicit ZvPlot2DV(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// Colour around the plot; the plot keeps its own. Unlike on the other controls the next Plot draws anew.
    Color BackColor() const { return PlotFrameMembers::BackColor(); }
    void BackColor(Color color);

    /// Does nothing: this control has no options.
    void ShowPlotOption() {}

    /// Prints the site numbers. Arguments and result as those of PrintPlot.
    std::int16_t PrintGridNumber(double left, double top, double width, double height, BooleanWord& DrawFrame);

private:
    template <class> friend class SharedMembers;
    template <class> friend class PlotFrameMembers;
    template <class> friend class IntervalColorMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::Numbers;

    void prepare_plot() { default_sizes(); }
    void fill_legend();
    void draw_numbers();
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);

    ControlFrame frame_;
    PlotFrame plot_frame_;
};

} // namespace zendara
