#pragma once

#include "zendara/controls/shared_members.hpp"

namespace zendara
{

/// Whether a plot marks the sites.
enum class Sites : std::int32_t { HideSites = 0, MarkSites = -1 };

Enumeration const& sites_enumeration();

/// The settings of a map made of cells.
struct Raster {
    double resolution_x = default_resolution; // cell sizes in millimetres
    double resolution_y = default_resolution;
    BooleanWord shows_sites;

    static constexpr double default_resolution = 5;

    /// The cell size that a setter keeps: positive, and at most a quarter of the tested area.
    static double checked(double resolution, double test_size)
    {
        if (resolution <= 0)
            resolution = default_resolution;
        return test_size / 4 < resolution ? test_size / 4 : resolution;
    }

    /// A size of 0, as an empty tested area leaves it, becomes the usual one.
    void fill_in_defaults()
    {
        if (resolution_x == 0)
            resolution_x = default_resolution;
        if (resolution_y == 0)
            resolution_y = default_resolution;
    }
};

/// The public members of a control that shows a map made of cells. It holds no state: `Self` owns a Raster as
/// `raster_`.
template <class Self> class RasterMembers
{
public:
    /// Cell size in millimetres. 0 and below become 5, more than a quarter of the tested area becomes that quarter.
    double ResolutionX() const { return raster().resolution_x; }
    void ResolutionX(double resolution)
    {
        raster().resolution_x = Raster::checked(resolution, frame().record.TestSizeX);
        end_resolution_setter("ResolutionX");
    }
    double ResolutionY() const { return raster().resolution_y; }
    void ResolutionY(double resolution)
    {
        raster().resolution_y = Raster::checked(resolution, frame().record.TestSizeY);
        end_resolution_setter("ResolutionY");
    }

    /// Whether the sites are marked: a plus above the mean, a minus otherwise.
    Sites ShowSites() const { return raster().shows_sites ? Sites::MarkSites : Sites::HideSites; }
    void ShowSites(Sites sites)
    {
        raster().shows_sites = sites != Sites::HideSites;
        frame().settings_changed("ShowSites");
    }

protected:
    /// Stores what an option dialog of a map has.
    template <class Dialog> void take_raster(Dialog& dialog)
    {
        ResolutionX(dialog.GetXRes());
        ResolutionY(dialog.GetYRes());
        ShowSites(dialog.GetMarkeSites() ? Sites::MarkSites : Sites::HideSites);
    }

private:
    Raster& raster() { return static_cast<Self&>(*this).raster_; }
    Raster const& raster() const { return static_cast<Self const&>(*this).raster_; }
    ControlFrame& frame() { return static_cast<Self&>(*this).frame_; }

    void end_resolution_setter(std::string_view property)
    {
        frame().window.Refresh();
        frame().settings_changed(property);
    }
};

template <class C> std::vector<Member> raster_rows()
{
    using R = RasterMembers<C>;
    return {
        property<R, double, &R::ResolutionX, &R::ResolutionX>("ResolutionX", "Width of a cell in mm."),
        property<R, double, &R::ResolutionY, &R::ResolutionY>("ResolutionY", "Height of a cell in mm."),
        property<R, Sites, &R::ShowSites, &R::ShowSites>("ShowSites", "Marks the sites.").of(sites_enumeration()),
    };
}

} // namespace zendara
