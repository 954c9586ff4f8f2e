#pragma once

#include "zendara/support/boolean_word.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zendara
{

/// The plain text of a number: up to 15 significant digits, "0.5", "-3", exponent form from 1E+15 up and below 0.0001
/// ("1E-05"). The decimal mark is the locale's.
std::string plain_text(double value);

/// As plain_text, with a blank in the place of the sign of a number that is not negative.
std::string signed_text(double value);

/// The number that a text stands for. Blanks around it are allowed, one comma or one point as the decimal mark, and
/// an exponent behind e, E, d or D.
/// @return  nothing when the text is no number
std::optional<double> parse_number(std::string_view text);

/// A number in a mask: 0 a digit that always shows, # a digit that shows only when it counts, E+ the exponent with
/// its sign. Rounds half away from zero on the 15 significant digits of the number; a point in the mask always shows.
/// @param mask  "0.0###" or "0.###E+#0" for example; its point shows as the locale's decimal mark
std::string format_mask(double value, std::string_view mask);

/// The "Scientific" form: two decimals and an exponent of at least two digits, "1.23E+05".
std::string format_scientific(double value);

/// The number text of value read-outs: "0.0" for 0, more decimals below 1, exponent form outside 1e-07 to 100000.
std::string format_label(double value);

/// Characters of the integer part of a number text.
/// @param value  the number
/// @param extra  True asks for one more
/// @param sci    comes back True when the number needs the "Scientific" form
std::int16_t IntegerDigits(double value, BooleanWord extra, BooleanWord& sci);

/// Decimals that fit into a field of a number text; with `field` 0 the natural count of decimals.
/// @param value  the number
/// @param field  characters of the field
/// @param sci    comes back True when the number needs the "Scientific" form
/// @throws Failure  Overflow when a 16-bit sum overflows
std::int16_t DecimalDigits(double value, std::int16_t field, BooleanWord& sci);

/// A number as a text with a fixed count of decimals. Digits behind them are cut, not rounded.
/// @param value  the number
/// @param field  above 0: the text is aligned right in so many characters; a longer one loses its left part
/// @param dec    decimals; below 1 the decimal mark goes too
/// @param sci    True for the "Scientific" form instead
std::string FormatFixed(double value, std::int16_t field, std::int16_t dec, BooleanWord sci);

} // namespace zendara
