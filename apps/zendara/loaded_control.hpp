#pragma once

#include "commands.hpp"
#include "controls/control.hpp"
#include "platform/headless/headless_platform.hpp"

#include <memory>
#include <string>

namespace zendara::program
{

/// A control without a screen, with the sites of one data file in it.
class LoadedControl
{
public:
    /// @param pixels  size on the screen
    /// @throws UserError  for an unknown control, a bad option or a data file that cannot be loaded
    LoadedControl(std::string const& control, Size const& pixels, DataOptions const& data);

    HeadlessPlatform& platform() { return platform_; }
    Control& control() { return *control_; }
    std::size_t site_count() const { return site_count_; }

private:
    HeadlessPlatform platform_; // outlives the control
    std::unique_ptr<Control> control_;
    std::size_t site_count_ = 0;
};

} // namespace zendara::program
