#include "zendara/support/locale.hpp"

#include <clocale>
#include <utility>

namespace zendara
{

namespace
{

struct DecimalMark {
    std::string text = "."; // until it is read or set
    bool is_set_by_platform = false;
};

std::string mark_of_c_locale()
{
    std::lconv const* const conventions = std::localeconv();
    std::string mark = conventions->decimal_point;
    return mark.empty() ? "." : mark;
}

DecimalMark& shared_mark()
{
    static DecimalMark mark;
    return mark;
}

} // namespace

std::string const& decimal_separator()
{
    return shared_mark().text;
}

void read_decimal_separator()
{
    DecimalMark& mark = shared_mark();
    if (!mark.is_set_by_platform)
        mark.text = mark_of_c_locale();
}

void set_decimal_separator(std::string separator)
{
    DecimalMark& mark = shared_mark();
    mark.is_set_by_platform = !separator.empty();
    mark.text = separator.empty() ? mark_of_c_locale() : std::move(separator);
}

} // namespace zendara
