#pragma once

#include "zendara/render/surface/font.hpp"

#include <map>

namespace zendara::test
{

/// Letters that are easy to tell in a picture: the letter n is a frame of n - 'a' + 2 columns and three rows on the
/// base line, with one empty column behind it. A line has a row above and one below. Size 16 doubles every pixel.
class BlockGlyphs : public GlyphSource
{
public:
    Glyph const& glyph(FontFace const& face, char32_t letter) override
    {
        int const scale = scale_of(face);
        Glyph& glyph = glyphs_[{scale, letter}];
        if (glyph.mask == nullptr)
            make(glyph, scale, static_cast<int>(letter) - 'a' + 2);
        return glyph;
    }

    LineMetrics line_metrics(FontFace const& face) override { return {4 * scale_of(face), 5 * scale_of(face)}; }

private:
    static int scale_of(FontFace const& face) { return face.size < 16 ? 1 : 2; }

    static void make(Glyph& glyph, int scale, int columns)
    {
        glyph.width = columns * scale;
        glyph.height = 3 * scale;
        glyph.top = 3 * scale;
        glyph.advance = (columns + 1) * scale;
        glyph.mask = std::make_unique<std::uint8_t[]>(static_cast<std::size_t>(glyph.width * glyph.height));
        for (int y = 0; y < glyph.height; ++y)
            for (int x = 0; x < glyph.width; ++x) {
                bool const is_inside = y / scale == 1 && x / scale > 0 && x / scale < columns - 1;
                glyph.mask[static_cast<std::size_t>(y * glyph.width + x)] = is_inside ? 0 : 1;
            }
    }

    std::map<std::pair<int, char32_t>, Glyph> glyphs_;
};

} // namespace zendara::test
