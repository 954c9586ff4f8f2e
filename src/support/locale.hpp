#pragma once

#include <string>

namespace zendara
{

/// The decimal mark of all number texts of the library.
std::string const& decimal_separator();

/// Works the decimal mark out anew from the current locale, unless a platform has set one.
void read_decimal_separator();

/// Sets the decimal mark for good; an empty text goes back to that of the current C locale.
void set_decimal_separator(std::string separator);

} // namespace zendara
