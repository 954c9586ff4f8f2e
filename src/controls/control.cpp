#include "zendara/controls/control.hpp"

namespace zendara
{

namespace
{

Value default_of(StoredProperty const& property, Object& control)
{
    return property.default_value ? *property.default_value : get_member(control, property.property);
}

} // namespace

void Control::ReadProperties(PropertyBag const& store)
{
    for (auto const& property : stored_properties())
        put_member(*this, property.property_on_read,
                   store.ReadProperty(property.key_on_read, default_of(property, *this)));
}

void Control::WriteProperties(PropertyBag& store)
{
    for (auto const& property : stored_properties())
        store.WriteProperty(property.key, get_member(*this, property.property), default_of(property, *this));
}

Object* Control::find_child(std::string_view name, std::optional<int> index)
{
    if (equals_ignoring_case(name, "PanelObj"))
        return &record();
    return window().find_child(name, index);
}

} // namespace zendara
