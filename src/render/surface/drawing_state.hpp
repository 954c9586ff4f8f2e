#pragma once

#include "zendara/render/surface/surface.hpp"

namespace zendara
{

/// Text in "Arial" at 8 points; bold and underlined stay as they are.
inline void reset_font(Surface& surface)
{
    surface.Font.Name = "Arial";
    surface.Font.size = 8;
}

/// A thin black pen, a solid white fill, text without ground.
inline void reset_pen_and_fill(Surface& surface)
{
    surface.FontTransparent = true;
    surface.DrawWidth = 1;
    surface.DrawStyle = pen_solid;
    surface.FillStyle = fill_solid;
    surface.FillColor = QBColor(15);
    surface.ForeColor = QBColor(0);
}

} // namespace zendara
