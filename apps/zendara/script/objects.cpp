#include "script/objects.hpp"

#include "zendara/form/property_bag.hpp"
#include "zendara/support/failure.hpp"
#include "zendara/support/interface.hpp"

#include <charconv>
#include <utility>

namespace zendara::program
{

namespace
{

[[noreturn]] void no_such(std::string_view path)
{
    throw Failure(FailureKind::NoSuchMember, "there is no object \"" + std::string(path) + '"');
}

/// One part of a path: a name, and an index where it stands in brackets.
struct Segment {
    std::string_view name;
    std::optional<int> index;
};

Segment segment_in(std::string_view text)
{
    auto const open = text.find('(');
    if (open == std::string_view::npos)
        return {text, {}};
    int index = 0;
    auto const [stop, error] = std::from_chars(text.data() + open + 1, text.data() + text.size(), index);
    bool const is_closed = stop + 1 == text.data() + text.size() && text.back() == ')';
    if (error != std::errc() || !is_closed)
        no_such(text);
    return {text.substr(0, open), index};
}

/// Takes the first part off a path.
std::string_view take_segment(std::string_view& path)
{
    auto const dot = path.find('.');
    auto const segment = path.substr(0, dot);
    path.remove_prefix(dot == std::string_view::npos ? path.size() : dot + 1);
    return segment;
}

bool has_member(Object& object, std::string_view name)
{
    for (Object* each = &object; each != nullptr; each = each->inner())
        if (each->host_interface().find(name) != nullptr)
            return true;
    return false;
}

/// The object that answers for a member: a control's place and size are those of its window.
Object& answering(Object& object, std::string_view member)
{
    auto* const control = object_cast<Control>(&object);
    return control != nullptr && !has_member(object, member) ? control->window() : object;
}

Object& child_of(Object& object, std::string_view text)
{
    auto const [name, index] = segment_in(text);
    if (Object* const child = object.find_child(name, index))
        return *child;
    if (index && object_cast<WidgetArray>(object.find_child(name, {})) != nullptr)
        throw Failure(FailureKind::SubscriptOutOfRange, "there is no element \"" + std::string(text) + '"');
    Object& owner = answering(object, name);
    if (index || !has_member(owner, name))
        no_such(text);
    Object* const held = to_object(get_member(owner, name));
    if (held == nullptr)
        throw Failure(FailureKind::ObjectNotSet, std::string(name) + " is nothing");
    return *held;
}

} // namespace

// The last made goes first.
Objects::~Objects()
{
    while (!owned_.empty())
        owned_.pop_back();
}

void Objects::add(std::string name, std::unique_ptr<Object> object)
{
    if (auto* const control = object_cast<Control>(object.get())) {
        Raised& raised = raised_[control];
        control->on_event = [&raised](std::string_view event, std::span<Value> arguments) {
            raised.events.push_back({std::string(event), {arguments.begin(), arguments.end()}});
        };
        control->on_change = [&raised](std::string_view property) { raised.changes.emplace_back(property); };
    }
    by_name_[std::move(name)] = object.get();
    owned_.push_back(std::move(object));
}

Objects::Guest::Guest(Objects& objects, std::string name, Object& object)
    : objects_(objects), name_(std::move(name)), before_(std::exchange(objects.by_name_[name_], &object))
{
}

Objects::Guest::~Guest()
{
    if (before_ == nullptr)
        objects_.by_name_.erase(name_);
    else
        objects_.by_name_[name_] = before_;
}

Object& Objects::find(std::string_view path) const
{
    auto rest = path;
    auto const name = take_segment(rest);
    auto found = by_name_.find(name);
    if (found == by_name_.end() && name.starts_with('$'))
        found = by_name_.find(name.substr(1));
    if (found == by_name_.end())
        no_such(name);
    Object* object = found->second;
    while (!rest.empty())
        object = &child_of(*object, take_segment(rest));
    return *object;
}

Target Objects::target(std::string_view path, std::string_view member) const
{
    Object* object = &find(path);
    if (object_cast<PropertyBag>(object) != nullptr)
        return {object, member}; // a key may hold dots
    for (auto dot = member.find('.'); dot != std::string_view::npos; dot = member.find('.'))
        object = &child_of(*object, take_segment(member));
    return {&answering(*object, member), member};
}

Raised& Objects::raised_by(Object& object)
{
    auto const found = raised_.find(&object);
    if (found == raised_.end())
        throw Failure(FailureKind::NoSuchMember, "only a control raises events and reports changes");
    return found->second;
}

} // namespace zendara::program
