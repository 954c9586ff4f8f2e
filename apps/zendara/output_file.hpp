#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zendara::program
{

/// Checks the name of a file to write.
/// @param endings  those that it may have, ".png" for example
/// @throws UserError  for another ending, or when it is the data file
void check_output(std::filesystem::path const& output, std::initializer_list<std::string_view> endings,
                  std::string const& data_file);

} // namespace zendara::program
