#pragma once

#include "commands.hpp"
#include "data_file.hpp"
#include "zendara/controls/control_classes.hpp"
#include "zendara/platform/headless/headless_platform.hpp"

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
    Size const& panel_mm() const { return panel_mm_; }
    /// What the user should know of the panel's size; empty for nothing.
    std::string const& panel_note() const { return panel_note_; }

private:
    void choose_panel(std::string const& size, SiteData const& sites);

    HeadlessPlatform platform_; // outlives the control
    std::unique_ptr<Control> control_;
    std::size_t site_count_ = 0;
    Size panel_mm_ = {300, 200};
    bool is_panel_fitted_ = false; // larger than usual because its sites ask for it
    std::string panel_note_;
};

} // namespace zendara::program
