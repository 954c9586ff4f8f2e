#pragma once

#include "zendara/support/process_state.hpp"

#include <string>

/// Gives the library another decimal mark until the end of the scope.
class DecimalMark
{
public:
    explicit DecimalMark(std::string const& mark) { zendara::set_decimal_separator(mark); }
    DecimalMark(DecimalMark const&) = delete;
    DecimalMark& operator=(DecimalMark const&) = delete;
    ~DecimalMark() { zendara::set_decimal_separator(""); }
};
