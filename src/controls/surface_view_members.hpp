#pragma once

#include "zendara/controls/resolution_limit.hpp"
#include "zendara/controls/shared_members.hpp"
#include "zendara/controls/view_rotation.hpp"

namespace zendara
{

/// The settings of a surface plot.
struct SurfaceView {
    double resolution_x = default_resolution; // cell sizes in millimetres
    double resolution_y = default_resolution;
    ViewAngles angles;
    std::int16_t scale = default_scale; // height of the value scale in millimetres

    static constexpr double default_resolution = 5;
    static constexpr std::int16_t default_scale = 40;

    /// What fills the cells: a plot style of D3Plot, and the sigma range for the one that takes it.
    struct Look {
        std::int16_t plot_style;
        double sigma_range = 0;
    };

    void draw(panel& record, Surface& surface, Look const& look) const
    {
        draw(record, surface, look, resolution_x, resolution_y);
    }

    /// Ten cells each way whatever the resolution is, so that a drag stays fluent.
    void draw_preview(panel& record, Surface& surface, Look const& look) const
    {
        draw(record, surface, look, record.TestSizeX / 10, record.TestSizeY / 10);
    }

private:
    void draw(panel& record, Surface& surface, Look const& look, double resx, double resy) const
    {
        record.D3Plot(surface, resx, resy, scale, angles.rotation, angles.inclination, look.plot_style,
                      look.sigma_range, 0, 0, 0, 0, 0, 0);
    }
};

/// The public members of a control that shows a surface plot. It holds no state: `Self` owns a SurfaceView as `view_`.
/// All of them take effect with the next Plot.
template <class Self> class SurfaceViewMembers
{
public:
    /// Cell size in millimetres; a negative one becomes 5.
    double XResolution() const { return view().resolution_x; }
    void XResolution(double resolution)
    {
        view().resolution_x = kept_resolution(resolution);
        frame().settings_changed("XResolution");
    }
    double YResolution() const { return view().resolution_y; }
    void YResolution(double resolution)
    {
        view().resolution_y = kept_resolution(resolution);
        frame().settings_changed("YResolution");
    }

    /// Rotation of the plot in degrees, 0 to 91: below becomes 0, above becomes 40. A drag by mouse sets up to 359.
    std::int16_t GridRotation() const { return view().angles.rotation; }
    void GridRotation(std::int16_t degrees)
    {
        view().angles.rotation = kept_angle(degrees, ViewAngles::default_rotation);
        frame().settings_changed("GridRotation");
    }

    /// Inclination in degrees, 0 along the base to 91: below becomes 0, above becomes 35. 90 looks straight down.
    std::int16_t GridInclination() const { return view().angles.inclination; }
    void GridInclination(std::int16_t degrees)
    {
        view().angles.inclination = kept_angle(degrees, ViewAngles::default_inclination);
        frame().settings_changed("GridInclination");
    }

    /// Height of the value scale in millimetres, from 1 on; below becomes 40.
    std::int16_t PlotScale() const { return view().scale; }
    void PlotScale(std::int16_t height)
    {
        view().scale = height < 1 ? SurfaceView::default_scale : height;
        frame().settings_changed("PlotScale");
    }

protected:
    /// Stores what an option dialog of a surface has.
    template <class Dialog> void take_view(Dialog const& dialog)
    {
        XResolution(dialog.GetResx());
        YResolution(dialog.GetResy());
        GridRotation(dialog.GetAlp());
        GridInclination(dialog.GetThet());
        PlotScale(to_i16(dialog.GetPlotSccale()));
    }

private:
    SurfaceView& view() { return static_cast<Self&>(*this).view_; }
    SurfaceView const& view() const { return static_cast<Self const&>(*this).view_; }
    ControlFrame& frame() { return static_cast<Self&>(*this).frame_; }

    static double kept_resolution(double resolution)
    {
        return resolution < 0 ? SurfaceView::default_resolution : resolution;
    }

    static std::int16_t kept_angle(std::int16_t degrees, std::int16_t instead_of_too_much)
    {
        constexpr std::int16_t first_too_much = 92;
        if (degrees < 0)
            return 0;
        return degrees >= first_too_much ? instead_of_too_much : degrees;
    }
};

template <class C> std::vector<Member> surface_view_rows()
{
    using S = SurfaceViewMembers<C>;
    using Degrees = std::int16_t;
    return {
        property<S, double, &S::XResolution, &S::XResolution>("XResolution", "Width of a cell in mm."),
        property<S, double, &S::YResolution, &S::YResolution>("YResolution", "Height of a cell in mm."),
        property<S, Degrees, &S::GridRotation, &S::GridRotation>("GridRotation", "Rotation of the plot in degrees."),
        property<S, Degrees, &S::GridInclination, &S::GridInclination>("GridInclination",
                                                                       "Inclination of the plot in degrees."),
        property<S, std::int16_t, &S::PlotScale, &S::PlotScale>("PlotScale", "Height of the z axis."),
    };
}

} // namespace zendara
