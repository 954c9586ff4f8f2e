#pragma once

#include "zendara/support/value.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
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
    Type type = Type::None;             // taken from the C++ signature unless it is given
    bool is_by_reference = false;       // the callee may change it, or the interface declares it so
    std::optional<Value> default_value; // present on optional arguments

    /// The same argument under another type than its C++ form shows: a colour.
    Argument as(Type other) const
    {
        Argument changed = *this;
        changed.type = other;
        return changed;
    }
};

template <std::size_t N> using Arguments = std::array<Argument, N>;

/// An argument that the interface passes by value.
Argument by_value(std::string_view name);
/// An argument that the interface passes by reference.
Argument by_reference(std::string_view name);
/// An argument that a caller may leave out.
Argument optional(Argument argument, Value default_value);

/// Several arguments that are passed by reference.
template <class... Names> Arguments<sizeof...(Names)> by_references(Names... names)
{
    return {by_reference(names)...};
}

/// Arguments and one more behind them.
template <std::size_t N> Arguments<N + 1> operator+(Arguments<N> const& arguments, Argument const& last)
{
    Arguments<N + 1> more;
    std::copy(arguments.begin(), arguments.end(), more.begin());
    more.back() = last;
    return more;
}

template <std::size_t N, std::size_t M>
Arguments<N + M> operator+(Arguments<N> const& first, Arguments<M> const& second)
{
    Arguments<N + M> all;
    std::copy(second.begin(), second.end(), std::copy(first.begin(), first.end(), all.begin()));
    return all;
}

/// What stands under one name. Where a property has two accessors, their order is that of the slots.
enum class MemberKind { Get, GetPut, PutGet, GetSet, Set, Method };

/// How a property is saved with the host's document. On some controls reading differs from writing: saved documents
/// depend on it.
struct Stored {
    int place; // in the order of reading and writing
    std::string key;
    std::optional<Value> default_value; // absent where it is the present value
    std::string key_on_read;
    std::string_view property; // by the name that the store knows it under
    std::string_view property_on_read;
};

/// A row of an interface: a property or a method, with all that containers make of it.
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
    std::int32_t dispatch_id = 0;             // for late binding; the interface numbers those that have none
    std::optional<Stored> stored;             // properties that are saved
    Invoke invoke = nullptr;                  // methods
    Get get = nullptr;                        // properties that can be read
    Put put = nullptr;                        // properties that can be written

    bool is_method() const { return kind == MemberKind::Method; }

    // The same row with one thing said of it.

    Member of_kind(MemberKind other) &&;
    /// Another type than its C++ form shows: a colour, a picture.
    Member of_type(Type other) &&;
    Member of(Enumeration const& values) &&;
    /// An identity that all hosts know.
    Member known_as(std::int32_t id) &&;
    /// Saved under a key; equal to its default it need not be.
    Member saved(int place, std::string key, Value default_value) &&;
    /// Saved under a key; the default is the present value.
    Member saved(int place, std::string key) &&;
    /// Saved as the property of another name, which is its own in other letters.
    Member saved_as(std::string_view property) &&;
    /// Read from another key than it is written to.
    Member read_from(std::string key) &&;
    /// What is saved of it goes into another property when it is read.
    Member read_into(std::string_view property) &&;
};

struct Event {
    std::string_view name;
    std::vector<Argument> arguments;
    std::string_view help;
    std::int32_t dispatch_id = 0;
};

/// Identities of members and events that all hosts know.
namespace dispatch
{
constexpr std::int32_t back_color = -501;
constexpr std::int32_t window_handle = -515;
constexpr std::int32_t about_box = -552;
constexpr std::int32_t click = -600;
constexpr std::int32_t double_click = -601;
constexpr std::int32_t mouse_down = -605;
constexpr std::int32_t mouse_move = -606;
constexpr std::int32_t mouse_up = -607;
} // namespace dispatch

/// The members, events and enumerations of one class, in the order of its interface.
class Interface
{
public:
    /// Members and events without a dispatch identity get their number in the list, from 1 on.
    Interface(std::string_view class_name, std::string_view help, std::vector<Member> members,
              std::vector<Event> events = {});

