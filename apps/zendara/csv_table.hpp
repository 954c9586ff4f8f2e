#pragma once

#include "data_file.hpp"
#include "progress.hpp"

#include <cstdio>
#include <string>

namespace zendara::program
{

/// Reads the columns x, y and z of a CSV from its beginning to its end.
///
/// The header names the columns in any order and case; others are skipped. Cells are told apart by tabs, semicolons or
/// commas, whichever the header has; with the first two a number may have a decimal comma.
/// @param name  of the file, for messages
/// @param size  of the file in bytes, for the progress
/// @throws UserError  "file:line: expected ...", or a line that tells the count when there are more sites than a
///                    control takes
SiteData read_csv(std::FILE* file, std::string const& name, std::uint64_t size, Progress& progress);

} // namespace zendara::program
