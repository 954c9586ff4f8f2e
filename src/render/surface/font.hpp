#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace zendara
{

/// A text face, its size in points and its looks.
struct FontFace {
    std::string Name = "Arial";
    double size = 8;
    bool Bold = false;
    bool Underline = false;

    bool operator==(FontFace const&) const = default;
};

/// One letter as a mask of pixels.
struct Glyph {
    int left = 0;                         // of the mask, from the pen position
    int top = 0;                          // of the mask, upwards from the base line
    int width = 0;                        // of the mask
    int height = 0;                       // of the mask
    int advance = 0;                      // of the pen
    std::unique_ptr<std::uint8_t[]> mask; // width * height bytes, row by row, 0 or 1
};

/// Where a raster picture gets its letters from.
class GlyphSource
{
public:
    virtual ~GlyphSource() = default;

    /// The letter of a face at the screen's resolution. The reference holds as long as the source.
    virtual Glyph const& glyph(FontFace const& face, char32_t letter) = 0;

    /// Pixels from the top of a line to its base line, and from line to line.
    struct LineMetrics {
        int ascent = 0;
        int height = 0;
    };
    virtual LineMetrics line_metrics(FontFace const& face) = 0;
};

/// Takes the next letter off a UTF-8 text; a broken byte comes as itself.
char32_t next_letter(std::string_view& text);

} // namespace zendara
