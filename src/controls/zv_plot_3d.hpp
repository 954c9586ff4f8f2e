#pragma once

#include "zendara/controls/interval_color_members.hpp"
#include "zendara/controls/plot_frame_members.hpp"
#include "zendara/controls/print_members.hpp"
#include "zendara/controls/surface_view_members.hpp"

namespace zendara
{

/// How the cells of a surface look; the numbers are the plot styles of D3Plot.
enum class PlotTypeEnum : std::int32_t { PolyEdge = 1, HiddenWireFrame = 2, WireFrame = 3 };

Enumeration const& plot_type_enumeration();

/// The surface plot of one panel: cells in ten interval colours or a wire frame, turned by the mouse.
///
/// Used as ZvPlot2D is; the members come from SharedMembers, PlotFrameMembers, SurfaceViewMembers and
/// IntervalColorMembers.
class ZvPlot3D final : public PlotFrameMembers<ZvPlot3D>,
                       public SurfaceViewMembers<ZvPlot3D>,
                       public IntervalColorMembers<ZvPlot3D>,
                       public PrintMembers<ZvPlot3D>
{
public:
    explicit ZvPlot3D(Platform& platform);

    void InitProperties() override;
    std::vector<StoredProperty> const& stored_properties() const override;
    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

    /// Carried for hosts: a drag turns the view whatever it holds.
    BooleanWord EnableRotation = true;

    /// What the cells look like: coloured with edges, all edges visible, or only those in front.
    PlotTypeEnum PlotType() const { return plot_type_; }
    void PlotType(PlotTypeEnum type);

    /// Opens the option dialog; its OK draws anew.
    void ShowPlotOption();

private:
    template <class> friend class SharedMembers;
    template <class> friend class PlotFrameMembers;
    template <class> friend class SurfaceViewMembers;
    template <class> friend class IntervalColorMembers;
    template <class> friend class PrintMembers;

    static constexpr AboutKind about_kind = AboutKind::Surface;

    void prepare_plot() { default_sizes_crossed(); }
    void fill_legend();
    void draw_surface();
    void draw_preview();
    void print_plot(PrintPanel& paper, PaperBox const& box, BooleanWord with_frame);
    SurfaceView::Look look() const;

    ControlFrame frame_;
    SurfaceView view_;
    PlotTypeEnum plot_type_ = PlotTypeEnum::PolyEdge;
    PlotFrame plot_frame_;
    ViewRotation rotation_;
};

} // namespace zendara
