#pragma once

#include "zendara/form/line_shape.hpp"

namespace zendara
{

/// A small picture of the panel with the scan line on it, a cross through its centre, and a mark on the line's start.
/// Its container is scaled in pixels, as the picture itself is.
class LineOverview
{
public:
    struct Names {
        char const* picture;
        char const* line;
        char const* cross;
        char const* cross_2;
        char const* mark;
    };
    /// Where the picture lies in its container, in pixels.
    struct Place {
        double left, top, width, height;
    };

    LineOverview(Frame& container, Names const& names, Place const& place);

    PictureBox picture;
    LineShape cross, cross_2;
    LineShape line;
    ImageBox mark;

    /// Whether the panel has been drawn on the picture.
    bool shows_figure = false;
};

} // namespace zendara
