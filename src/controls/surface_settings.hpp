#pragma once

#include "zendara/controls/control.hpp"
#include "zendara/controls/view_angles.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

struct Member;

/// How a surface plot is cut into cells and seen.
struct SurfaceView {
    double resolution_x = default_resolution; // cell sizes in millimetres
    double resolution_y = default_resolution;
    ViewAngles angles;
    std::int16_t scale = default_scale; // height of the value scale in millimetres

    static constexpr double default_resolution = 5;
    static constexpr std::int16_t default_scale = 40;
};

/// The settings of a surface plot, as public members of a control. They take effect with the next Plot.
class SurfaceSettings
{
public:
    explicit SurfaceSettings(Control& control) : control_(control) {}

    /// Cell size in millimetres; a negative one becomes 5.
    double XResolution() const { return surface_view_.resolution_x; }
    void XResolution(double resolution);
    double YResolution() const { return surface_view_.resolution_y; }
    void YResolution(double resolution);

    /// Rotation of the plot in degrees, 0 to 91: below becomes 0, above becomes 40. A drag by mouse sets up to 359.
    std::int16_t GridRotation() const { return surface_view_.angles.rotation; }
    void GridRotation(std::int16_t degrees);

    /// Inclination in degrees, 0 along the base to 91: below becomes 0, above becomes 35. 90 looks straight down.
    std::int16_t GridInclination() const { return surface_view_.angles.inclination; }
    void GridInclination(std::int16_t degrees);

    /// Height of the value scale in millimetres, from 1 on; below becomes 40.
    std::int16_t PlotScale() const { return surface_view_.scale; }
    void PlotScale(std::int16_t height);

protected:
    /// Stores what an option dialog has.
    void take_surface_view(SurfaceView const& view);

    SurfaceView surface_view_;

private:
    void set_resolution(double& resolution, double value, std::string_view property);

    Control& control_;
};

/// Where the settings of a surface plot and those between them stand in the order of saving.
namespace surface_place
{
constexpr int resolution_x = 30;
constexpr int resolution_y = 31;
constexpr int rotation = 32;
constexpr int panel_rotation = 33;
constexpr int inclination = 34;
constexpr int look = 35;
constexpr int scale = 36;
} // namespace surface_place

/// @param suffix  of the keys in the store
std::vector<Member> surface_rows(std::string const& suffix);

} // namespace zendara
