#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace zendara
{

/// The kinds of run-time failure that the interface knows.
enum class FailureKind {
    Overflow,
    SubscriptOutOfRange,
    DivisionByZero,
    TypeMismatch,
    ObjectNotSet,
    InvalidProcedureCall,
    FileError,
    NoSuchMember,
};

/// The name of a kind as hosts see it, "Overflow" for example.
std::string_view name_of(FailureKind kind);

/// A run-time failure. Thrown by the checks of this folder, caught by trap() and at a container's outer edge.
class Failure : public std::runtime_error
{
public:
    Failure(FailureKind kind, std::string const& which) : std::runtime_error(which), kind_(kind) {}

    FailureKind kind() const { return kind_; }

private:
    FailureKind kind_;
};

/// Out of line, so that a check costs its caller one compare and a cold jump.
[[noreturn]] void fail(FailureKind kind, char const* which);
/// The message names the value that was wrong as well.
[[noreturn]] void fail(FailureKind kind, char const* which, double value);
[[noreturn]] void fail(FailureKind kind, char const* which, std::string_view text);

/// A value as messages show it: ten digits of a number; a text in quotes, cut behind 40 bytes and without control
/// letters.
std::string shown(double value);
std::string shown(std::string_view text);

} // namespace zendara
