#pragma once

#include "zendara/files/font_files.hpp"
#include "zendara/render/surface/font.hpp"

#include <array>
#include <cairo.h>
#include <memory>
#include <string_view>

namespace zendara
{

/// The text faces on paper: measured as they are designed, without rounding to pixels, and drawn as text.
class PaperFonts
{
public:
    PaperFonts();
    ~PaperFonts();

    /// Extents in twips.
    double text_width(FontFace const& font, std::string_view text) const;
    double line_height(FontFace const& font) const;

    /// Draws a text in the canvas' colour.
    /// @param canvas  its unit is a twip
    /// @param x, top  left end and top of the line
    void show(cairo_t* canvas, FontFace const& font, std::string_view text, double x, double top) const;

private:
    class Face;

    Face const& face_of(FontFace const& font) const;

    std::array<std::unique_ptr<Face>, 2> faces_; // in the order of TextFace
};

} // namespace zendara
