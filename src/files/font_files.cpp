#include "zendara/files/font_files.hpp"

#include "zendara/support/failure.hpp"
#include "zendara/support/interface.hpp"

#include FT_MODULE_H

#include <algorithm>
#include <cmath>
#include <string>

namespace zendara
{

namespace
{

struct FontFile {
    char const* folder;
    char const* name;
    char const* package;
};

constexpr FontFile arial_file = {"/usr/share/fonts/truetype/liberation", "LiberationSans-Regular.ttf",
                                 "fonts-liberation"};
constexpr FontFile symbol_file = {"/usr/share/fonts/opentype/urw-base35", "StandardSymbolsPS.otf", "fonts-urw-base35"};

/// A symbol face may name its signs in several tables; the one wanted finds them under Latin letters.
void choose_table_of_latin_letters(FT_Face face)
{
    for (FT_Int i = 0; i < face->num_charmaps; ++i)
        if (FT_Set_Charmap(face, face->charmaps[i]) == 0 && FT_Get_Char_Index(face, 's') != 0)
            return;
}

} // namespace

TextFace text_face_of(std::string_view name)
{
    return equals_ignoring_case(name, "Symbol") ? TextFace::Symbol : TextFace::Arial;
}

double shown_size(double points)
{
    return std::isnan(points) ? 8 : std::min(std::max(points, 1.0), 1000.0);
}

LibraryHandle open_font_library()
{
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        throw Failure(FailureKind::FileError, "FreeType does not start");
    // The library reads such settings from the environment; pictures have to be the same in all of them.
    FT_UInt interpreter = 40;
    FT_UInt hinting_engine = 1; // Adobe's
    FT_Bool no_stem_darkening = 1;
    FT_Property_Set(library, "truetype", "interpreter-version", &interpreter);
    FT_Property_Set(library, "cff", "hinting-engine", &hinting_engine);
    FT_Property_Set(library, "cff", "no-stem-darkening", &no_stem_darkening);
    return {library, [](FT_Library handle) { FT_Done_FreeType(handle); }};
}

FaceHandle open_font_file(FT_Library library, TextFace face, std::filesystem::path const& folder)
{
    FontFile const& file = face == TextFace::Symbol ? symbol_file : arial_file;
    auto const path = ((folder.empty() ? std::filesystem::path(file.folder) : folder) / file.name).string();
    FT_Face opened = nullptr;
    if (FT_New_Face(library, path.c_str(), 0, &opened) != 0)
        throw Failure(FailureKind::FileError,
                      "the font file " + path + " is missing or broken (package " + file.package + ")");
    FaceHandle handle(opened, [](FT_Face open) { FT_Done_Face(open); });
    if (face == TextFace::Symbol)
        choose_table_of_latin_letters(opened);
    return handle;
}

} // namespace zendara
