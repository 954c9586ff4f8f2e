#pragma once

#include "zendara/files/png_file.hpp"
#include "zendara/render/surface/image.hpp"
#include "zendara/support/failure.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace zendara::test
{

/// Red where two pictures differ, white elsewhere; as large as the larger one.
inline Image difference_of(Image const& expected, Image const& actual)
{
    constexpr std::uint32_t red = 0x0000FF, white = 0xFFFFFF;
    Image difference(std::max(expected.width(), actual.width()), std::max(expected.height(), actual.height()), red);
    int const width = std::min(expected.width(), actual.width());
    int const height = std::min(expected.height(), actual.height());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (expected.row(y)[x] == actual.row(y)[x])
                difference.row(y)[x] = white;
    return difference;
}

inline std::size_t count_of_red(Image const& difference)
{
    std::size_t count = 0;
    for (int y = 0; y < difference.height(); ++y)
        count += static_cast<std::size_t>(
            std::count(difference.row(y), difference.row(y) + difference.width(), std::uint32_t{0x0000FF}));
    return count;
}

/// Compares a picture with tests/golden/<name>.png. Where they differ, <name>.expected.png, <name>.actual.png and
/// <name>.difference.png stand in the folder golden_failures of the build.
///
/// With ZENDARA_ACCEPT_GOLDENS in the environment the picture becomes the golden one: look at it before.
/// @param most_different_pixels  0 where only shapes are drawn; letters may differ from one FreeType to another
inline testing::AssertionResult matches_golden(Image const& actual, std::string const& name,
                                               std::size_t most_different_pixels = 0)
{
    auto const golden = std::filesystem::path(ZENDARA_GOLDEN) / (name + ".png");
    if (std::getenv("ZENDARA_ACCEPT_GOLDENS") != nullptr) {
        std::filesystem::create_directories(golden.parent_path());
        write_png(actual, golden);
        return testing::AssertionSuccess();
    }

    auto const failures = std::filesystem::absolute("golden_failures");
    auto const save = [&](Image const& image, std::string const& kind) {
        std::filesystem::create_directories(failures);
        write_png(image, failures / (name + "." + kind + ".png"));
    };
    if (!std::filesystem::exists(golden)) {
        save(actual, "actual");
        return testing::AssertionFailure() << golden << " is missing; the picture is in " << failures;
    }
    Image const expected = read_png(golden);
    Image const difference = difference_of(expected, actual);
    std::size_t const count = count_of_red(difference);
    if (count <= most_different_pixels)
        return testing::AssertionSuccess();
    save(expected, "expected");
    save(actual, "actual");
    save(difference, "difference");
    return testing::AssertionFailure() << name << ": " << count << " pixels differ, see " << failures;
}

} // namespace zendara::test
