#pragma once

#include "loaded_control.hpp"

#include <string>
#include <vector>

namespace zendara::program
{

/// Reads the size of a picture.
/// @throws UserError  for anything but whole numbers from 1 to 16384
Size parse_pixels(std::string const& text);

/// Takes other limits for the colour scale; an empty list leaves those of the data.
/// @throws UserError  when the first does not lie below the second
void set_limits(Control& control, std::vector<double> const& limits);

/// Hands what the control had to say to standard error.
void tell_messages(HeadlessPlatform& platform);

/// Runs Plot; what the control has to say goes to standard error.
/// @param data_file  named in the message
/// @throws UserError  when there is nothing to plot
void draw(LoadedControl& loaded, std::string const& data_file);

/// Tells on standard error what the user should know of the panel's size.
void tell_panel_note(LoadedControl const& loaded);

} // namespace zendara::program
