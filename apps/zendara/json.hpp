#pragma once

#include "zendara/support/value.hpp"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace zendara::program
{

/// Keeps the order in which members were put in.
using Json = nlohmann::ordered_json;

/// An interface value as JSON. Numbers read back exactly, an array tells its lower bound, an object is null, and so is
/// a number that is infinite or none.
Json to_json(Value const& value);

/// On one line; bytes that are no UTF-8 show as the replacement letter.
std::string text_of(Json const& json);

/// A text in quotes, as JSON has it.
std::string json_text(std::string_view text);

} // namespace zendara::program
