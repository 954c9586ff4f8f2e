#pragma once

#include "zendara/support/failure.hpp"

#include <utility>

namespace zendara
{

/// Runs one step and swallows its failure, for routines that go on at the next step.
/// @return  whether the step ran to its end
template <class Step> bool trap(Step&& step)
{
    try {
        std::forward<Step>(step)();
        return true;
    } catch (Failure const&) {
        return false;
    }
}

/// As trap(step); after a failure the repair runs before the routine goes on.
template <class Step, class Repair> bool trap(Step&& step, Repair&& repair)
{
    bool const ran = trap(std::forward<Step>(step));
    if (!ran)
        std::forward<Repair>(repair)();
    return ran;
}

} // namespace zendara
