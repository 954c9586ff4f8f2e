#pragma once

#include <array>
#include <cstdint>

namespace zendara
{

/// A colour as the interface carries it: red + 256 * green + 65536 * blue. With the top bit set it names a colour of
/// the system's own table instead.
using Color = std::int32_t;

constexpr Color rgb(int red, int green, int blue)
{
    return red + 256 * green + 65536 * blue;
}

/// The table of sixteen colours.
/// @param index  0 to 15; only the low four bits count
constexpr Color QBColor(int index)
{
    constexpr std::array<Color, 16> table = {
        rgb(0, 0, 0),     rgb(0, 0, 128),     rgb(0, 128, 0),     rgb(0, 128, 128),   rgb(128, 0, 0), rgb(128, 0, 128),
        rgb(128, 128, 0), rgb(192, 192, 192), rgb(128, 128, 128), rgb(0, 0, 255),     rgb(0, 255, 0), rgb(0, 255, 255),
        rgb(255, 0, 0),   rgb(255, 0, 255),   rgb(255, 255, 0),   rgb(255, 255, 255),
    };
    return table[static_cast<unsigned>(index) & 15u];
}

constexpr Color system_color(int index)
{
    return static_cast<Color>(0x80000000u + static_cast<unsigned>(index));
}

constexpr Color button_face = system_color(15);
constexpr Color window_background = system_color(5);
constexpr Color window_text = system_color(8);
constexpr Color button_text = system_color(18);

/// The plain colour behind a colour value: system colours are looked up, others have their top byte cleared.
Color plain_color(Color color);

} // namespace zendara
