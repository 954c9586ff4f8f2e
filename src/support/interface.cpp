#include "zendara/support/interface.hpp"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <utility>

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

/// Takes the arguments that were filled in away again, also after a failure.
class ArgumentCount
{
public:
    ArgumentCount(std::vector<Value>& arguments, std::size_t count) : arguments_(arguments), count_(count) {}
    ArgumentCount(ArgumentCount const&) = delete;
    ~ArgumentCount() { arguments_.resize(count_); }

private:
    std::vector<Value>& arguments_;
    std::size_t count_;
};

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
    ArgumentCount const as_given(arguments, given);
    return member.invoke(owner, arguments);
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

Interface::Interface(std::string_view class_name, std::string_view help, std::vector<Member> members,
                     std::vector<Event> events)
    : class_name(class_name), help(help), members(std::move(members)), events(std::move(events))
{
    auto const number = [](auto& rows) {
        std::int32_t place = 0;
        for (auto& row : rows) {
            ++place;
            if (row.dispatch_id == 0)
                row.dispatch_id = place;
        }
    };
    number(this->members);
    number(this->events);
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

std::vector<Member const*> Interface::stored_members() const
{
    std::vector<Member const*> stored;
    for (auto const& member : members)
        if (member.stored)
            stored.push_back(&member);
    std::sort(stored.begin(), stored.end(),
              [](Member const* one, Member const* other) { return one->stored->place < other->stored->place; });
    return stored;
}

Member Member::of_kind(MemberKind other) &&
{
    kind = other;
    return std::move(*this);
}

Member Member::of_type(Type other) &&
{
    type = other;
    return std::move(*this);
}

Member Member::of(Enumeration const& values) &&
{
    type = Type::Enumeration;
    enumeration = &values;
    return std::move(*this);
}

Member Member::known_as(std::int32_t id) &&
{
    dispatch_id = id;
    return std::move(*this);
}

Member Member::saved(int place, std::string key, Value default_value) &&
{
    stored = Stored{place, key, std::move(default_value), key, name, name};
    return std::move(*this);
}

Member Member::saved(int place, std::string key) &&
{
    stored = Stored{place, key, std::nullopt, key, name, name};
    return std::move(*this);
}

Member Member::saved_as(std::string_view property) &&
{
    stored->property = property;
    stored->property_on_read = property;
    return std::move(*this);
}

Member Member::read_from(std::string key) &&
{
    stored->key_on_read = std::move(key);
    return std::move(*this);
}

Member Member::read_into(std::string_view property) &&
{
    stored->property_on_read = property;
    return std::move(*this);
}

Value get_member(Object& object, std::string_view name)
{
    auto const [member, owner] = resolve(object, name);
    if (member->kind == MemberKind::Set)
        throw Failure(FailureKind::NoSuchMember, std::string(member->name) + " cannot be read");
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
    return get_member(*owner, name);
}

Member detail::row(std::string_view name, MemberKind kind, Type type, std::string_view help)
{
    Member member;
    member.name = name;
    member.kind = kind;
    member.type = type;
    member.help = help;
    return member;
}

std::vector<Argument> detail::typed(std::span<Argument const> arguments, std::span<Type const> types)
{
    std::vector<Argument> typed(arguments.begin(), arguments.end());
    for (std::size_t i = 0; i < typed.size(); ++i)
        if (typed[i].type == Type::None)
            typed[i].type = types[i];
    return typed;
}

std::vector<Member> join(std::vector<std::vector<Member>> lists)
{
    std::vector<Member> all;
    for (auto& list : lists)
        std::move(list.begin(), list.end(), std::back_inserter(all));
    return all;
}

} // namespace zendara
