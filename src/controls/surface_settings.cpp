#include "zendara/controls/surface_settings.hpp"

#include "zendara/controls/control_rows.hpp"

namespace zendara
{

namespace
{

std::int16_t kept_angle(std::int16_t degrees, std::int16_t instead_of_too_much)
{
    constexpr std::int16_t first_too_much = 92;
    if (degrees < 0)
        return 0;
    return degrees >= first_too_much ? instead_of_too_much : degrees;
}

} // namespace

void SurfaceSettings::XResolution(double resolution)
{
    set_resolution(surface_view_.resolution_x, resolution, "XResolution");
}

void SurfaceSettings::YResolution(double resolution)
{
    set_resolution(surface_view_.resolution_y, resolution, "YResolution");
}

void SurfaceSettings::set_resolution(double& resolution, double value, std::string_view property)
{
    resolution = value < 0 ? SurfaceView::default_resolution : value;
    control_.record().changeResx = true;
    control_.settings_changed(property);
}

void SurfaceSettings::GridRotation(std::int16_t degrees)
{
    surface_view_.angles.rotation = kept_angle(degrees, ViewAngles::default_rotation);
    control_.settings_changed("GridRotation");
}

void SurfaceSettings::GridInclination(std::int16_t degrees)
{
    surface_view_.angles.inclination = kept_angle(degrees, ViewAngles::default_inclination);
    control_.settings_changed("GridInclination");
}

void SurfaceSettings::PlotScale(std::int16_t height)
{
    surface_view_.scale = height < 1 ? SurfaceView::default_scale : height;
    control_.settings_changed("PlotScale");
}

void SurfaceSettings::take_surface_view(SurfaceView const& view)
{
    XResolution(view.resolution_x);
    YResolution(view.resolution_y);
    GridRotation(view.angles.rotation);
    GridInclination(view.angles.inclination);
    PlotScale(view.scale);
}

std::vector<Member> surface_rows(std::string const& suffix)
{
    using S = SurfaceSettings;
    using I2 = std::int16_t;
    return {
        property<S, double, &S::XResolution, &S::XResolution>("XResolution", "Width of a cell in mm.")
            .saved(surface_place::resolution_x, "StdResx" + suffix, integer(5)),
        property<S, double, &S::YResolution, &S::YResolution>("YResolution", "Height of a cell in mm.")
            .saved(surface_place::resolution_y, "StdResy" + suffix, integer(5)),
        property<S, I2, &S::GridRotation, &S::GridRotation>("GridRotation", "Rotation of the plot in degrees.")
            .saved(surface_place::rotation, "StdAlp" + suffix, integer(40)),
        property<S, I2, &S::GridInclination, &S::GridInclination>("GridInclination",
                                                                  "Inclination of the plot in degrees.")
            .saved(surface_place::inclination, "StdThet" + suffix, integer(35)),
        property<S, I2, &S::PlotScale, &S::PlotScale>("PlotScale", "Height of the z axis.")
            .saved(surface_place::scale, "StdD3Scale" + suffix, integer(40)),
    };
}

} // namespace zendara
