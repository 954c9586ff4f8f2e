#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zendara
{

/// Writes a file at once. The name appears when the file is complete; one that stands there is replaced. A link stays,
/// and so does a device or a pipe, which a file must not replace.
/// @throws Failure  FileError with the name and the reason; nothing is left behind
void write_whole_file(std::filesystem::path const& path, std::vector<char> const& bytes);

/// @throws Failure  FileError with the name and the reason
[[noreturn]] void fail_with_file(std::filesystem::path const& path, std::string const& reason);

} // namespace zendara
