#include "zendara/support/value.hpp"

#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

[[noreturn]] void mismatch(char const* wanted)
{
    throw Failure(FailureKind::TypeMismatch, std::string("the value is no ") + wanted);
}

} // namespace

double to_double(Value const& value)
{
    return std::visit(
        [](auto const& held) -> double {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_arithmetic_v<Held>) {
                return static_cast<double>(held);
            } else if constexpr (std::is_same_v<Held, std::string>) {
                auto const number = parse_number(held);
                if (!number)
                    mismatch("number");
                return *number;
            } else if constexpr (std::is_same_v<Held, Empty>) {
                return 0;
            } else {
                mismatch("number");
            }
        },
        value);
}

std::string to_text(Value const& value)
{
    return std::visit(
        [](auto const& held) -> std::string {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::string>)
                return held;
            else if constexpr (std::is_arithmetic_v<Held>)
                return plain_text(static_cast<double>(held));
            else if constexpr (std::is_same_v<Held, Empty>)
                return {};
            else
                mismatch("text");
        },
        value);
}

HostArray<double> const& to_array(Value const& value)
{
    auto const* const array = std::get_if<HostArray<double>>(&value);
    if (array == nullptr)
        mismatch("array");
    return *array;
}

Object* to_object(Value const& value)
{
    if (std::holds_alternative<Empty>(value))
        return nullptr;
    auto const* const object = std::get_if<Object*>(&value);
    if (object == nullptr)
        mismatch("object");
    return *object;
}

ObjectList to_object_list(Value const& value)
{
    if (auto const* const list = std::get_if<ObjectList>(&value))
        return *list;
    auto const* const array = std::get_if<HostArray<double>>(&value);
    bool const is_empty = std::holds_alternative<Empty>(value) || (array != nullptr && array->values().empty());
    if (!is_empty)
        mismatch("list of objects");
    return {};
}

} // namespace zendara
