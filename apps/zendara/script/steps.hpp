#pragma once

#include "json.hpp"

#include <span>
#include <string_view>

namespace zendara::program
{

class Session;
struct Step;

// Letters of a step's shape.
constexpr char shape_name = 'n';  // a text that is not empty: an object, a member, an event, a class, a file
constexpr char shape_value = 'v'; // a number, a text, null, true, false, or an array
constexpr char shape_steps = 's'; // an array of steps
// '*' stands for any number of values, '?' for an object with options that may be missing; both stand last.

/// A kind of step: its name, what stands behind it, and what it does.
struct StepKind {
    std::string_view name;
    std::string_view shape;
    std::string_view form; // for messages
    void (*run)(Session& session, Step const& step);
};

std::span<StepKind const> step_kinds();

} // namespace zendara::program
