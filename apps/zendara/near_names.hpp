#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zendara::program
{

/// The names that look most like a misspelt one, best first, upper and lower case alike; at most three, as a text for
/// a message: "did you mean A, B?". Empty when none is near.
std::string did_you_mean(std::string_view misspelt, std::vector<std::string_view> names);

} // namespace zendara::program
