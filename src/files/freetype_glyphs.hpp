#pragma once

#include "zendara/render/surface/font.hpp"

#include <filesystem>
#include <memory>

namespace zendara
{

/// Letters from the font files of the system, at 96 dots per inch and without smoothing. A file is opened when its
/// first letter is asked for, and each letter is made once.
///
/// "Symbol" shows Latin letters as Greek ones, s as sigma; "Arial" and every other name show as a face with Arial's
/// widths. Sizes are held between 1 and 1000 points.
class FreeTypeGlyphs : public GlyphSource
{
public:
    /// @param folder  where the font files lie, both in this one folder; by default where the system's packages put
    /// them
    explicit FreeTypeGlyphs(std::filesystem::path folder = {});
    ~FreeTypeGlyphs() override;

    /// @throws Failure  FileError when the face's file is missing or broken
    Glyph const& glyph(FontFace const& face, char32_t letter) override;
    /// @throws Failure  FileError as above
    LineMetrics line_metrics(FontFace const& face) override;

private:
    class Library;
    class SizedFace;

    std::unique_ptr<Library> library_;
};

} // namespace zendara
