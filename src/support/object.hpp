#pragma once

#include <optional>
#include <string_view>

namespace zendara
{

class Interface;

/// Anything that a host can hold and address by its members' names.
class Object
{
public:
    Object() = default;
    virtual ~Object() = default;
    Object(Object const&) = delete;
    Object& operator=(Object const&) = delete;

    /// The members that hosts may name.
    virtual Interface const& host_interface() const = 0;

    /// The child of that name, upper and lower case alike; with an index, that element of a control array.
    /// @return  nullptr when there is none
    virtual Object* find_child(std::string_view, std::optional<int>) { return nullptr; }

    /// The object behind this one, which answers what this one does not know: the surface of a picture box.
    virtual Object* inner() { return nullptr; }
};

/// The object as a T, or the object behind it as a T.
/// @return  nullptr when neither is one
template <class T> T* object_cast(Object* object)
{
    for (; object != nullptr; object = object->inner())
        if (auto* const found = dynamic_cast<T*>(object))
            return found;
    return nullptr;
}

} // namespace zendara
