#pragma once

#include "zendara/controls/plot_control.hpp"

namespace zendara
{

/// Turns the view of a plot in space while the user drags over it. It answers the mouse events of the plot and, as that
/// is what shows during a drag, of the stored picture in its place; all of them reach the host as well.
///
/// The pointer's place comes in pixels of the plot. The whole width turns by 700 degrees, the whole height tilts by
/// 200; a drag to the left turns positively. At both ends of the circle the rotation stops at 0.
class ViewRotation
{
public:
    /// @param angles  turned by a drag; no setter's rule applies
    ViewRotation(PlotControl& control, ViewAngles& angles) : control_(control), angles_(angles) {}

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

    PlotControl& control_;
    ViewAngles& angles_;

    bool is_dragging_ = false;
    Pointer start_;
    ViewAngles angles_at_start_;
};

} // namespace zendara
