#pragma once

#include "zendara/support/value.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

/// A property store in memory: named values in the order of their first writing.
class PropertyBag : public Object
{
public:
    struct Entry {
        std::string key;
        Value value;
        Value default_value;
    };

    /// The value under the key, or the default when there is none.
    Value ReadProperty(std::string const& key, Value const& default_value) const;
    /// Stores a value; one that equals its default is stored as well.
    void WriteProperty(std::string const& key, Value const& value, Value const& default_value);

    std::vector<Entry> const& entries() const { return entries_; }

    Interface const& host_interface() const override;

private:
    std::vector<Entry> entries_;
};

} // namespace zendara
