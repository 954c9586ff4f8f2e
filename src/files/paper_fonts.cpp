#include "zendara/files/paper_fonts.hpp"

#include <cairo-ft.h>

#include FT_ADVANCES_H

#include <string>
#include <utility>
#include <vector>

namespace zendara
{

namespace
{

constexpr double twips_per_point = 20;

// What the Latin letters of the symbol face show, A to Z and a to z, so that text taken from a page reads as it looks.
constexpr std::u32string_view greek_capitals = U"ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ";
constexpr std::u32string_view greek_letters = U"αβχδεφγηιϕκλμνοπθρστυϖωξψζ";
static_assert(greek_capitals.size() == 26 && greek_letters.size() == 26);

char32_t meaning_of(TextFace face, char32_t letter)
{
    if (face == TextFace::Symbol && letter >= U'A' && letter <= U'Z')
        return greek_capitals[letter - U'A'];
    if (face == TextFace::Symbol && letter >= U'a' && letter <= U'z')
        return greek_letters[letter - U'a'];
    return letter;
}

std::string utf8(char32_t letter)
{
    auto const byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    auto const tail = [&](int shift) { return byte(0x80 | (letter >> shift & 0x3F)); };
    if (letter < 0x80)
        return {byte(letter)};
    if (letter < 0x800)
        return {byte(0xC0 | letter >> 6), tail(0)};
    if (letter < 0x10000)
        return {byte(0xE0 | letter >> 12), tail(6), tail(0)};
    return {byte(0xF0 | letter >> 18), tail(12), tail(6), tail(0)};
}

double size_in_twips(FontFace const& font)
{
    return shown_size(font.size) * twips_per_point;
}

using SharedLibrary = std::shared_ptr<FT_LibraryRec_>;

/// What a face of Cairo stands on. Cairo keeps faces longer than those who asked for them, and lets this go in the end.
struct FaceFile {
    SharedLibrary library; // outlives the face
    FaceHandle face;
};

cairo_font_face_t* cairo_face_on(std::unique_ptr<FaceFile> file)
{
    static cairo_user_data_key_t const key = {};
    cairo_font_face_t* const face = cairo_ft_font_face_create_for_ft_face(file->face.get(), FT_LOAD_NO_HINTING);
    auto const release = [](void* kept) { delete static_cast<FaceFile*>(kept); };
    if (cairo_font_face_set_user_data(face, &key, file.get(), release) == CAIRO_STATUS_SUCCESS)
        file.release();
    return face;
}

/// Letters as their designer drew them, at any place.
cairo_font_options_t* unhinted()
{
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    return options;
}

} // namespace

class PaperFonts::Face
{
public:
    Face(SharedLibrary const& library, TextFace which) : which_(which)
    {
        auto file = std::make_unique<FaceFile>(FaceFile{library, open_font_file(library.get(), which)});
        file_ = file->face.get();
        face_ = cairo_face_on(std::move(file));
    }
    ~Face() { cairo_font_face_destroy(face_); }
    Face(Face const&) = delete;
    Face& operator=(Face const&) = delete;

    // In parts of the size.
    double ascent() const { return in_parts(file_->ascender); }
    double height() const { return in_parts(file_->ascender - file_->descender); }

    double width(std::string_view text) const
    {
        double width = 0;
        while (!text.empty())
            width += advance(glyph_of(next_letter(text)));
        return width;
    }

    void show(cairo_t* canvas, double size, std::string_view text, double x, double base_line) const
    {
        std::vector<cairo_glyph_t> glyphs;
        std::vector<cairo_text_cluster_t> clusters;
        std::string meaning;
        while (!text.empty()) {
            char32_t const letter = next_letter(text);
            if (letter < first_printable)
                continue;
            auto const glyph = glyph_of(letter);
            std::string const bytes = utf8(meaning_of(which_, letter));
            glyphs.push_back({glyph, x, base_line});
            clusters.push_back({static_cast<int>(bytes.size()), 1});
            meaning += bytes;
            x += advance(glyph) * size;
        }
        cairo_set_font_face(canvas, face_);
        cairo_set_font_size(canvas, size);
        cairo_show_text_glyphs(canvas, meaning.data(), static_cast<int>(meaning.size()), glyphs.data(),
                               static_cast<int>(glyphs.size()), clusters.data(), static_cast<int>(clusters.size()),
                               cairo_text_cluster_flags_t{});
    }

private:
    static constexpr char32_t first_printable = 0x20;

    double in_parts(FT_Pos units) const { return static_cast<double>(units) / file_->units_per_EM; }

    FT_UInt glyph_of(char32_t letter) const { return letter < first_printable ? 0 : FT_Get_Char_Index(file_, letter); }

    double advance(FT_UInt glyph) const
    {
        FT_Fixed units = 0;
        FT_Get_Advance(file_, glyph, FT_LOAD_NO_SCALE, &units);
        return in_parts(units);
    }

    TextFace which_;
    FT_Face file_;
    cairo_font_face_t* face_;
};

PaperFonts::PaperFonts()
{
    SharedLibrary const library = open_font_library();
    for (TextFace const which : {TextFace::Arial, TextFace::Symbol})
        faces_[static_cast<std::size_t>(which)] = std::make_unique<Face>(library, which);
}

PaperFonts::~PaperFonts() = default;

double PaperFonts::text_width(FontFace const& font, std::string_view text) const
{
    return face_of(font).width(text) * size_in_twips(font);
}

double PaperFonts::line_height(FontFace const& font) const
{
    return face_of(font).height() * size_in_twips(font);
}

void PaperFonts::show(cairo_t* canvas, FontFace const& font, std::string_view text, double x, double top) const
{
    Face const& face = face_of(font);
    double const size = size_in_twips(font);
    cairo_font_options_t* const options = unhinted();
    cairo_set_font_options(canvas, options);
    cairo_font_options_destroy(options);
    face.show(canvas, size, text, x, top + face.ascent() * size);
}

PaperFonts::Face const& PaperFonts::face_of(FontFace const& font) const
{
    return *faces_[static_cast<std::size_t>(text_face_of(font.Name))];
}

} // namespace zendara
