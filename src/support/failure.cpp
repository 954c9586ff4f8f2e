#include "zendara/support/failure.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace zendara
{

namespace
{

bool is_control(char letter)
{
    return static_cast<unsigned char>(letter) < ' ' || letter == '\x7f';
}

/// How many of the first bytes hold no part of a letter only: one in UTF-8 takes up to four.
std::size_t whole_letters(std::string_view text, std::size_t bytes)
{
    constexpr std::size_t longest_letter = 4;
    auto const is_inside_letter = [&](std::size_t at) { return (text[at] & 0xC0) == 0x80; };
    std::size_t end = bytes;
    while (is_inside_letter(end) && bytes - end < longest_letter)
        --end;
    return end;
}

} // namespace

std::string_view name_of(FailureKind kind)
{
    switch (kind) {
    case FailureKind::Overflow:
        return "Overflow";
    case FailureKind::SubscriptOutOfRange:
        return "SubscriptOutOfRange";
    case FailureKind::DivisionByZero:
        return "DivisionByZero";
    case FailureKind::TypeMismatch:
        return "TypeMismatch";
    case FailureKind::ObjectNotSet:
        return "ObjectNotSet";
    case FailureKind::InvalidProcedureCall:
        return "InvalidProcedureCall";
    case FailureKind::FileError:
        return "FileError";
    case FailureKind::NoSuchMember:
        return "NoSuchMember";
    }
    return "unknown";
}

void fail(FailureKind kind, char const* which)
{
    throw Failure(kind, which);
}

void fail(FailureKind kind, char const* which, double value)
{
    throw Failure(kind, std::string(which) + ": " + shown(value));
}

void fail(FailureKind kind, char const* which, std::string_view text)
{
    throw Failure(kind, std::string(which) + ": " + shown(text));
}

std::string shown(double value)
{
    if (std::isnan(value))
        return "nan"; // without its sign, which is another on another machine
    char number[32];
    std::snprintf(number, sizeof number, "%.10g", value);
    return number;
}

std::string shown(std::string_view text)
{
    constexpr std::size_t longest = 40;
    bool const is_cut = text.size() > longest;
    std::string letters(text.substr(0, is_cut ? whole_letters(text, longest) : text.size()));
    std::replace_if(
        letters.begin(), letters.end(), [](char letter) { return is_control(letter); }, '?');
    return '"' + letters + (is_cut ? "...\"" : "\"");
}

} // namespace zendara
