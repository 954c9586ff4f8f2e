#pragma once

#include "zendara/controls/control.hpp"

#include <memory>
#include <span>
#include <string_view>

namespace zendara
{

/// A class of controls, for programs that choose one by its name.
struct ControlClass {
    std::string_view name;
    std::unique_ptr<Control> (*make)(Platform& platform);
    Interface const& (*interface_table)();
};

/// All nine, in the order in which programs list them.
std::span<ControlClass const> control_classes();

/// The class of that name, upper and lower case alike; nullptr when there is none.
ControlClass const* find_control_class(std::string_view name);

} // namespace zendara
