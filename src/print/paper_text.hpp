#pragma once

#include "zendara/render/surface/surface.hpp"

#include <string>

namespace zendara
{

/// The first letters of a text, as many as remarks have room for.
std::string first_15_letters(std::string const& text);

/// Where a text that is too wide loses letters.
enum class Cut { Start, BothEnds, End };

/// Takes letters off a text until it fits.
/// @param width  in surface units
/// @return       the width of what is left, rounded half to even
/// @throws Failure  InvalidProcedureCall when not even the empty text fits, Overflow for a width beyond 16 bits
std::int16_t cut_to_fit(Surface const& surface, std::string& text, double width, Cut cut);

/// Writes a text at a place, in a colour of the table of sixteen.
void print_text(Surface& surface, std::string const& text, double x, double y, std::int16_t color_index);

/// Writes a text from its start, cut at its end to fit a width.
/// @param text  comes back as it was written
/// @throws Failure  as cut_to_fit
void print_left_text(Surface& surface, std::string& text, double x, double y, double width, std::int16_t color_index);

/// A number in a mask that gets further decimals until a number that is not 0 does not read as 0.
/// @return  the mask itself for 0
std::string format_not_zero(double value, std::string mask);

} // namespace zendara
