#include "zendara/support/failure.hpp"

#include <cstdio>

namespace zendara
{

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
    char number[32];
    std::snprintf(number, sizeof number, "%.10g", value);
    throw Failure(kind, std::string(which) + ": " + number);
}

} // namespace zendara
