#pragma once

#include "zendara/support/interface.hpp"
#include "zendara/support/object.hpp"

#include <string>

namespace zendara::program
{

/// Sets a property of a control from "NAME=VALUE". The name is that of the interface, upper and lower case alike; the
/// value a number, true or false, the name of an enumeration's item, a colour as #RRGGBB, or a text.
/// @throws UserError  with a line that names the setting
void apply_setting(Object& control, std::string const& setting);

/// Whether a class has the property that a setting names.
bool has_setting(Interface const& known, std::string const& setting);

} // namespace zendara::program
