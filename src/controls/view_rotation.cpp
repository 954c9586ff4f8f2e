#include "zendara/controls/view_rotation.hpp"

#include "zendara/support/checked.hpp"

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

ViewRotation::ViewRotation(ControlFrame& frame, PlotFrame& plot_frame, ViewAngles& angles,
                           std::function<void()> draw_preview)
    : frame_(frame), plot_frame_(plot_frame), angles_(angles), draw_preview_(std::move(draw_preview))
{
}

void ViewRotation::answer_mouse()
{
    for (Child* const child : std::initializer_list<Child*>{&plot_frame_.view.PLOTA, &plot_frame_.view.RePlot}) {
        child->on("MouseDown", [this](std::span<Value> arguments) {
            begin(pointer_of(arguments));
            frame_.raise("MouseDown", arguments);
        });
        child->on("MouseMove", [this](std::span<Value> arguments) {
            turn(pointer_of(arguments));
            frame_.raise("MouseMove", arguments);
        });
        child->on("MouseUp", [this](std::span<Value> arguments) {
            frame_.raise("MouseUp", arguments);
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
    if (frame_.record.GetNop() <= 0)
        return;
    start_ = pointer;
    angles_at_start_ = angles_;
    is_dragging_ = true;
    // The user watches the stored picture while the next one is drawn on the hidden surface.
    if (!plot_frame_.view.RePlot.Visible())
        plot_frame_.view.show_stored_picture();
    frame_.platform().do_events();
    show_preview();
    frame_.window.Refresh();
    frame_.image_valid = false;
}

void ViewRotation::turn(Pointer pointer)
{
    if (!is_dragging_)
        return;
    auto const& plot = plot_frame_.view.PLOTA;
    double const width_px = plot.Width() / frame_.platform().twips_per_pixel_x();
    double const height_px = plot.Height() / frame_.platform().twips_per_pixel_y();
    double const turned = round_half_even(divide(start_.x_px - pointer.x_px, width_px / degrees_of_width));
    double const tilted = round_half_even(divide(start_.y_px - pointer.y_px, height_px / degrees_of_height));
    double const rotation = angles_at_start_.rotation + turned;
    double const inclination = angles_at_start_.inclination + tilted;
    if (rotation == angles_.rotation && inclination == angles_.inclination)
        return;
    angles_.rotation = to_i16(kept_rotation(rotation));
    angles_.inclination = to_i16(kept_inclination(inclination));
    show_preview();
    frame_.platform().do_events();
}

// The layout draws the plot in full.
void ViewRotation::end()
{
    is_dragging_ = false;
    plot_frame_.lay_out();
}

void ViewRotation::show_preview()
{
    draw_preview_();
    plot_frame_.view.store_picture();
}

} // namespace zendara
