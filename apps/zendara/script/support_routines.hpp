#pragma once

#include "zendara/support/object.hpp"

namespace zendara::program
{

/// The free routines of the library as members of one object. A text field is given as its text.
class SupportRoutines : public Object
{
public:
    Interface const& host_interface() const override;
};

} // namespace zendara::program
