#include "setting.hpp"

#include "near_names.hpp"
#include "user_error.hpp"
#include "zendara/support/color.hpp"
#include "zendara/support/interface.hpp"
#include "zendara/support/number_text.hpp"

#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

namespace zendara::program
{

namespace
{

/// What one setting says.
struct Setting {
    std::string_view name, value;
};

[[noreturn]] void reject(std::string const& setting, std::string const& why)
{
    throw UserError("--set " + setting + ": " + why);
}

Setting split(std::string const& setting)
{
    auto const equals = setting.find('=');
    if (equals == std::string::npos || equals == 0)
        reject(setting, "expected NAME=VALUE");
    std::string_view const text = setting;
    return {text.substr(0, equals), text.substr(equals + 1)};
}

Member const& writable_member(Object const& control, std::string const& setting, std::string_view name)
{
    auto const& known = control.host_interface();
    auto const* const member = known.find(name);
    if (member != nullptr && member->put != nullptr)
        return *member;

    std::string why = std::string(known.class_name);
    if (member != nullptr) {
        why += "." + std::string(member->name) + " cannot be set";
    } else {
        std::vector<std::string_view> names;
        for (auto const& each : known.members)
            if (each.put != nullptr)
                names.push_back(each.name);
        auto const hint = did_you_mean(name, names);
        why += " has no property \"" + std::string(name) + "\"" + (hint.empty() ? "" : "; " + hint);
    }
    reject(setting, why);
}

/// The colour of "#RRGGBB".
std::optional<double> color_in(std::string_view text)
{
    if (text.size() != 7 || text.front() != '#')
        return std::nullopt;
    std::uint32_t rgb = 0;
    auto const [stop, error] = std::from_chars(text.data() + 1, text.data() + text.size(), rgb, 16);
    if (error != std::errc() || stop != text.data() + text.size())
        return std::nullopt;
    auto const red = rgb >> 16, green = rgb >> 8 & 0xFF, blue = rgb & 0xFF;
    return red + 256.0 * green + 65536.0 * blue;
}

std::optional<double> item_in(Enumeration const& enumeration, std::string_view text)
{
    for (auto const& item : enumeration.items)
        if (equals_ignoring_case(item.name, text))
            return item.value;
    return std::nullopt;
}

std::optional<double> truth_in(std::string_view text)
{
    if (equals_ignoring_case(text, "true"))
        return -1;
    if (equals_ignoring_case(text, "false"))
        return 0;
    return std::nullopt;
}

std::string expected_value(Member const& member)
{
    if (member.enumeration == nullptr)
        return member.type == Type::Bool    ? "expected true or false"
               : member.type == Type::Color ? "expected a colour as #RRGGBB or a number"
                                            : "expected a number";
    std::string names;
    for (auto const& item : member.enumeration->items)
        names += (names.empty() ? "" : ", ") + std::string(item.name);
    return "expected one of " + names + ", or a number";
}

Value value_for(Member const& member, std::string const& setting, std::string_view text)
{
    if (member.type == Type::Object || member.type == Type::Picture)
        reject(setting, "an object cannot be given on the command line");
    if (member.type == Type::Bstr)
        return std::string(text);
    if (member.enumeration != nullptr)
        if (auto const item = item_in(*member.enumeration, text))
            return *item;
    if (auto const truth = truth_in(text))
        return *truth;
    if (auto const color = color_in(text); color && member.type == Type::Color)
        return *color;
    auto const number = parse_number(text);
    if (!number)
        reject(setting, expected_value(member));
    return *number;
}

} // namespace

void apply_setting(Object& control, std::string const& setting)
{
    auto const [name, text] = split(setting);
    auto const& member = writable_member(control, setting, name);
    try {
        put_member(control, name, value_for(member, setting, text));
    } catch (Failure const& failure) {
        reject(setting, failure.what());
    }
}

bool has_setting(Interface const& known, std::string const& setting)
{
    auto const* const member = known.find(split(setting).name);
    return member != nullptr && member->put != nullptr;
}

} // namespace zendara::program
