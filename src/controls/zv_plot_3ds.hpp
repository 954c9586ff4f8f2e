#pragma once

#include "zendara/controls/plot_control.hpp"
#include "zendara/controls/sigma_settings.hpp"
#include "zendara/controls/surface_settings.hpp"
#include "zendara/controls/view_rotation.hpp"

namespace zendara
{

/// The sigma surface of one panel: cells in three colours, above, inside and below a band around the mean, turned by
/// the mouse.
///
/// Used as ZvPlot2D is.
class ZvPlot3DS final : public PlotControl, public SurfaceSettings, public SigmaSettings
{
public:
    explicit ZvPlot3DS(Platform& platform);

    void InitProperties() override;
    void ShowPlotOption() override;

    /// Rotation of the small figure of the panel in degrees, 0 to 359: below becomes 0, above becomes 40. Independent
    /// of the plot's rotation. Takes effect with the next Plot.
    std::int16_t PanelRotation() const { return panel_rotation_; }
    void PanelRotation(std::int16_t degrees);

    Interface const& host_interface() const override { return interface_table(); }
    static Interface const& interface_table();

private:
    void fill_legend() override { fill_sigma_legend(); }
    void check_settings() override;
    void draw_plot() override;
    void draw_preview() override;
    ViewAngles figure_view() const override { return {panel_rotation_, surface_view_.angles.inclination}; }
    void print_plot(PrintPanel& paper, Box<Twips> const& box, BooleanWord with_frame) override;
    void print_legend(PrintPanel& paper, double left, double top, BooleanWord with_frame) override;
    void draw_surface(double resolution_x, double resolution_y);

    std::int16_t panel_rotation_ = ViewAngles::default_rotation;
    ViewRotation rotation_;
};

} // namespace zendara
