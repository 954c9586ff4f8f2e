#pragma once

#include "zendara/support/checked.hpp"

#include <cmath>

namespace zendara
{

/// The number pi, as every plot of a turned panel takes it.
inline double const pi = 4 * std::atan(1.0);

/// An angle in radians; the order of the two steps decides the last bit.
/// @throws Failure  Overflow when it is not finite
inline double radians(double degrees)
{
    return finite(degrees * pi / 180);
}

} // namespace zendara
