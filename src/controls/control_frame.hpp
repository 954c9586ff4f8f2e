#pragma once

#include "zendara/controls/control.hpp"
#include "zendara/dialogs/frm_about.hpp"
#include "zendara/dialogs/option_dialog.hpp"

#include <array>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace zendara
{

/// What all nine controls own: the window, the panel, the flags of the plot flow, the printer, and the way of events
/// and change reports to the host.
class ControlFrame
{
public:
    /// Makes the window and the panel, takes the default printer and sets the help file.
    ControlFrame(Control& control, Platform& platform, std::string name);

    Window window;
    panel record;
    Surface* printer;           // the host's or the platform's; nullptr for none
    BooleanWord limits_set;     // plot limits of the host are in force
    BooleanWord plot_requested; // Plot has been called on the present data
    BooleanWord image_valid;    // the stored picture shows the present data and settings
    BooleanWord legend_shown = true;

    Platform& platform() const { return window.platform(); }

    /// Tells the container that a property has changed, under its public name.
    void report_change(std::string_view property);
    /// Ends a setter that changes what the plot shows: the picture no longer holds, and the change is reported.
    void settings_changed(std::string_view property);
    /// New data or sizes: no plot of them exists yet.
    void forget_plot();

    /// Raises an event to the host.
    void raise(std::string_view event, std::span<Value> arguments);
    /// Hands events of children on to the host, with their arguments as they are.
    void forward(std::initializer_list<Child*> children, std::span<std::string_view const> events);

    /// Shows an option dialog modally in front of the control.
    /// @return  whether the settings in it are to be stored
    bool confirms(OptionDialog& dialog);
    void show_about(AboutKind kind);

    double hi_lo() const;
    double std_dev_percent() const;

private:
    Control& control_;
};

/// Forms of the pointer.
Enumeration const& pointer_enumeration();

/// The events that a control raises for its host.
std::vector<Event> control_events();

inline constexpr std::array<std::string_view, 2> click_events = {"Click", "DblClick"};
inline constexpr std::array<std::string_view, 3> mouse_events = {"MouseDown", "MouseMove", "MouseUp"};

/// The name of the help file beside the application. The test for the backslash looks one letter short of the end, and
/// installed help files rely on it.
std::string help_file_name(std::string_view application_path);

} // namespace zendara
