#pragma once

#include "zendara/files/paper_surface.hpp"
#include "zendara/files/png_file.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zendara::test
{

/// Pages in a folder of the test's own, read back with the tools of the poppler package.
class Paper : public testing::Test
{
protected:
    Paper()
    {
        auto const* const test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = std::filesystem::temp_directory_path() /
                  ("zendara-paper-" + std::string(test->name()) + '-' +
                   std::to_string(std::hash<std::string>()(std::filesystem::current_path().string())));
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
    }
    ~Paper() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path const& folder() const { return folder_; }
    std::filesystem::path path(std::string const& name) const { return folder_ / name; }
    std::filesystem::path file() const { return path("page.pdf"); }

    std::string bytes() const { return bytes_of(file()); }
    static std::string bytes_of(std::filesystem::path const& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    std::size_t file_count() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_), {}));
    }

    static bool has_tools() { return std::system("pdftoppm -v >/dev/null 2>&1 && pdftotext -v >/dev/null 2>&1") == 0; }

    /// The first page as a viewer shows it.
    Image shown(int dots_per_inch) const
    {
        auto const command = "pdftoppm -png -singlefile -r " + std::to_string(dots_per_inch) + " '" + file().string() +
                             "' '" + path("shown").string() + '\'';
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
        return read_png(path("shown.png"));
    }

    /// The text layer.
    std::string text() const
    {
        auto const command = "pdftotext '" + file().string() + "' '" + path("text.txt").string() + '\'';
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
        return bytes_of(path("text.txt"));
    }

    static std::size_t count(std::string const& text, std::string const& part)
    {
        std::size_t found = 0;
        for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
            ++found;
        return found;
    }

private:
    std::filesystem::path folder_;
};

constexpr std::uint32_t white = 0xFFFFFF;

/// The first and the last column or row that is not white.
struct Reach {
    int left = -1, top = -1, right = -1, bottom = -1;
};

inline Reach reach_of(Image const& image)
{
    Reach reach{image.width(), image.height(), -1, -1};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.row(y)[x] != white)
                reach = {std::min(reach.left, x), std::min(reach.top, y), std::max(reach.right, x),
                         std::max(reach.bottom, y)};
    return reach;
}

} // namespace zendara::test

#define ZENDARA_NEEDS_PAGE_TOOLS()                                                                                     \
    if (!has_tools())                                                                                                  \
    GTEST_SKIP() << "pdftoppm and pdftotext are not installed"
