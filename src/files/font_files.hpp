#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H

#include <filesystem>
#include <memory>
#include <string_view>

namespace zendara
{

/// The text faces that the headless container shows.
enum class TextFace { Arial, Symbol };

/// "Symbol" is the symbol face, every other name the one with Arial's widths.
TextFace text_face_of(std::string_view name);

/// A size in points as the container shows it, between 1 and 1000.
double shown_size(double points);

using LibraryHandle = std::unique_ptr<FT_LibraryRec_, void (*)(FT_Library)>;
using FaceHandle = std::unique_ptr<FT_FaceRec, void (*)(FT_Face)>;

/// Starts FreeType with settings that do not depend on the environment.
/// @throws Failure  FileError when it does not start
LibraryHandle open_font_library();

/// Opens the file of a face. A letter of the symbol face is found under its Latin one.
/// @param folder  where the font files lie; empty: where the system's packages put them
/// @throws Failure  FileError when the file is missing or broken
FaceHandle open_font_file(FT_Library library, TextFace face, std::filesystem::path const& folder = {});

} // namespace zendara
