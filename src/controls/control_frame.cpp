#include "zendara/controls/control_frame.hpp"

#include <cmath>

namespace zendara
{

ControlFrame::ControlFrame(Control& control, Platform& platform, std::string name)
    : window(platform, std::move(name)), printer(platform.default_printer()), control_(control)
{
    platform.set_help_file(help_file_name(platform.application_path()));
    record.container = &platform;
}

void ControlFrame::report_change(std::string_view property)
{
    if (control_.on_change)
        control_.on_change(property);
}

void ControlFrame::settings_changed(std::string_view property)
{
    image_valid = false;
    report_change(property);
}

void ControlFrame::forget_plot()
{
    plot_requested = false;
    image_valid = false;
}

void ControlFrame::raise(std::string_view event, std::span<Value> arguments)
{
    if (control_.on_event)
        control_.on_event(event, arguments);
}

void ControlFrame::forward(std::initializer_list<Child*> children, std::span<std::string_view const> events)
{
    for (Child* const child : children)
        for (std::string_view const event : events)
            child->on(event, [this, event](std::span<Value> arguments) { raise(event, arguments); });
}

bool ControlFrame::confirms(OptionDialog& dialog)
{
    dialog.show_modal(window);
    return dialog.Redraw();
}

void ControlFrame::show_about(AboutKind kind)
{
    frmAbout box(platform());
    box.SetTitle(static_cast<std::int16_t>(kind));
    box.show_modal(window);
}

double ControlFrame::hi_lo() const
{
    double const sum = record.mini + record.maxi;
    return sum == 0 ? 0 : std::abs((record.maxi - record.mini) / sum) * 100;
}

// A mean below zero reports 0 and not a magnitude.
double ControlFrame::std_dev_percent() const
{
    return record.mean <= 0 ? 0 : std::abs(record.StdDev / record.mean) * 100;
}

Enumeration const& pointer_enumeration()
{
    static Enumeration const values{"PointerEnum",
                                    {{"DefaultPointer", 0},
                                     {"ArrowPointer", 1},
                                     {"CrossPointer", 2},
                                     {"TextPointer", 3},
                                     {"HourglassPointer", 11},
                                     {"IconPointer", 99}}};
    return values;
}

std::vector<Event> control_events()
{
    std::vector<Argument> pointer = {by_reference("Button"), by_reference("Shift"), by_reference("x"),
                                     by_reference("y")};
    pointer[0].type = pointer[1].type = Type::I2;
    pointer[2].type = pointer[3].type = Type::R4;
    return {
        {"Click", {}, "The user has clicked."},
        {"DblClick", {}, "The user has clicked twice."},
        {"MouseDown", pointer, "A button goes down; x and y in the child that was hit."},
        {"MouseMove", pointer, "The pointer moves."},
        {"MouseUp", pointer, "A button comes up."},
    };
}

std::string help_file_name(std::string_view application_path)
{
    std::size_t const length = application_path.size();
    bool const ends_in_backslash = length >= 2 && application_path[length - 2] == '\\';
    return std::string(application_path) + (ends_in_backslash ? "" : "\\") + "zendara.hlp";
}

} // namespace zendara
