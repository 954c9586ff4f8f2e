#pragma once

#include "zendara/form/children.hpp"
#include "zendara/form/property_bag.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/support/interface.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

/// One property as it is saved with the host's document. On some controls reading differs from writing: saved documents
/// depend on it.
struct StoredProperty {
    std::string property; // public name
    std::string key;
    std::string property_on_read;
    std::string key_on_read;
    std::optional<Value> default_value; // absent where it is the control's present value
};

/// What a container knows of any of the nine controls.
///
/// Order of life: make it, then InitProperties or ReadProperties, then window().resize.
class Control : public Object
{
public:
    /// Gets the events that the control raises to its host: name and arguments.
    using EventSink = std::function<void(std::string_view, std::span<Value>)>;
    /// Gets the public name of each property that has changed.
    using ChangeSink = std::function<void(std::string_view)>;

    EventSink on_event;
    ChangeSink on_change;

    virtual Window& window() = 0;
    virtual panel& record() = 0;

    /// The start values of a new control.
    virtual void InitProperties() = 0;
    /// Reads the saved properties through their public setters, in the order of the table.
    /// @throws Failure  TypeMismatch or Overflow for a value that its property cannot take
    void ReadProperties(PropertyBag const& store);
    /// Writes the properties, in the order of the table.
    void WriteProperties(PropertyBag& store);

    /// The saved properties in the order of reading.
    virtual std::vector<StoredProperty> const& stored_properties() const = 0;

    /// The panel as "PanelObj", then the children of the window.
    Object* find_child(std::string_view name, std::optional<int> index) override;
};

/// Classes of controls, in the order of `zendara controls`.
struct ControlClass {
    std::string_view name;
    std::unique_ptr<Control> (*make)(Platform& platform);
    Interface const& (*interface_table)();
    std::vector<StoredProperty> const& (*stored_properties)();
};

std::span<ControlClass const> control_classes();

/// The class of that name, upper and lower case alike; nullptr when there is none.
ControlClass const* find_control_class(std::string_view name);

} // namespace zendara
