#pragma once

#include "zendara/controls/plot_frame.hpp"

#include <cstdint>
#include <functional>

namespace zendara
{

/// From where a plot in space is seen, in degrees.
struct ViewAngles {
    std::int16_t rotation = default_rotation;
    std::int16_t inclination = default_inclination; // 90 straight down, 0 along the base

    static constexpr std::int16_t default_rotation = 40;
    static constexpr std::int16_t default_inclination = 35;
};

/// Turns the view while the user drags over the plot. It answers the mouse events of the plot and, as that is what
/// shows during a drag, of the stored picture in its place; all of them reach the host as well.
///
/// The pointer's place comes in pixels of the plot. The whole width turns by 700 degrees, the whole height tilts by
/// 200; a drag to the left turns positively. At both ends of the circle the rotation stops at 0.
class ViewRotation
{
public:
    /// @param angles        turned by a drag; no setter's rule applies
    /// @param draw_preview  draws panel figure and plot in the new view; the plot may be a quick one
    ViewRotation(ControlFrame& frame, PlotFrame& plot_frame, ViewAngles& angles, std::function<void()> draw_preview);

    /// Takes the mouse events of the plot over from whatever answered them so far.
    void answer_mouse();

private:
    struct Pointer {
        double x_px = 0;
        double y_px = 0;
    };

    static Pointer pointer_of(std::span<Value const> arguments);
    void begin(Pointer pointer);
    void turn(Pointer pointer);
    void end();
    void show_preview();

    ControlFrame& frame_;
    PlotFrame& plot_frame_;
    ViewAngles& angles_;
    std::function<void()> draw_preview_;

    bool is_dragging_ = false;
    Pointer start_;
    ViewAngles angles_at_start_;
};

/// The row of the member that a control with rotation by mouse carries for hosts; nothing reads it.
template <class C> Member enable_rotation_row()
{
    return field<&C::EnableRotation>("EnableRotation", "Carried for hosts: a drag turns the view whatever it holds.");
}

} // namespace zendara
