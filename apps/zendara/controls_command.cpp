#include "commands.hpp"
#include "json.hpp"
#include "near_names.hpp"
#include "zendara/controls/control_classes.hpp"
#include "zendara/support/interface.hpp"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace zendara::program
{

namespace
{

/// Accessors of a property in the order of their slots, as a type library calls them; "method" for a method.
std::vector<std::string_view> dispatch_kinds(MemberKind kind)
{
    switch (kind) {
    case MemberKind::Get:
        return {"propget"};
    case MemberKind::GetPut:
        return {"propget", "propput"};
    case MemberKind::PutGet:
        return {"propput", "propget"};
    case MemberKind::GetSet:
        return {"propget", "propputref"};
    case MemberKind::Set:
        return {"propputref"};
    case MemberKind::Method:
        return {"method"};
    }
    return {};
}

std::string_view word_of(MemberKind kind)
{
    switch (kind) {
    case MemberKind::Get:
        return "get";
    case MemberKind::GetPut:
        return "get put";
    case MemberKind::PutGet:
        return "put get";
    case MemberKind::GetSet:
        return "get set";
    case MemberKind::Set:
        return "set";
    case MemberKind::Method:
        return "method";
    }
    return "";
}

std::string type_text(Type type, Enumeration const* enumeration)
{
    return std::string(enumeration != nullptr ? enumeration->name : name_of(type));
}

std::string value_text(Value const& value, Type type)
{
    if (std::holds_alternative<Empty>(value))
        return "nothing";
    if (type == Type::Bool)
        return to_double(value) != 0 ? "True" : "False";
    return text_of(to_json(value));
}

// --- Text -----------------------------------------------------------------------------------------------------------

std::string padded(std::string text, std::size_t width)
{
    if (text.size() < width)
        text.resize(width, ' ');
    return text;
}

std::string argument_text(Argument const& argument)
{
    auto const text =
        std::string(argument.name) + (argument.is_by_reference ? " ref " : " ") + std::string(name_of(argument.type));
    if (!argument.default_value)
        return text;
    return '[' + text + " = " + value_text(*argument.default_value, argument.type) + ']';
}

std::string arguments_text(std::vector<Argument> const& arguments)
{
    std::string text;
    for (auto const& argument : arguments)
        text += (text.empty() ? "" : ", ") + argument_text(argument);
    return '(' + text + ')';
}

std::string member_text(Member const& member)
{
    auto const type = type_text(member.type, member.enumeration);
    return std::string(member.name) + (member.is_method() ? arguments_text(member.arguments) : "") +
           (type.empty() ? "" : ": " + type);
}

/// A row of a list: what it is about, and the help beside it, or below where there is no room.
std::string row(std::string const& subject, std::string_view help)
{
    constexpr std::size_t help_column = 46;
    std::string text = "  " + subject;
    text += text.size() + 2 > help_column ? '\n' + std::string(help_column, ' ')
                                          : std::string(help_column - text.size(), ' ');
    return text + std::string(help) + '\n';
}

std::string stored_text(Stored const& stored)
{
    bool const reads_elsewhere = stored.key_on_read != stored.key || stored.property_on_read != stored.property;
    auto text = padded(std::string(stored.property), 20) + json_text(stored.key);
    if (reads_elsewhere)
        text += ", read from " + json_text(stored.key_on_read) + " into " + std::string(stored.property_on_read);
    return text;
}

std::string description_text(ControlClass const& control)
{
    constexpr std::size_t kind_width = 9;
    auto const& table = control.interface_table();
    auto text = std::string(table.class_name) + ": " + std::string(table.help) + "\n\nMembers\n";
    for (auto const& member : table.members)
        text += row(padded(std::string(word_of(member.kind)), kind_width) + member_text(member), member.help);
    text += "\nEvents\n";
    for (auto const& event : table.events)
        text += row(std::string(event.name) + arguments_text(event.arguments), event.help);
    for (auto const* enumeration : table.enumerations()) {
        text += "\nEnumeration " + std::string(enumeration->name) + '\n';
        for (auto const& item : enumeration->items)
            text += "  " + padded(std::string(item.name), 24) + std::to_string(item.value) + '\n';
    }
    text += "\nStored properties: keys and defaults\n";
    for (auto const* const member : table.stored_members())
        text += row(stored_text(*member->stored), member->stored->default_value
                                                      ? value_text(*member->stored->default_value, Type::Variant)
                                                      : "the present value");
    return text;
}

std::string list_text()
{
    std::string text;
    for (auto const& control : control_classes())
        text += padded(std::string(control.name), 14) + std::string(control.interface_table().help) + '\n';
    return text;
}

// --- JSON -----------------------------------------------------------------------------------------------------------

Json arguments_json(std::vector<Argument> const& arguments)
{
    Json list = Json::array();
    for (auto const& argument : arguments) {
        Json entry = {{"name", std::string(argument.name)},
                      {"type", std::string(name_of(argument.type))},
                      {"ref", argument.is_by_reference},
                      {"optional", argument.default_value.has_value()}};
        if (argument.default_value)
            entry["default"] = to_json(*argument.default_value);
        list.push_back(std::move(entry));
    }
    return list;
}

Json members_json(std::vector<Member> const& members)
{
    Json list = Json::array();
    std::size_t slot = 0;
    for (auto const& member : members) {
        Json slots = Json::array();
        for (auto const kind : dispatch_kinds(member.kind))
            slots.push_back({{"slot", slot++}, {"dispatch", std::string(kind)}});
        Json entry = {{"name", std::string(member.name)},
                      {"kind", std::string(word_of(member.kind))},
                      {"type", std::string(name_of(member.type))}};
        if (member.enumeration != nullptr)
            entry["enumeration"] = std::string(member.enumeration->name);
        entry["arguments"] = arguments_json(member.arguments);
        entry["slots"] = std::move(slots);
        entry["help"] = std::string(member.help);
        list.push_back(std::move(entry));
    }
    return list;
}

Json events_json(std::vector<Event> const& events)
{
    Json list = Json::array();
    for (auto const& event : events)
        list.push_back({{"name", std::string(event.name)},
                        {"arguments", arguments_json(event.arguments)},
                        {"help", std::string(event.help)}});
    return list;
}

Json enumerations_json(std::vector<Enumeration const*> const& enumerations)
{
    Json list = Json::array();
    for (auto const* enumeration : enumerations) {
        Json items = Json::array();
        for (auto const& item : enumeration->items)
            items.push_back({{"name", std::string(item.name)}, {"value", item.value}});
        list.push_back({{"name", std::string(enumeration->name)}, {"items", std::move(items)}});
    }
    return list;
}

Json stored_json(std::vector<Member const*> const& properties)
{
    Json list = Json::array();
    for (auto const* const property : properties) {
        Stored const& stored = *property->stored;
        Json entry = {{"property", std::string(stored.property)},
                      {"key", stored.key},
                      {"property_on_read", std::string(stored.property_on_read)},
                      {"key_on_read", stored.key_on_read}};
        if (stored.default_value) // without one, the control's present value is the default
            entry["default"] = to_json(*stored.default_value);
        list.push_back(std::move(entry));
    }
    return list;
}

Json description_json(ControlClass const& control)
{
    auto const& table = control.interface_table();
    return {{"name", std::string(table.class_name)},
            {"help", std::string(table.help)},
            {"members", members_json(table.members)},
            {"events", events_json(table.events)},
            {"enumerations", enumerations_json(table.enumerations())},
            {"stored", stored_json(table.stored_members())}};
}

Json list_json()
{
    Json list = Json::array();
    for (auto const& control : control_classes())
        list.push_back({{"name", std::string(control.name)}, {"help", std::string(control.interface_table().help)}});
    return list;
}

ControlClass const& named_class(std::string const& name)
{
    if (auto const* const found = find_control_class(name))
        return *found;
    std::vector<std::string_view> names;
    for (auto const& known : control_classes())
        names.push_back(known.name);
    auto const hint = did_you_mean(name, names);
    throw UserError("controls: there is no control \"" + name + '"' + (hint.empty() ? "" : "; " + hint));
}

} // namespace

Exit controls(ControlsOptions const& options)
{
    constexpr int indent = 2;
    bool const is_json = options.format == "json";
    std::string text;
    if (options.name.empty())
        text = is_json ? list_json().dump(indent) + '\n' : list_text();
    else if (auto const& control = named_class(options.name); is_json)
        text = description_json(control).dump(indent) + '\n';
    else
        text = description_text(control);
    std::fputs(text.c_str(), stdout);
    return Exit::Done;
}

} // namespace zendara::program
