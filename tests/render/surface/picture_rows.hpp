#pragma once

#include "zendara/render/surface/image.hpp"

#include <string>
#include <vector>

namespace zendara::test
{

using Rows = std::vector<std::string>;

/// A picture as text: each colour is the code of the letter it shows as.
inline Rows rows_of(Image const& image)
{
    Rows rows;
    for (int y = 0; y < image.height(); ++y) {
        rows.emplace_back();
        for (int x = 0; x < image.width(); ++x)
            rows.back().push_back(static_cast<char>(image.row(y)[x]));
    }
    return rows;
}

/// A piece of a picture.
inline Image cut_out(Image const& image, int left, int top, int width, int height)
{
    Image piece(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            piece.row(y)[x] = image.row(top + y)[left + x];
    return piece;
}

/// A picture of the ground colour alone.
inline Image empty_picture(int width, int height)
{
    return Image(width, height, '.');
}

} // namespace zendara::test
