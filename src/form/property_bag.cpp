#include "zendara/form/property_bag.hpp"

#include "zendara/support/interface.hpp"

#include <algorithm>

namespace zendara
{

Value PropertyBag::ReadProperty(std::string const& key, Value const& default_value) const
{
    auto const found =
        std::find_if(entries_.begin(), entries_.end(), [&](Entry const& entry) { return entry.key == key; });
    return found == entries_.end() ? default_value : found->value;
}

void PropertyBag::WriteProperty(std::string const& key, Value const& value, Value const& default_value)
{
    auto const found =
        std::find_if(entries_.begin(), entries_.end(), [&](Entry const& entry) { return entry.key == key; });
    if (found == entries_.end())
        entries_.push_back({key, value, default_value});
    else
        *found = {key, value, default_value};
}

Interface const& PropertyBag::host_interface() const
{
    using B = PropertyBag;
    static Interface const table{
        "PropertyBag",
        "A property store in memory.",
        {
            method<&B::ReadProperty>("ReadProperty", "Value under a key, or the default.", by_value("key"),
                                     optional(by_value("default"), Empty{})),
            method<&B::WriteProperty>("WriteProperty", "Stores a value under a key.", by_value("key"),
                                      by_value("value"), optional(by_value("default"), Empty{})),
        }};
    return table;
}

} // namespace zendara
