#pragma once

#include "zendara/support/boolean_word.hpp"
#include "zendara/support/host_array.hpp"
#include "zendara/support/object.hpp"

#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace zendara
{

/// Nothing: a Variant that was never set, a routine without a result.
struct Empty {
    bool operator==(Empty const&) const = default;
};

/// Several objects, which it does not own.
using ObjectList = std::vector<Object*>;

/// One value of the interface: a number, a text, an array, an object (which it does not own), several objects, or
/// nothing.
using Value =
    std::variant<Empty, std::int16_t, std::int32_t, float, double, std::string, HostArray<double>, Object*, ObjectList>;

/// The value as a Double.
/// @throws Failure  TypeMismatch when it is neither a number nor the text of one
double to_double(Value const& value);

/// The value as a text; numbers in their plain form.
/// @throws Failure  TypeMismatch for arrays and objects
std::string to_text(Value const& value);

/// The value as a host array.
/// @throws Failure  TypeMismatch when it is none
HostArray<double> const& to_array(Value const& value);

/// The object in the value, nullptr for nothing.
/// @throws Failure  TypeMismatch when it is neither
Object* to_object(Value const& value);

/// The objects in the value, none for nothing and for an empty array.
/// @throws Failure  TypeMismatch when it holds anything else
ObjectList to_object_list(Value const& value);

/// Refuses an object that is of another class than the member takes.
[[noreturn]] void fail_for_class(Object const& object);

/// Converts an interface value into the C++ type that a member takes. Numbers are rounded half to even.
/// @throws Failure  TypeMismatch, or Overflow when a number does not fit
template <class T> T from_value(Value const& value);

/// Wraps a C++ result into an interface value.
template <class T> Value to_value(T&& result);

} // namespace zendara

#include "zendara/support/value_conversion.ipp"
