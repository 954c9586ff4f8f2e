#pragma once

#include "zendara/controls/plot_frame_members.hpp"
#include "zendara/controls/print_members.hpp"
#include "zendara/controls/sigma_members.hpp"
#include "zendara/controls/surface_view_members.hpp"

namespace zendara
{

/// The sigma surface of one panel: cells in three colours, above, inside and below a band around the mean, turned by
/// the mouse.
///
/// Used as ZvPlot2D is; the members come from SharedMembers, PlotFrameMembers, SurfaceViewMembers and SigmaMembers.
class ZvPlot3DS final : public PlotFrameMembers<ZvPlot3DS>,
                        public SurfaceViewMembers<ZvPlot3DS>,
                        public SigmaMembers<ZvPlot3DS>,
                        public PrintMembers<ZvPlot3DS>
{
public:
    explicit ZvPlot3DS(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// Carried for hosts: a drag turns the view whatever it holds.
    BooleanWord EnableRotation = true;

    /// Rotation of the small figure of the panel in degrees, 0 to 359: below becomes 0, above becomes 40. Independent
    /// of the plot's rotation.
    std::int16_t PanelRotation() const { return panel_rotation_; }
    void PanelRotation(std::int16_t degrees);

    /// Opens the option dialog; its OK draws anew.
    void ShowPlotOption();

private:
    template <class> friend class SharedMembers;
    template <class> friend class PlotFrameMembers;
    template <class> friend class SurfaceViewMembers;
    template <class> friend class SigmaMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::SigmaSurface;

    void prepare_plot() { default_sizes_crossed(); }
    void draw_surface();
    void draw_preview();
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);
    SurfaceView::Look look() const;

    ControlFrame frame_;
    SurfaceView view_;
    SigmaBand sigma_;
    std::int16_t panel_rotation_ = ViewAngles::default_rotation;
    PlotFrame plot_frame_;
    SigmaSigns signs_;
    ViewRotation rotation_;
};

} // namespace zendara
