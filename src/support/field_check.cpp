#include "zendara/support/field_check.hpp"

#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

bool is_between(double value, double lo, double hi)
{
    return value > lo && value < hi;
}

bool has_any_of(std::string_view text, std::string_view letters)
{
    return text.find_first_of(letters) != std::string_view::npos;
}

// Why a text is no valid entry; empty when it is one.
std::string_view complaint_about(std::string_view text, double lo, double hi)
{
    if (text.empty())
        return "can not be empty\n";
    auto const number = parse_number(text);
    if (!number)
        return "must be numeric\n";
    return is_between(*number, lo, hi) ? "" : "not valid\n";
}

} // namespace

BooleanWord CheckField(std::string_view text, double lo, double hi, std::string& message, std::string_view label)
{
    auto const complaint = complaint_about(text, lo, hi);
    if (complaint.empty())
        return true;
    message.append(label).append(complaint);
    return false;
}

BooleanWord IsInRange(std::string_view text, double lo, double hi)
{
    auto const number = parse_number(text);
    return !number || is_between(*number, lo, hi);
}

BooleanWord IsWholeText(std::string_view text)
{
    if (text.empty())
        return true;
    return parse_number(text).has_value() && !has_any_of(text, "eE,.dD");
}

BooleanWord IsNumberText(std::string_view text, BooleanWord flag)
{
    if (text == "-")
        return static_cast<bool>(flag); // a True of its own, whatever word the flag holds
    return parse_number(text).has_value() && !has_any_of(text, "eEdD");
}

} // namespace zendara
