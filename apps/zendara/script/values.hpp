#pragma once

#include "json.hpp"
#include "script/objects.hpp"
#include "zendara/render/surface/recorder.hpp"
#include "zendara/support/value.hpp"

#include <vector>

namespace zendara::program
{

/// The interface value of a script's value. A text that begins with "$" names an object.
/// @throws Failure  what Objects::find throws, TypeMismatch for an array that holds neither numbers alone
///                  nor names of objects alone
Value to_value(Json const& json, Objects const& objects);

/// The values of a step from one position on.
std::vector<Value> values_from(Json const& step, std::size_t first, Objects const& objects);

/// The values as a JSON array.
Json to_json(std::vector<Value> const& values);

/// A drawing call as a JSON array that begins with its name.
Json to_json(TraceRecord const& record);

} // namespace zendara::program
