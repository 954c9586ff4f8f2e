#pragma once

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

/// A folder for the files of one test, gone at its end.
class Scratch : public testing::Test
{
protected:
    Scratch()
    {
        auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = std::filesystem::temp_directory_path() /
                  ("zendara-" + std::string(test->test_suite_name()) + '-' + test->name() + '-' +
                   std::to_string(std::hash<std::string>()(std::filesystem::current_path().string())));
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
    }
    ~Scratch() override { std::filesystem::remove_all(folder_); }

    std::string path(std::string const& name) const { return (folder_ / name).string(); }

    /// Writes a file and gives its path.
    std::string file(std::string const& name, std::string_view bytes) const
    {
        std::ofstream(path(name), std::ios::binary) << bytes;
        return path(name);
    }

    /// Writes a raw data file: all x, all y, all Z.
    std::string raw_file(std::string const& name, std::vector<double> const& numbers) const
    {
        std::string bytes;
        for (double const number : numbers)
            for (int shift = 0; shift < 64; shift += 8)
                bytes += static_cast<char>(std::bit_cast<std::uint64_t>(number) >> shift & 0xFF);
        return file(name, bytes);
    }

    bool exists(std::string const& name) const { return std::filesystem::exists(path(name)); }

    /// Names of the files that are there, sorted by nothing.
    std::size_t file_count() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_), {}));
    }

    std::filesystem::path const& folder() const { return folder_; }

private:
    std::filesystem::path folder_;
};

inline std::string contents_of(std::filesystem::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace zendara
