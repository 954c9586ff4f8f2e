#pragma once

#include "zendara/controls/plot_control.hpp"
#include "zendara/controls/surface_settings.hpp"
#include "zendara/controls/ten_interval_colors.hpp"
#include "zendara/controls/view_rotation.hpp"

namespace zendara
{

/// How the cells of a surface look; the numbers are the plot styles of D3Plot.
enum class PlotTypeEnum : std::int32_t { PolyEdge = 1, HiddenWireFrame = 2, WireFrame = 3 };

/// The surface plot of one panel: cells in ten interval colours or a wire frame, turned by the mouse.
///
/// Used as ZvPlot2D is.
class ZvPlot3D final : public PlotControl, public SurfaceSettings, public TenIntervalColors
{
public:
    explicit ZvPlot3D(Platform& platform);

    void InitProperties() override;
    void ShowPlotOption() override;

    /// Carried for hosts: a drag turns the view whatever it holds.
    BooleanWord EnableRotation = true;

    /// What the cells look like: coloured with edges, all edges visible, or only those in front.
    PlotTypeEnum PlotType() const { return plot_type_; }
    void PlotType(PlotTypeEnum type);

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    void check_settings() override { check_resolution(surface_view_.resolution_x, surface_view_.resolution_y); }
    void draw_plot() override;
    void draw_preview() override;
    ViewAngles figure_view() const override { return surface_view_.angles; }
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;
    std::int16_t plot_style() const;
    void draw_surface(double resolution_x, double resolution_y);

    PlotTypeEnum plot_type_ = PlotTypeEnum::PolyEdge;
    ViewRotation rotation_;
};

} // namespace zendara
