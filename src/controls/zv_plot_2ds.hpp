#pragma once

#include "zendara/controls/plot_frame_members.hpp"
#include "zendara/controls/print_members.hpp"
#include "zendara/controls/raster_members.hpp"
#include "zendara/controls/sigma_members.hpp"

namespace zendara
{

/// The sigma map of one panel: cells in three colours, above, inside and below a band around the mean.
///
/// Used as ZvPlot2D is; the members come from SharedMembers, PlotFrameMembers, RasterMembers and SigmaMembers.
class ZvPlot2DS final : public PlotFrameMembers<ZvPlot2DS>,
                        public RasterMembers<ZvPlot2DS>,
                        public SigmaMembers<ZvPlot2DS>,
                        public PrintMembers<ZvPlot2DS>
{
public:
    explicit ZvPlot2DS(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// Opens the option dialog; its OK draws anew.
    void ShowPlotOption();

private:
    template <class> friend class SharedMembers;
    template <class> friend class PlotFrameMembers;
    template <class> friend class RasterMembers;
    template <class> friend class SigmaMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::SigmaMap;

    void prepare_plot();
    void draw_map();
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);

    ControlFrame frame_;
    Raster raster_;
    SigmaBand sigma_;
    PlotFrame plot_frame_;
    SigmaSigns signs_;
};

} // namespace zendara
