#pragma once

#include "zendara/support/value.hpp"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace zendara
{

/// The types of the interface, as a type library names them.
enum class Type { None, R8, R4, I2, I4, Bool, Bstr, ArrayOfR8, Variant, Object, Picture, Color, Enumeration };

std::string_view name_of(Type type);

/// A named set of integer values of the interface.
struct Enumeration {
    std::string_view name;
    struct Item {
        std::string_view name;
        std::int32_t value;
    };
    std::vector<Item> items;
};

/// One argument of a member or an event.
struct Argument {
    std::string_view name;
    Type type = Type::None;             // filled from the C++ signature where a member is bound
    bool is_by_reference = false;       // the callee may change it, or the interface declares it so
    std::optional<Value> default_value; // present on optional arguments
};

/// An argument that the interface passes by value.
Argument by_value(std::string_view name);
/// An argument that the interface passes by reference.
Argument by_reference(std::string_view name);
/// An argument that a caller may leave out.
Argument optional(Argument argument, Value default_value);

/// What stands under one name. Where a property has two accessors, their order is that of the slots.
enum class MemberKind { Get, GetPut, PutGet, GetSet, Method };

struct Member {
    using Invoke = Value (*)(Object&, std::span<Value>);
    using Get = Value (*)(Object&);
    using Put = void (*)(Object&, Value const&);

    std::string_view name;
    MemberKind kind = MemberKind::Method;
    Type type = Type::None; // of the property, or of the method's result
    std::vector<Argument> arguments;
    std::string_view help;
    Enumeration const* enumeration = nullptr; // for Type::Enumeration
    Invoke invoke = nullptr;                  // methods
    Get get = nullptr;                        // properties
    Put put = nullptr;                        // properties that can be written

    bool is_method() const { return kind == MemberKind::Method; }

    /// The same member under another type than its C++ form shows: a colour, a picture, an enumeration.
    Member of_type(Type other, Enumeration const* values = nullptr) const
    {
        Member changed = *this;
        changed.type = other;
        changed.enumeration = values;
        return changed;
    }
};

struct Event {
    std::string_view name;
    std::vector<Argument> arguments;
    std::string_view help;
};

/// The members, events and enumerations of one class, in the order of its interface.
class Interface
{
public:
    Interface(std::string_view class_name, std::string_view help, std::vector<Member> members,
              std::vector<Event> events = {})
        : class_name(class_name), help(help), members(std::move(members)), events(std::move(events))
    {
    }

    /// The member of that name, upper and lower case alike; nullptr when there is none.
    Member const* find(std::string_view name) const;

    /// The enumerations that members use, each once.
    std::vector<Enumeration const*> enumerations() const;

    std::string_view class_name;
    std::string_view help;
    std::vector<Member> members;
    std::vector<Event> events;
};

/// Reads a property, or calls a method without arguments, of an object or of the one behind it.
/// @throws Failure  NoSuchMember, or what the member throws
Value get_member(Object& object, std::string_view name);

/// Writes a property.
/// @throws Failure  NoSuchMember, TypeMismatch, or what the member throws
void put_member(Object& object, std::string_view name, Value const& value);

/// Calls a method; arguments by reference are changed in place. Optional ones may be missing at the end.
/// @throws Failure  NoSuchMember, InvalidProcedureCall for a wrong count of arguments, or what the member throws
Value call_member(Object& object, std::string_view name, std::vector<Value>& arguments);

bool equals_ignoring_case(std::string_view left, std::string_view right);

// Binding of C++ members. All of it is written once, here; tables name the member and no type.

namespace detail
{

template <class T> constexpr Type type_of()
{
    using Plain = std::remove_cvref_t<T>;
    if constexpr (std::is_void_v<T>)
        return Type::None;
    else if constexpr (std::is_same_v<Plain, double>)
        return Type::R8;
    else if constexpr (std::is_same_v<Plain, float>)
        return Type::R4;
    else if constexpr (std::is_same_v<Plain, std::int16_t>)
        return Type::I2;
    else if constexpr (std::is_same_v<Plain, std::int32_t>)
        return Type::I4;
    else if constexpr (std::is_same_v<Plain, BooleanWord> || std::is_same_v<Plain, bool>)
        return Type::Bool;
    else if constexpr (std::is_same_v<Plain, std::string>)
        return Type::Bstr;
    else if constexpr (std::is_same_v<Plain, HostArray<double>>)
        return Type::ArrayOfR8;
    else if constexpr (std::is_same_v<Plain, Value>)
        return Type::Variant;
    else if constexpr (std::is_enum_v<Plain>)
        return Type::Enumeration;
    else
        return Type::Object;
}

/// What a member function keeps an argument in while it runs.
template <class A> struct Slot {
    using Plain = std::remove_cvref_t<A>;
    static constexpr bool is_object = std::is_base_of_v<Object, Plain>;
    using Held = std::conditional_t<is_object, Plain*, Plain>;
    Held held;

    explicit Slot(Value const& value) : held(from_value<Held>(value))
    {
        if constexpr (is_object)
            if (held == nullptr)
                fail(FailureKind::ObjectNotSet, "an object argument is nothing");
    }

    A pass()
    {
        if constexpr (is_object)
            return static_cast<A>(*held);
        else
            return static_cast<A>(held);
    }

    void give_back(Value& value) const
    {
        if constexpr (std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>> && !is_object)
            value = to_value(held);
    }
};

template <class C> C& as_class(Object& object)
{
    auto* const found = object_cast<C>(&object);
    if (found == nullptr)
        fail(FailureKind::TypeMismatch, "a member is called on an object of another class");
    return *found;
}

template <class Function> struct Signature;

template <class C, class R, class... A> struct Signature<R (C::*)(A...)> {
    using Class = C;
    using Result = R;
    static constexpr std::size_t count = sizeof...(A);
    template <std::size_t I> using Arg = std::tuple_element_t<I, std::tuple<A...>>;
    static std::vector<Type> types() { return {type_of<A>()...}; }

    template <auto F, class T, std::size_t... I>
    static Value call(Object& object, std::span<Value> values, std::index_sequence<I...>)
    {
        T& target = as_class<T>(object);
        std::tuple<Slot<A>...> slots{Slot<A>(values[I])...};
        auto const give_back = [&] { (std::get<I>(slots).give_back(values[I]), ...); };
        if constexpr (std::is_void_v<R>) {
            (target.*F)(std::get<I>(slots).pass()...);
            give_back();
            return Empty{};
        } else {
            Value result = to_value((target.*F)(std::get<I>(slots).pass()...));
            give_back();
            return result;
        }
    }
};

template <class C, class R, class... A> struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {
};

template <auto F, class T> Value invoke(Object& object, std::span<Value> values)
{
    using S = Signature<decltype(F)>;
    return S::template call<F, T>(object, values, std::make_index_sequence<S::count>());
}

std::vector<Argument> typed(std::vector<Argument> arguments, std::vector<Type> const& types, std::string_view member);

} // namespace detail

/// A method. `T` is the class that hosts know, which may own the member function through a shared part.
template <class T, auto F> Member method(std::string_view name, std::vector<Argument> arguments, std::string_view help)
{
    using S = detail::Signature<decltype(F)>;
    Member member;
    member.name = name;
    member.type = detail::type_of<typename S::Result>();
    member.arguments = detail::typed(std::move(arguments), S::types(), name);
    member.help = help;
    member.invoke = &detail::invoke<F, T>;
    return member;
}

/// A property that can only be read.
template <class T, auto Getter> Member getter(std::string_view name, std::string_view help)
{
    using S = detail::Signature<decltype(Getter)>;
    Member member;
    member.name = name;
    member.kind = MemberKind::Get;
    member.type = detail::type_of<typename S::Result>();
    member.help = help;
    member.get = [](Object& object) { return detail::invoke<Getter, T>(object, {}); };
    return member;
}

/// A property with both accessors.
template <class T, auto Getter, auto Setter>
Member property(std::string_view name, MemberKind kind, std::string_view help)
{
    Member member = getter<T, Getter>(name, help);
    member.kind = kind;
    member.put = [](Object& object, Value const& value) {
        std::array<Value, 1> argument = {value};
        detail::invoke<Setter, T>(object, argument);
    };
    return member;
}

/// A property whose accessors are overloads of one name.
/// @tparam Owner  the class that declares them: T itself or a part of it
/// @tparam G, P   what the getter returns and the setter takes
template <class T, class Owner, class G, class P, G (Owner::*Getter)() const, void (Owner::*Setter)(P)>
Member accessors(std::string_view name, MemberKind kind, std::string_view help)
{
    return property<T, Getter, Setter>(name, kind, help);
}

/// A public data member.
template <class T, auto Field> Member field(std::string_view name, std::string_view help)
{
    using Plain = std::remove_cvref_t<decltype(std::declval<T&>().*Field)>;
    Member member;
    member.name = name;
    member.kind = MemberKind::GetPut;
    member.type = detail::type_of<Plain>();
    member.help = help;
    member.get = [](Object& object) { return to_value(detail::as_class<T>(object).*Field); };
    member.put = [](Object& object, Value const& value) {
        detail::as_class<T>(object).*Field = from_value<Plain>(value);
    };
    return member;
}

/// Joins lists of members into one, in order.
std::vector<Member> join(std::vector<std::vector<Member>> lists);

} // namespace zendara
