#pragma once

#include "zendara/render/surface/image.hpp"

#include <filesystem>
#include <iosfwd>

namespace zendara
{

/// Writes an image as a PNG file: with a palette if it has at most 256 colours, as red, green and blue otherwise. The
/// same image gives the same bytes. The name appears when the file is complete; one that stands there is replaced.
/// @throws Failure  FileError with the name and the reason
void write_png(Image const& image, std::filesystem::path const& path);

/// Writes an image as PNG into a binary stream.
/// @throws Failure  FileError when the stream takes no more
void write_png(Image const& image, std::ostream& stream);

/// Reads a PNG file; transparent pixels are laid on white.
/// @throws Failure  FileError with the name and the reason
Image read_png(std::filesystem::path const& path);

} // namespace zendara
