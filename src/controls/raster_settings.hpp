#pragma once

#include "zendara/controls/control.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

struct Member;

/// The settings of a map made of cells, as public members of a control. They take effect with the next Plot.
class RasterSettings
{
public:
    explicit RasterSettings(Control& control) : control_(control) {}

    /// Cell size in millimetres. 0 and below become 5, more than a quarter of the tested area becomes that quarter.
    double ResolutionX() const { return resolution_x_; }
    void ResolutionX(double resolution);
    double ResolutionY() const { return resolution_y_; }
    void ResolutionY(double resolution);

    /// Whether the sites are marked: a plus above the mean, a minus otherwise.
    Sites ShowSites() const { return shows_sites_ ? Sites::MarkSites : Sites::HideSites; }
    void ShowSites(Sites sites);

protected:
    void start_raster();
    /// A size of 0, as an empty tested area leaves it, becomes the usual one.
    void fill_in_resolution();
    /// Stores what an option dialog of a map has.
    void take_raster(double resolution_x, double resolution_y, BooleanWord shows_sites);

    double resolution_x_ = default_resolution;
    double resolution_y_ = default_resolution;
    BooleanWord shows_sites_;

private:
    static constexpr double default_resolution = 5;

    static double kept(double resolution, double test_size);
    void end_resolution_setter(std::string_view property);

    Control& control_;
};

/// @param suffix  of the keys in the store
std::vector<Member> raster_rows(std::string const& suffix);

} // namespace zendara
