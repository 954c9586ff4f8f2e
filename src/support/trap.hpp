#pragma once

#include "zendara/support/failure.hpp"

#include <exception>
#include <string>
#include <utility>

namespace zendara
{

class Container;
class Object;

/// A failure that a routine has gone on behind.
struct TrappedFailure {
    FailureKind kind;
    std::string where; // the routine and its step, "D2Plot: zoom" for example
    std::string what;  // what was wrong, with the value
};

/// Gets the failures that routines trap.
class FailureSink
{
public:
    virtual ~FailureSink() = default;

    /// @param source  the panel, control or page whose routine has gone on
    virtual void trapped(Object const& source, TrappedFailure const& failure) = 0;
};

/// Where a step stands: in which container, in whose routine, and what both are called.
struct TrapPlace {
    Container* container; // nullptr for none: the failure leaves no trace
    Object const& source;
    char const* routine;
    char const* step;
};

/// Tells the container of a failure. Memory that is exhausted and lengths beyond all limits count as Overflow.
/// @return  whether the error is one that a trap swallows
bool report_trapped(TrapPlace const& place, std::exception const& error);

/// Runs one step and swallows its failure, for routines that go on at the next step.
/// @return  whether the step ran to its end
template <class Step> bool trap(TrapPlace const& place, Step&& step)
{
    try {
        std::forward<Step>(step)();
        return true;
    } catch (std::exception const& error) {
        if (!report_trapped(place, error))
            throw;
        return false;
    }
}

/// As trap(place, step); after a failure the repair runs before the routine goes on.
template <class Step, class Repair> bool trap(TrapPlace const& place, Step&& step, Repair&& repair)
{
    bool const ran = trap(place, std::forward<Step>(step));
    if (!ran)
        std::forward<Repair>(repair)();
    return ran;
}

} // namespace zendara
