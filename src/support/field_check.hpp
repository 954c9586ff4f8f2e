#pragma once

#include "zendara/support/boolean_word.hpp"

#include <string>
#include <string_view>

namespace zendara
{

/// Whether a text field holds a number strictly between two bounds.
/// @param text     the field's text
/// @param lo, hi   the bounds, both outside
/// @param message  grows by a line that says what is wrong
/// @param label    what the line calls the field, with a blank at its end
BooleanWord CheckField(std::string_view text, double lo, double hi, std::string& message, std::string_view label);

/// False only for the text of a number that is not strictly between the bounds: empty texts and letters pass.
BooleanWord IsInRange(std::string_view text, double lo, double hi);

/// True for an empty text and for a whole number without exponent.
BooleanWord IsWholeText(std::string_view text);

/// True for a real number without exponent, with a comma or a point.
/// @param flag  True lets a lone "-" pass, as it stands while a user types
BooleanWord IsNumberText(std::string_view text, BooleanWord flag);

} // namespace zendara
