#pragma once

#include "json.hpp"

#include <string>

namespace zendara::program
{

// The options of a "new" step. Each throws Failure, TypeMismatch, for a value of another type.

double number_option(Json const& options, char const* name, double default_value);
bool truth_option(Json const& options, char const* name, bool default_value);
std::string text_option(Json const& options, char const* name, std::string const& default_value);

} // namespace zendara::program
