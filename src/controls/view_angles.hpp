#pragma once

#include <cstdint>

namespace zendara
{

/// From where a plot in space is seen, in degrees.
struct ViewAngles {
    std::int16_t rotation = default_rotation;
    std::int16_t inclination = default_inclination; // 90 straight down, 0 along the base

    static constexpr std::int16_t default_rotation = 40;
    static constexpr std::int16_t default_inclination = 35;
};

} // namespace zendara
