#include "zendara/files/freetype_glyphs.hpp"

#include "zendara/files/font_files.hpp"

#include <array>
#include <cmath>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>

namespace zendara
{

namespace
{

constexpr int dots_per_inch = 96;

/// Size in 64ths of a point.
FT_F26Dot6 size_of(FontFace const& face)
{
    return std::lround(shown_size(face.size) * 64);
}

int whole_pixels(FT_Pos length)
{
    return static_cast<int>((length + 32) >> 6);
}

/// One byte for each pixel out of one bit.
std::unique_ptr<std::uint8_t[]> unpacked(FT_Bitmap const& bitmap)
{
    auto mask = std::make_unique<std::uint8_t[]>(std::size_t{bitmap.rows} * bitmap.width);
    std::uint8_t* pixel = mask.get();
    for (unsigned y = 0; y < bitmap.rows; ++y) {
        unsigned char const* const bits = bitmap.buffer + static_cast<std::ptrdiff_t>(y) * bitmap.pitch;
        for (unsigned x = 0; x < bitmap.width; ++x)
            *pixel++ = static_cast<std::uint8_t>(bits[x / 8] >> (7 - x % 8) & 1);
    }
    return mask;
}

} // namespace

/// A face in one size, with the letters made so far.
class FreeTypeGlyphs::SizedFace
{
public:
    SizedFace(FT_Face face, FT_F26Dot6 size) : face_(face), size_(size)
    {
        choose_size();
        FT_Size_Metrics const& metrics = face_->size->metrics;
        line_.ascent = whole_pixels(metrics.ascender);
        line_.height = line_.ascent + whole_pixels(-metrics.descender);
    }

    LineMetrics line() const { return line_; }

    Glyph const& glyph(char32_t letter)
    {
        if (letter >= frequent_.size())
            return rare_glyph(letter);
        if (frequent_[letter] == nullptr)
            frequent_[letter] = &rare_glyph(letter);
        return *frequent_[letter];
    }

private:
    void choose_size() { FT_Set_Char_Size(face_, 0, size_, dots_per_inch, dots_per_inch); }

    Glyph const& rare_glyph(char32_t letter)
    {
        auto const found = glyphs_.find(letter);
        return found != glyphs_.end() ? found->second : glyphs_.emplace(letter, made_glyph(letter)).first->second;
    }

    Glyph made_glyph(char32_t letter)
    {
        Glyph glyph;
        constexpr char32_t first_printable = 0x20;
        if (letter < first_printable)
            return glyph;
        choose_size(); // the file is shared between sizes
        if (FT_Load_Char(face_, letter, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO) != 0)
            return glyph;
        FT_GlyphSlot const slot = face_->glyph;
        glyph.left = slot->bitmap_left;
        glyph.top = slot->bitmap_top;
        glyph.width = static_cast<int>(slot->bitmap.width);
        glyph.height = static_cast<int>(slot->bitmap.rows);
        glyph.advance = whole_pixels(slot->advance.x);
        glyph.mask = unpacked(slot->bitmap);
        return glyph;
    }

    FT_Face face_;
    FT_F26Dot6 size_;
    LineMetrics line_;
    std::array<Glyph const*, 128> frequent_ = {};
    std::unordered_map<char32_t, Glyph> glyphs_;
};

class FreeTypeGlyphs::Library
{
public:
    explicit Library(std::filesystem::path folder) : folder_(std::move(folder)) {}

    SizedFace& sized_face(FontFace const& font)
    {
        if (recent_ != nullptr && font == recent_font_)
            return *recent_;
        auto const key = std::pair(text_face_of(font.Name), size_of(font));
        auto found = sized_faces_.find(key);
        if (found == sized_faces_.end())
            found = sized_faces_.try_emplace(key, face(key.first), key.second).first;
        recent_ = &found->second;
        recent_font_ = font;
        return *recent_;
    }

private:
    FT_Face face(TextFace wanted)
    {
        if (!library_)
            library_ = open_font_library();
        FaceHandle& handle = wanted == TextFace::Symbol ? symbol_ : arial_;
        if (!handle)
            handle = open_font_file(library_.get(), wanted, folder_);
        return handle.get();
    }

    std::filesystem::path folder_;
    LibraryHandle library_{nullptr, nullptr};
    FaceHandle arial_{nullptr, nullptr};
    FaceHandle symbol_{nullptr, nullptr};
    std::map<std::pair<TextFace, FT_F26Dot6>, SizedFace> sized_faces_;
    SizedFace* recent_ = nullptr;
    FontFace recent_font_;
};

FreeTypeGlyphs::FreeTypeGlyphs(std::filesystem::path folder) : library_(std::make_unique<Library>(std::move(folder))) {}

FreeTypeGlyphs::~FreeTypeGlyphs() = default;

Glyph const& FreeTypeGlyphs::glyph(FontFace const& face, char32_t letter)
{
    return library_->sized_face(face).glyph(letter);
}

GlyphSource::LineMetrics FreeTypeGlyphs::line_metrics(FontFace const& face)
{
    return library_->sized_face(face).line();
}

} // namespace zendara