    /// The member of that name, upper and lower case alike; nullptr when there is none.
    Member const* find(std::string_view name) const;

    /// The enumerations that members use, each once.
    std::vector<Enumeration const*> enumerations() const;

    /// The properties that are saved, in the order of reading.
    std::vector<Member const*> stored_members() const;

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

template <class T> struct OptionalOf {
    using Inner = T;
};
template <class T> struct OptionalOf<std::optional<T>> {
    using Inner = T;
};

template <class T> constexpr Type type_of()
{
    using Plain = typename OptionalOf<std::remove_cvref_t<T>>::Inner;
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
    else if constexpr (std::is_same_v<Plain, std::string> || std::is_same_v<Plain, std::string_view>)
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

/// What a member function keeps an argument in while it runs. What the function has written into an argument by
/// reference goes back to the caller when the slot ends, also when the function has failed.
template <class A> class Slot
{
    using Plain = std::remove_cvref_t<A>;
    static constexpr bool is_object = std::is_base_of_v<Object, Plain>;
    static constexpr bool is_view = std::is_same_v<Plain, std::string_view>;
    static constexpr bool comes_back =
        std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>> && !is_object;
    using Held = std::conditional_t<is_object, Plain*, std::conditional_t<is_view, std::string, Plain>>;

public:
    Slot(Value& value) : value_(value), held_(from_value<Held>(value))
    {
        if constexpr (is_object)
            if (held_ == nullptr)
                fail(FailureKind::ObjectNotSet, "an object argument is nothing");
    }
    Slot(Slot const&) = delete;
    Slot& operator=(Slot const&) = delete;
    ~Slot()
    {
        if constexpr (comes_back)
            if (is_passed_)
                value_ = to_value(std::move(held_));
    }

    A pass()
    {
        is_passed_ = true;
        if constexpr (is_object)
            return static_cast<A>(*held_);
        else
            return static_cast<A>(held_);
    }

private:
    Value& value_;
    Held held_;
    bool is_passed_ = false;
};

/// The slots of all arguments; they are filled from the first to the last.
template <std::size_t I, class A> struct SlotAt : Slot<A> {
    using Slot<A>::Slot;
};
template <class... At> struct Slots : At... {
};

template <class C> C& as_class(Object& object)
{
    auto* const found = object_cast<C>(&object);
    if (found == nullptr)
        fail(FailureKind::TypeMismatch, "a member is called on an object of another class");
    return *found;
}

template <class Function> struct Signature;

/// A member function: it is called on the object, or on the part of it or behind it that has the function.
template <class C, class R, class... A> struct Signature<R (C::*)(A...)> {
    using Result = R;
    static constexpr std::size_t count = sizeof...(A);
    static constexpr std::array<Type, count> types() { return {type_of<A>()...}; }

    template <auto F, std::size_t... I>
    static Value call(Object& object, [[maybe_unused]] std::span<Value> values, std::index_sequence<I...>)
    {
        C& target = as_class<C>(object);
        [[maybe_unused]] Slots<SlotAt<I, A>...> slots{{values[I]}...};
        if constexpr (std::is_void_v<R>) {
            (target.*F)(static_cast<SlotAt<I, A>&>(slots).pass()...);
            return Empty{};
        } else {
            return to_value((target.*F)(static_cast<SlotAt<I, A>&>(slots).pass()...));
        }
    }
};

template <class C, class R, class... A> struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {
};

/// A free function: it does not ask for the object.
template <class R, class... A> struct Signature<R (*)(A...)> {
    using Result = R;
    static constexpr std::size_t count = sizeof...(A);
    static constexpr std::array<Type, count> types() { return {type_of<A>()...}; }

    template <auto F, std::size_t... I>
    static Value call(Object&, [[maybe_unused]] std::span<Value> values, std::index_sequence<I...>)
    {
        [[maybe_unused]] Slots<SlotAt<I, A>...> slots{{values[I]}...};
        if constexpr (std::is_void_v<R>) {
            F(static_cast<SlotAt<I, A>&>(slots).pass()...);
            return Empty{};
        } else {
            return to_value(F(static_cast<SlotAt<I, A>&>(slots).pass()...));
        }
    }
};

template <auto F> Value invoke(Object& object, std::span<Value> values)
{
    using S = Signature<decltype(F)>;
    return S::template call<F>(object, values, std::make_index_sequence<S::count>());
}

template <auto F> Value get(Object& object)
{
    return invoke<F>(object, {});
}

template <auto F> void put(Object& object, Value const& value)
{
    std::array<Value, 1> argument = {value};
    invoke<F>(object, argument);
}

/// The class of a pointer to a data member, and what it points to.
template <class Pointer> struct Field;
template <class C, class T> struct Field<T C::*> {
    using Class = C;
    using Type = T;
};

/// The data member at the end of a chain of members.
template <auto First, auto... Rest, class Holder> auto& part_of(Holder& holder)
{
    if constexpr (sizeof...(Rest) == 0)
        return holder.*First;
    else
        return part_of<Rest...>(holder.*First);
}

template <auto First, auto... Rest> auto& field_of(Object& object)
{
    return part_of<First, Rest...>(as_class<typename Field<decltype(First)>::Class>(object));
}

Member row(std::string_view name, MemberKind kind, Type type, std::string_view help);
std::vector<Argument> typed(std::span<Argument const> arguments, std::span<Type const> types);

} // namespace detail

/// A method, or a free function that stands as one, with the arguments as the interface names them.
template <auto F, std::size_t N>
Member method(std::string_view name, std::string_view help, Arguments<N> const& arguments)
{
    using S = detail::Signature<decltype(F)>;
    static_assert(N == S::count, "the row names another count of arguments than the member has");
    auto const types = S::types();
    Member member = detail::row(name, MemberKind::Method, detail::type_of<typename S::Result>(), help);
    member.arguments = detail::typed(arguments, types);
    member.invoke = &detail::invoke<F>;
    return member;
}

template <auto F, class... A> Member method(std::string_view name, std::string_view help, A const&... arguments)
{
    return method<F>(name, help, Arguments<sizeof...(A)>{arguments...});
}

/// A property that can only be read.
template <auto Getter> Member getter(std::string_view name, std::string_view help)
{
    using Result = typename detail::Signature<decltype(Getter)>::Result;
    Member member = detail::row(name, MemberKind::Get, detail::type_of<Result>(), help);
    member.get = &detail::get<Getter>;
    return member;
}

/// A property that can only be written.
template <auto Setter> Member setter(std::string_view name, std::string_view help)
{
    using S = detail::Signature<decltype(Setter)>;
    static_assert(S::count == 1);
    Member member = detail::row(name, MemberKind::Set, S::types()[0], help);
    member.put = &detail::put<Setter>;
    return member;
}

/// A property whose accessors are overloads of one name of class C.
template <class C, class T, T (C::*Getter)() const, void (C::*Setter)(T)>
Member property(std::string_view name, std::string_view help)
{
    Member member = getter<Getter>(name, help);
    member.kind = MemberKind::GetPut;
    member.put = &detail::put<Setter>;
    return member;
}

/// As property, of a text.
template <class C, std::string const& (C::*Getter)() const, void (C::*Setter)(std::string_view)>
Member text_property(std::string_view name, std::string_view help)
{
    Member member = getter<Getter>(name, help);
    member.kind = MemberKind::GetPut;
    member.put = &detail::put<Setter>;
    return member;
}

/// A public data member, or a part of one: field<&Surface::Font, &FontFace::Bold>.
template <auto First, auto... Rest> Member field(std::string_view name, std::string_view help)
{
    using Plain = std::remove_cvref_t<decltype(detail::part_of<First, Rest...>(
        std::declval<typename detail::Field<decltype(First)>::Class&>()))>;
    Member member = detail::row(name, MemberKind::GetPut, detail::type_of<Plain>(), help);
    member.get = [](Object& object) { return to_value(detail::field_of<First, Rest...>(object)); };
    member.put = [](Object& object, Value const& value) {
        detail::field_of<First, Rest...>(object) = from_value<Plain>(value);
    };
    return member;
}

/// Joins lists of members into one, in order.
std::vector<Member> join(std::vector<std::vector<Member>> lists);

} // namespace zendara
