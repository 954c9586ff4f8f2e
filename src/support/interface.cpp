#include "zendara/support/interface.hpp"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <stdexcept>

namespace zendara
{

namespace
{

[[noreturn]] void no_such_member(Object const& object, std::string_view name)
{
    throw Failure(FailureKind::NoSuchMember,
                  std::string(object.host_interface().class_name) + " has no member \"" + std::string(name) + '"');
}

/// The member, and the object that answers for it.
std::pair<Member const*, Object*> resolve(Object& object, std::string_view name)
{
    for (Object* owner = &object; owner != nullptr; owner = owner->inner())
        if (auto const* const member = owner->host_interface().find(name))
            return {member, owner};
    no_such_member(object, name);
}

Value invoke(Member const& member, Object& owner, std::vector<Value>& arguments)
{
    auto const given = arguments.size();
    auto const& declared = member.arguments;
    bool const fits = given <= declared.size() &&
                      std::all_of(declared.begin() + static_cast<std::ptrdiff_t>(std::min(given, declared.size())),
                                  declared.end(), [](Argument const& a) { return a.default_value.has_value(); });
    if (!fits)
        throw Failure(FailureKind::InvalidProcedureCall, std::string(member.name) + " takes " +
                                                             std::to_string(declared.size()) + " arguments, not " +
                                                             std::to_string(given));
    for (std::size_t i = given; i < declared.size(); ++i)
        arguments.push_back(*declared[i].default_value);
    Value result = member.invoke(owner, arguments);
    arguments.resize(given);
    return result;
}

} // namespace

std::string_view name_of(Type type)
{
    switch (type) {
    case Type::None:
        return "";
    case Type::R8:
        return "R8";
    case Type::R4:
        return "R4";
    case Type::I2:
        return "I2";
    case Type::I4:
        return "I4";
    case Type::Bool:
        return "BOOL";
    case Type::Bstr:
        return "BSTR";
    case Type::ArrayOfR8:
        return "array of R8";
    case Type::Variant:
        return "Variant";
    case Type::Object:
        return "object";
    case Type::Picture:
        return "picture";
    case Type::Color:
        return "colour";
    case Type::Enumeration:
        return "enumeration";
    }
    return "";
}

Argument by_value(std::string_view name)
{
    Argument argument;
    argument.name = name;
    return argument;
}

Argument by_reference(std::string_view name)
{
    Argument argument = by_value(name);
    argument.is_by_reference = true;
    return argument;
}

Argument optional(Argument argument, Value default_value)
{
    argument.default_value = std::move(default_value);
    return argument;
}

bool equals_ignoring_case(std::string_view left, std::string_view right)
{
    auto const lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [&](char a, char b) { return lower(a) == lower(b); });
}

Member const* Interface::find(std::string_view name) const
{
    auto const found = std::find_if(members.begin(), members.end(),
                                    [&](Member const& member) { return equals_ignoring_case(member.name, name); });
    return found == members.end() ? nullptr : &*found;
}

std::vector<Enumeration const*> Interface::enumerations() const
{
    std::vector<Enumeration const*> used;
    for (auto const& member : members)
        if (member.enumeration != nullptr && std::find(used.begin(), used.end(), member.enumeration) == used.end())
            used.push_back(member.enumeration);
    return used;
}

Value get_member(Object& object, std::string_view name)
{
    auto const [member, owner] = resolve(object, name);
    if (member->get != nullptr)
        return member->get(*owner);
    std::vector<Value> none;
    return invoke(*member, *owner, none);
}

void put_member(Object& object, std::string_view name, Value const& value)
{
    auto const [member, owner] = resolve(object, name);
    if (member->put == nullptr)
        throw Failure(FailureKind::NoSuchMember, std::string(member->name) + " cannot be written");
    member->put(*owner, value);
}

Value call_member(Object& object, std::string_view name, std::vector<Value>& arguments)
{
    auto const [member, owner] = resolve(object, name);
    if (member->is_method())
        return invoke(*member, *owner, arguments);
    if (!arguments.empty())
        throw Failure(FailureKind::InvalidProcedureCall, std::string(member->name) + " is a property, not a method");
    return member->get(*owner);
}

std::vector<Argument> detail::typed(std::vector<Argument> arguments, std::vector<Type> const& types,
                                    std::string_view member)
{
    if (arguments.size() != types.size())
        throw std::logic_error("the interface table names another count of arguments than " + std::string(member));
    for (std::size_t i = 0; i < arguments.size(); ++i)
        arguments[i].type = types[i];
    return arguments;
}

std::vector<Member> join(std::vector<std::vector<Member>> lists)
{
    std::vector<Member> all;
    for (auto& list : lists)
        std::move(list.begin(), list.end(), std::back_inserter(all));
    return all;
}

} // namespace zendara
