#include "render/surface/block_glyphs.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <gtest/gtest.h>

namespace zendara::test
{

TEST(SeeThroughPixels, LeaveWhatLiesUnderAStretchedImage)
{
    BlockGlyphs glyphs;
    RasterPicture picture(4, 2, glyphs, 15, 0x112233);
    Image image(2, 1, 0x0000FF);
    image.row(0)[0] = see_through;
    picture.draw_image_stretched(image, 0, 0, 4, 2);
    for (int y = 0; y < 2; ++y) {
        std::uint32_t const* const row = picture.image()->row(y);
        EXPECT_EQ(std::vector(row, row + 4), (std::vector<std::uint32_t>{0x112233, 0x112233, 0x0000FF, 0x0000FF}));
    }
}

} // namespace zendara::test
