#pragma once

#include "zendara/form/platform.hpp"
#include "zendara/panel/panel.hpp"

namespace zendara
{

/// Brings cell sizes down to a quarter of the tested area, and tells the user so in a message box.
/// @param resolution_x, resolution_y  cell sizes in millimetres, lowered in place
/// @return  whether one of them was lowered
bool limit_resolution(panel const& record, double& resolution_x, double& resolution_y, Platform& platform);

} // namespace zendara
