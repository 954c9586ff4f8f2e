#include "zendara/support/color.hpp"

namespace zendara
{

namespace
{

// The classic desktop scheme, by the system's own numbering.
constexpr std::array<Color, 25> system_colors = {
    rgb(212, 208, 200), // 0 scroll bar
    rgb(58, 110, 165),  // 1 desktop
    rgb(10, 36, 106),   // 2 active title bar
    rgb(128, 128, 128), // 3 inactive title bar
    rgb(212, 208, 200), // 4 menu bar
    rgb(255, 255, 255), // 5 window background
    rgb(0, 0, 0),       // 6 window frame
    rgb(0, 0, 0),       // 7 menu text
    rgb(0, 0, 0),       // 8 window text
    rgb(255, 255, 255), // 9 title bar text
    rgb(212, 208, 200), // 10 active border
    rgb(212, 208, 200), // 11 inactive border
    rgb(128, 128, 128), // 12 application workspace
    rgb(10, 36, 106),   // 13 highlight
    rgb(255, 255, 255), // 14 highlighted text
    rgb(212, 208, 200), // 15 button face
    rgb(128, 128, 128), // 16 button shadow
    rgb(128, 128, 128), // 17 disabled text
    rgb(0, 0, 0),       // 18 button text
    rgb(212, 208, 200), // 19 inactive title bar text
    rgb(255, 255, 255), // 20 button highlight
    rgb(64, 64, 64),    // 21 dark shadow
    rgb(212, 208, 200), // 22 light shadow
    rgb(0, 0, 0),       // 23 tool tip text
    rgb(255, 255, 225), // 24 tool tip background
};

} // namespace

Color plain_color(Color color)
{
    auto const bits = static_cast<std::uint32_t>(color);
    auto const index = bits & 0xFFFFu;
    if ((bits & 0x80000000u) == 0)
        return static_cast<Color>(bits & 0xFFFFFFu);
    return index < system_colors.size() ? system_colors[index] : rgb(0, 0, 0);
}

} // namespace zendara
