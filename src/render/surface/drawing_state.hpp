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

/// Pen, fills, font and unit of a surface as they are now.
class DrawingState
{
public:
    explicit DrawingState(Surface const& surface)
        : fore_color_(surface.ForeColor), fill_color_(surface.FillColor), fill_style_(surface.FillStyle),
          draw_style_(surface.DrawStyle), draw_width_(surface.DrawWidth), font_transparent_(surface.FontTransparent),
          font_(surface.Font), scale_mode_(surface.ScaleMode())
    {
    }

    /// Gives them to a surface, so that a drawing on it looks as it did from them on.
    void give(Surface& surface) const
    {
        surface.ForeColor = fore_color_;
        surface.FillColor = fill_color_;
        surface.FillStyle = fill_style_;
        surface.DrawStyle = draw_style_;
        surface.DrawWidth = draw_width_;
        surface.FontTransparent = font_transparent_;
        surface.Font = font_;
        surface.start_scale_mode(scale_mode_);
    }

private:
    Color fore_color_, fill_color_;
    std::int16_t fill_style_, draw_style_, draw_width_;
    BooleanWord font_transparent_;
    FontFace font_;
    std::int16_t scale_mode_;
};

} // namespace zendara
