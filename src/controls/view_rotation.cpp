#include "zendara/controls/view_rotation.hpp"

#include "zendara/support/checked.hpp"
#include "zendara/support/trap.hpp"

namespace zendara
{

namespace
{

constexpr double degrees_of_width = 700;
constexpr double degrees_of_height = 200;

double kept_rotation(double degrees)
{
    return degrees >= 360 || degrees < 0 ? 0 : degrees;
}

double kept_inclination(double degrees)
{
    if (degrees >= 91)
        return 90;
    return degrees < 0 ? 0 : degrees;
}

} // namespace

// Whatever becomes of the preview, the host hears of the mouse.
void ViewRotation::answer_mouse()
{
    PlotView& view = control_.plot_view();
    for (Child* const child : std::initializer_list<Child*>{&view.PLOTA, &view.RePlot}) {
        child->on("MouseDown", [this](std::span<Value> arguments) {
            trap(control_.trap_place("rotation", "begin"), [&] { begin(pointer_of(arguments)); });
            control_.raise("MouseDown", arguments);
        });
        child->on("MouseMove", [this](std::span<Value> arguments) {
            trap(control_.trap_place("rotation", "turn"), [&] { turn(pointer_of(arguments)); });
            control_.raise("MouseMove", arguments);
        });
        child->on("MouseUp", [this](std::span<Value> arguments) {
            control_.raise("MouseUp", arguments);
            end();
        });
    }
}

// Button, Shift, x, y.
ViewRotation::Pointer ViewRotation::pointer_of(std::span<Value const> arguments)
{
    return {to_double(arguments[2]), to_double(arguments[3])};
}

void ViewRotation::begin(Pointer pointer)
{
    if (control_.record().GetNop() <= 0)
        return;
    start_ = pointer;
    angles_at_start_ = angles_;
    is_dragging_ = true;
    control_.SetPlotNotVaild();
    // The user watches the stored picture while the next one is drawn on the hidden surface.
    if (!control_.plot_view().RePlot.Visible())
        control_.plot_view().show_stored_picture();
    control_.platform().do_events();
    control_.show_preview();
    control_.window().Refresh();
}

void ViewRotation::turn(Pointer pointer)
{
    if (!is_dragging_)
        return;
    PictureBox const& plot = control_.plot_view().PLOTA;
    double const width_px = plot.Width() / control_.platform().twips_per_pixel_x();
    double const height_px = plot.Height() / control_.platform().twips_per_pixel_y();
    double const turned = round_half_even(divide(start_.x_px - pointer.x_px, width_px / degrees_of_width));
    double const tilted = round_half_even(divide(start_.y_px - pointer.y_px, height_px / degrees_of_height));
    double const rotation = angles_at_start_.rotation + turned;
    double const inclination = angles_at_start_.inclination + tilted;
    if (rotation == angles_.rotation && inclination == angles_.inclination)
        return;
    angles_.rotation = to_i16(kept_rotation(rotation));
    angles_.inclination = to_i16(kept_inclination(inclination));
    control_.show_preview();
    control_.platform().do_events();
}

// The layout draws the plot in full.
void ViewRotation::end()
{
    is_dragging_ = false;
    control_.lay_out();
}

} // namespace zendara
