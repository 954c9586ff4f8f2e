// Conversions between interface values and C++ types; part of value.hpp.

#include "zendara/support/checked.hpp"

#include <optional>
#include <string_view>

namespace zendara
{

template <class T> constexpr bool is_optional = false;
template <class T> constexpr bool is_optional<std::optional<T>> = true;

template <class T> T from_value(Value const& value)
{
    if constexpr (std::is_same_v<T, Value>) {
        return value;
    } else if constexpr (std::is_same_v<T, BooleanWord>) {
        return BooleanWord::from_word(to_i16(to_double(value)));
    } else if constexpr (std::is_same_v<T, bool>) {
        return from_value<BooleanWord>(value);
    } else if constexpr (std::is_same_v<T, std::int16_t>) {
        return to_i16(to_double(value));
    } else if constexpr (std::is_same_v<T, std::int32_t>) {
        return to_i32(to_double(value));
    } else if constexpr (std::is_enum_v<T>) {
        return static_cast<T>(to_i32(to_double(value)));
    } else if constexpr (std::is_same_v<T, float>) {
        return to_f32(to_double(value));
    } else if constexpr (std::is_same_v<T, double>) {
        return to_double(value);
    } else if constexpr (std::is_same_v<T, std::string>) {
        return to_text(value);
    } else if constexpr (std::is_same_v<T, HostArray<double>>) {
        return to_array(value);
    } else if constexpr (std::is_same_v<T, ObjectList>) {
        return to_object_list(value);
    } else if constexpr (is_optional<T>) {
        return std::holds_alternative<Empty>(value) ? T() : T(from_value<typename T::value_type>(value));
    } else {
        static_assert(std::is_pointer_v<T>, "no conversion from an interface value to this type");
        Object* const object = to_object(value);
        if (object == nullptr)
            return nullptr;
        auto* const found = object_cast<std::remove_pointer_t<T>>(object);
        if (found == nullptr)
            fail_for_class(*object);
        return found;
    }
}

template <class T> Value to_value(T&& result)
{
    using Plain = std::remove_cvref_t<T>;
    if constexpr (std::is_same_v<Plain, Value>)
        return std::forward<T>(result);
    else if constexpr (std::is_same_v<Plain, BooleanWord>)
        return Value(result.word);
    else if constexpr (std::is_same_v<Plain, bool>)
        return Value(BooleanWord(result).word);
    else if constexpr (std::is_enum_v<Plain>)
        return Value(static_cast<std::int32_t>(result));
    else if constexpr (std::is_same_v<Plain, std::string_view>)
        return Value(std::string(result));
    else if constexpr (std::is_pointer_v<Plain>)
        return Value(static_cast<Object*>(result));
    else
        return Value(std::forward<T>(result));
}

} // namespace zendara
