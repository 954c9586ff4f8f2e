#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zendara
{

/// A pixel that leaves what lies under it where an image is shown stretched.
constexpr std::uint32_t see_through = 0xFF000000;

/// A finished picture: 32-bit pixels, red in the lowest byte, row by row from the top.
class Image
{
public:
    Image(int width, int height, std::uint32_t color = 0xFFFFFF)
        : width_(width), height_(height),
          pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), color)
    {
    }

    int width() const { return width_; }
    int height() const { return height_; }

    std::uint32_t* row(int y)
    {
        return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }
    std::uint32_t const* row(int y) const
    {
        return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }

    bool operator==(Image const&) const = default;

private:
    int width_;
    int height_;
    std::vector<std::uint32_t> pixels_;
};

} // namespace zendara
