#include "zendara/controls/raster_settings.hpp"

#include "zendara/controls/control_rows.hpp"

namespace zendara
{

void RasterSettings::ResolutionX(double resolution)
{
    resolution_x_ = kept(resolution, control_.TestSizeX());
    end_resolution_setter("ResolutionX");
}

void RasterSettings::ResolutionY(double resolution)
{
    resolution_y_ = kept(resolution, control_.TestSizeY());
    end_resolution_setter("ResolutionY");
}

void RasterSettings::ShowSites(Sites sites)
{
    shows_sites_ = sites != Sites::HideSites;
    control_.settings_changed("ShowSites");
}

double RasterSettings::kept(double resolution, double test_size)
{
    if (resolution <= 0)
        resolution = default_resolution;
    return test_size / 4 < resolution ? test_size / 4 : resolution;
}

void RasterSettings::end_resolution_setter(std::string_view property)
{
    control_.window().Refresh();
    control_.settings_changed(property);
}

void RasterSettings::start_raster()
{
    resolution_x_ = resolution_y_ = default_resolution;
    shows_sites_ = false;
}

void RasterSettings::fill_in_resolution()
{
    if (resolution_x_ == 0)
        resolution_x_ = default_resolution;
    if (resolution_y_ == 0)
        resolution_y_ = default_resolution;
}

void RasterSettings::take_raster(double resolution_x, double resolution_y, BooleanWord shows_sites)
{
    ResolutionX(resolution_x);
    ResolutionY(resolution_y);
    ShowSites(shows_sites ? Sites::MarkSites : Sites::HideSites);
}

std::vector<Member> raster_rows(std::string const& suffix)
{
    using R = RasterSettings;
    return {
        property<R, double, &R::ResolutionX, &R::ResolutionX>("ResolutionX", "Width of a cell in mm.")
            .saved(store_place::settings, "StdResx" + suffix, integer(5)),
        property<R, double, &R::ResolutionY, &R::ResolutionY>("ResolutionY", "Height of a cell in mm.")
            .saved(store_place::settings + 1, "StdResY" + suffix, integer(5)),
        property<R, Sites, &R::ShowSites, &R::ShowSites>("ShowSites", "Marks the sites.")
            .of(sites_enumeration())
            .saved(store_place::settings + 2, "StdMark" + suffix, long_integer(0)),
    };
}

} // namespace zendara
