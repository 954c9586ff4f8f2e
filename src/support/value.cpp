#include "zendara/support/value.hpp"

#include "zendara/support/interface.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

std::string description(Object const* object)
{
    return object == nullptr ? "nothing" : "an object of class " + std::string(object->host_interface().class_name);
}

/// The value as messages show it.
std::string description(Value const& value)
{
    return std::visit(
        [](auto const& held) -> std::string {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_arithmetic_v<Held>)
                return shown(static_cast<double>(held));
            else if constexpr (std::is_same_v<Held, std::string>)
                return shown(std::string_view(held));
            else if constexpr (std::is_same_v<Held, Object*>)
                return description(held);
            else if constexpr (std::is_same_v<Held, HostArray<double>>)
                return "an array";
            else if constexpr (std::is_same_v<Held, ObjectList>)
                return "a list of objects";
            else
                return "nothing";
        },
        value);
}

[[noreturn]] void mismatch(char const* wanted, Value const& value)
{
    throw Failure(FailureKind::TypeMismatch, std::string("the value is no ") + wanted + ": " + description(value));
}

} // namespace

void fail_for_class(Object const& object)
{
    throw Failure(FailureKind::TypeMismatch, "the member does not take what it was given: " + description(&object));
}

double to_double(Value const& value)
{
    return std::visit(
        [&](auto const& held) -> double {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_arithmetic_v<Held>) {
                return static_cast<double>(held);
            } else if constexpr (std::is_same_v<Held, std::string>) {
                auto const number = parse_number(held);
                if (!number)
                    mismatch("number", value);
                return *number;
            } else if constexpr (std::is_same_v<Held, Empty>) {
                return 0;
            } else {
                mismatch("number", value);
            }
        },
        value);
}

std::string to_text(Value const& value)
{
    return std::visit(
        [&](auto const& held) -> std::string {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::string>)
                return held;
            else if constexpr (std::is_arithmetic_v<Held>)
                return plain_text(static_cast<double>(held));
            else if constexpr (std::is_same_v<Held, Empty>)
                return {};
            else
                mismatch("text", value);
        },
        value);
}

HostArray<double> const& to_array(Value const& value)
{
    auto const* const array = std::get_if<HostArray<double>>(&value);
    if (array == nullptr)
        mismatch("array", value);
    return *array;
}

Object* to_object(Value const& value)
{
    if (std::holds_alternative<Empty>(value))
        return nullptr;
    auto const* const object = std::get_if<Object*>(&value);
    if (object == nullptr)
        mismatch("object", value);
    return *object;
}

ObjectList to_object_list(Value const& value)
{
    if (auto const* const list = std::get_if<ObjectList>(&value))
        return *list;
    auto const* const array = std::get_if<HostArray<double>>(&value);
    bool const is_empty = std::holds_alternative<Empty>(value) || (array != nullptr && array->values().empty());
    if (!is_empty)
        mismatch("list of objects", value);
    return {};
}

} // namespace zendara
