#pragma once

#include "zendara/dialogs/property_page.hpp"
#include "zendara/form/form.hpp"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace zendara
{

/// A dialog that hosts may make by its name: the option dialogs and the about box.
struct DialogClass {
    std::string_view name;
    std::unique_ptr<Form> (*make)(Platform& platform);
};
std::span<DialogClass const> dialog_classes();

/// A property page, and the control that it is for; no control stands for all.
struct PageClass {
    std::string_view name;
    std::string_view control;
    std::unique_ptr<PropertyPage> (*make)(Platform& platform);
};
std::span<PageClass const> page_classes();

/// The pages of a control: that of the panel, and the one of its own kind where it has one.
std::vector<PageClass const*> pages_of(std::string_view control);

} // namespace zendara
