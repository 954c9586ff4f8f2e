#include "render/surface/picture_rows.hpp"
#include "zendara/render/surface/scan_converter.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <random>

namespace zendara::test
{

namespace
{

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

Image line(DevicePoint from, DevicePoint to, int width = 10, int height = 5)
{
    Image image = empty_picture(width, height);
    draw_line(image, from, to, '#');
    return image;
}

Image band(DevicePoint from, DevicePoint to, int line_width, int width, int height)
{
    Image image = empty_picture(width, height);
    draw_band(image, from, to, line_width, '#');
    return image;
}

Image disc(DevicePoint center, int radius, int width, int height)
{
    Image image = empty_picture(width, height);
    fill_disc(image, center, radius, {'#', false});
    return image;
}

Image ring(DevicePoint center, int radius, int line_width, int width, int height)
{
    Image image = empty_picture(width, height);
    draw_ring(image, center, radius, line_width, '#');
    return image;
}

/// Four times the squared distance of a point from a line between two points, as a fraction.
struct Fraction {
    std::int64_t over;
    std::int64_t under;
};

Fraction distance4(std::int64_t px, std::int64_t py, std::int64_t dx, std::int64_t dy)
{
    std::int64_t const square = dx * dx + dy * dy;
    std::int64_t const along = px * dx + py * dy;
    if (along <= 0 || square == 0)
        return {4 * (px * px + py * py), 1};
    if (along >= square)
        return {4 * ((px - dx) * (px - dx) + (py - dy) * (py - dy)), 1};
    std::int64_t const across = px * dy - py * dx;
    return {4 * across * across, square};
}

/// A band by its rule, in half pixels.
Image slow_band(DevicePoint from, DevicePoint to, int line_width, int width, int height)
{
    Image image = empty_picture(width, height);
    int const shift = line_width % 2 == 0 ? 1 : 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            auto const [over, under] =
                distance4(2 * (x - from.x) + shift, 2 * (y - from.y) + shift, 2 * (to.x - from.x), 2 * (to.y - from.y));
            if (over <= 4 * std::int64_t{line_width} * line_width * under)
                image.row(y)[x] = '#';
        }
    return image;
}

Image mirrored(Image const& image)
{
    Image result(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            result.row(y)[image.width() - 1 - x] = image.row(y)[x];
    return result;
}

Image transposed(Image const& image)
{
    Image result(image.height(), image.width());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            result.row(x)[y] = image.row(y)[x];
    return result;
}

} // namespace

TEST(DrawLine, LeavesItsLastPointOut)
{
    EXPECT_EQ(rows_of(line({1, 1}, {4, 1}))[1], ".###......");
    EXPECT_EQ(rows_of(line({4, 1}, {1, 1}))[1], "..###.....");
    EXPECT_EQ(rows_of(line({1, 0}, {1, 3})),
              (Rows{".#........", ".#........", ".#........", "..........", ".........."}));
    EXPECT_EQ(rows_of(line({1, 3}, {1, 0})),
              (Rows{"..........", ".#........", ".#........", ".#........", ".........."}));
    EXPECT_EQ(line({3, 3}, {3, 3}), empty_picture(10, 5));
}

TEST(DrawLine, GoesThroughTheNearestPixels)
{
    EXPECT_EQ(rows_of(line({0, 0}, {9, 4})), (Rows{
                                                 "##........",
                                                 "..##......",
                                                 "....##....",
                                                 "......##..",
                                                 "........#.",
                                             }));
}

TEST(DrawLine, OfTwoPixelsEquallyNearTheLowerOrRightOneIsTaken)
{
    EXPECT_EQ(rows_of(line({0, 0}, {2, 1}, 3, 2)), (Rows{"#..", ".#."}));
    EXPECT_EQ(rows_of(line({0, 1}, {2, 0}, 3, 2)), (Rows{"...", "##."}));
    EXPECT_EQ(rows_of(line({0, 0}, {1, 2}, 2, 3)), (Rows{"#.", ".#", ".."}));
    EXPECT_EQ(rows_of(line({1, 0}, {0, 2}, 2, 3)), (Rows{".#", ".#", ".."}));
}

TEST(DrawLine, BackAndForthGoThroughTheSamePixels)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<int> coordinate(0, 29);
    for (int i = 0; i < 2000; ++i) {
        DevicePoint const a = {coordinate(random), coordinate(random)};
        DevicePoint const b = {coordinate(random), coordinate(random)};
        Image forth = line(a, b, 30, 30);
        Image back = line(b, a, 30, 30);
        forth.row(b.y)[b.x] = '#';
        back.row(a.y)[a.x] = '#';
        ASSERT_EQ(rows_of(forth), rows_of(back)) << "line " << i;
    }
}

TEST(DrawLine, HasOnePixelNoFurtherThanHalfAPixelAtEachStep)
{
    std::mt19937 random(2);
    std::uniform_int_distribution<int> coordinate(0, 29);
    for (int i = 0; i < 2000; ++i) {
        DevicePoint const a = {coordinate(random), coordinate(random)};
        DevicePoint const b = {coordinate(random), coordinate(random)};
        int const dx = b.x - a.x, dy = b.y - a.y;
        int const steps = std::max(std::abs(dx), std::abs(dy));
        Image const image = line(a, b, 30, 30);
        int count = 0;
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 30; ++x)
                if (image.row(y)[x] == '#') {
                    ++count;
                    ASSERT_LE(2 * std::abs((x - a.x) * dy - (y - a.y) * dx), steps) << "line " << i;
                }
        ASSERT_EQ(count, steps) << "line " << i;
    }
}

TEST(DrawLine, AClippedLineIsAPieceOfTheWholeOne)
{
    std::mt19937 random(3);
    std::uniform_int_distribution<int> coordinate(0, 59);
    for (int i = 0; i < 2000; ++i) {
        DevicePoint const a = {coordinate(random), coordinate(random)};
        DevicePoint const b = {coordinate(random), coordinate(random)};
        ASSERT_EQ(line({a.x - 24, a.y - 16}, {b.x - 24, b.y - 16}, 20, 20),
                  cut_out(line(a, b, 60, 60), 24, 16, 20, 20));
        for (int const width : {2, 5})
            ASSERT_EQ(band({a.x - 24, a.y - 16}, {b.x - 24, b.y - 16}, width, 20, 20),
                      cut_out(band(a, b, width, 60, 60), 24, 16, 20, 20));
    }
}

TEST(DrawLine, LinesOfHugeLengthKeepToTheirRule)
{
    EXPECT_EQ(rows_of(line({lowest, 2}, {highest, 2}))[2], "##########");
    EXPECT_EQ(rows_of(line({-2000000000, -2000000000}, {2000000000, 2000000000}, 4, 4)),
              (Rows{"#...", ".#..", "..#.", "...#"}));
    EXPECT_EQ(rows_of(line({2000000003, -2000000000}, {-1999999997, 2000000000}, 4, 4)),
              (Rows{"...#", "..#.", ".#..", "#..."}));
    EXPECT_EQ(rows_of(line({lowest, lowest}, {highest, highest}, 3, 3)), (Rows{"#..", ".#.", "..#"}));
    EXPECT_EQ(line({lowest, highest}, {highest, highest}), empty_picture(10, 5));
}

TEST(DrawBand, IsAsWideAsItsPen)
{
    EXPECT_EQ(rows_of(band({3, 3}, {8, 3}, 2, 12, 6)), (Rows{
                                                           "............",
                                                           "............",
                                                           "..#######...",
                                                           "..#######...",
                                                           "............",
                                                           "............",
                                                       }));
    EXPECT_EQ(rows_of(band({3, 3}, {8, 3}, 3, 12, 6)), (Rows{
                                                           "............",
                                                           "............",
                                                           "..########..",
                                                           "..########..",
                                                           "..########..",
                                                           "............",
                                                       }));
    EXPECT_EQ(rows_of(band({3, 3}, {8, 3}, 4, 12, 6)), (Rows{
                                                           "............",
                                                           "..#######...",
                                                           ".#########..",
                                                           ".#########..",
                                                           "..#######...",
                                                           "............",
                                                       }));
}

TEST(DrawBand, APointIsADot)
{
    EXPECT_EQ(rows_of(band({3, 3}, {3, 3}, 5, 7, 7)), (Rows{
                                                          ".......",
                                                          "..###..",
                                                          ".#####.",
                                                          ".#####.",
                                                          ".#####.",
                                                          "..###..",
                                                          ".......",
                                                      }));
}

TEST(DrawBand, HasThePixelsNoFurtherThanHalfThePensWidth)
{
    std::mt19937 random(4);
    std::uniform_int_distribution<int> coordinate(-5, 34);
    for (int i = 0; i < 3000; ++i) {
        DevicePoint const a = {coordinate(random), coordinate(random)};
        DevicePoint const b = {coordinate(random), coordinate(random)};
        int const width = 2 + i % 9;
        ASSERT_EQ(rows_of(band(a, b, width, 30, 30)), rows_of(slow_band(a, b, width, 30, 30)))
            << a.x << ' ' << a.y << ' ' << b.x << ' ' << b.y << " width " << width;
    }
}

TEST(DrawBand, IsTheSameInAMirrorAndTurned)
{
    std::mt19937 random(5);
    std::uniform_int_distribution<int> coordinate(0, 30);
    for (int i = 0; i < 1000; ++i) {
        DevicePoint const a = {coordinate(random), coordinate(random)};
        DevicePoint const b = {coordinate(random), coordinate(random)};
        Image const image = band(a, b, 3, 31, 31);
        ASSERT_EQ(band(b, a, 3, 31, 31), image);
        ASSERT_EQ(band({30 - a.x, a.y}, {30 - b.x, b.y}, 3, 31, 31), mirrored(image));
        ASSERT_EQ(band({a.y, a.x}, {b.y, b.x}, 3, 31, 31), transposed(image));
    }
}

TEST(DrawBand, BandsOfHugeLengthOrWidthStayInThePicture)
{
    EXPECT_EQ(rows_of(band({lowest, 2}, {highest, 2}, 3, 4, 5)), (Rows{"....", "####", "####", "####", "...."}));
    EXPECT_EQ(rows_of(band({1, lowest}, {1, highest}, 3, 4, 2)), (Rows{"###.", "###."}));
    EXPECT_EQ(rows_of(band({lowest, lowest}, {highest, highest}, 2, 3, 3)), (Rows{"##.", "###", ".##"}));
    EXPECT_EQ(band({5, 5}, {6, 6}, 32767, 20, 10), Image(20, 10, '#'));
}

TEST(FillDisc, HasThePixelsWhoseDistanceRoundsToTheRadius)
{
    EXPECT_EQ(rows_of(disc({3, 3}, 0, 7, 7))[3], "...#...");
    EXPECT_EQ(rows_of(disc({3, 3}, 1, 7, 7)), (Rows{
                                                  ".......",
                                                  ".......",
                                                  "..###..",
                                                  "..###..",
                                                  "..###..",
                                                  ".......",
                                                  ".......",
                                              }));
    EXPECT_EQ(rows_of(disc({3, 3}, 3, 7, 7)), (Rows{
                                                  "..###..",
                                                  ".#####.",
                                                  "#######",
                                                  "#######",
                                                  "#######",
                                                  ".#####.",
                                                  "..###..",
                                              }));
}

TEST(FillDisc, AClippedDiscIsAPieceOfTheWholeOne)
{
    std::mt19937 random(6);
    std::uniform_int_distribution<int> coordinate(0, 59);
    for (int i = 0; i < 500; ++i) {
        DevicePoint const center = {coordinate(random), coordinate(random)};
        DevicePoint const moved = {center.x - 24, center.y - 16};
        int const radius = coordinate(random) / 2;
        ASSERT_EQ(disc(moved, radius, 20, 20), cut_out(disc(center, radius, 60, 60), 24, 16, 20, 20));
        for (int const width : {1, 4})
            ASSERT_EQ(ring(moved, radius, width, 20, 20), cut_out(ring(center, radius, width, 60, 60), 24, 16, 20, 20));
    }
}

TEST(FillDisc, AHugeDiscFillsThePicture)
{
    EXPECT_EQ(disc({5, 5}, highest, 20, 10), Image(20, 10, '#'));
    EXPECT_EQ(disc({lowest, 5}, highest, 20, 10), empty_picture(20, 10));
    EXPECT_EQ(ring({5, 5}, highest, 32767, 20, 10), empty_picture(20, 10));
}

TEST(DrawRing, IsTheRimOfTheDisc)
{
    EXPECT_EQ(rows_of(ring({3, 3}, 3, 1, 7, 7)), (Rows{
                                                     "..###..",
                                                     ".#...#.",
                                                     "#.....#",
                                                     "#.....#",
                                                     "#.....#",
                                                     ".#...#.",
                                                     "..###..",
                                                 }));
    EXPECT_EQ(rows_of(ring({1, 1}, 0, 1, 3, 3)), (Rows{"...", ".#.", "..."}));
    EXPECT_EQ(rows_of(ring({1, 1}, 1, 1, 3, 3)), (Rows{"###", "#.#", "###"}));
}

TEST(DrawRing, IsTheSameInAMirrorAndTurned)
{
    for (int radius = 0; radius <= 40; ++radius)
        for (int width = 1; width <= 5; ++width) {
            Image const image = ring({45, 45}, radius, width, 91, 91);
            ASSERT_EQ(mirrored(image), image) << radius;
            ASSERT_EQ(transposed(image), image) << radius;
        }
}

TEST(DrawRing, GrowsOutwardsFirst)
{
    EXPECT_EQ(rows_of(ring({8, 8}, 5, 1, 17, 17))[8], "...#.........#...");
    EXPECT_EQ(rows_of(ring({8, 8}, 5, 2, 17, 17))[8], "..##.........##..");
    EXPECT_EQ(rows_of(ring({8, 8}, 5, 3, 17, 17))[8], "..###.......###..");
    EXPECT_EQ(ring({8, 8}, 2, 9, 17, 17), disc({8, 8}, 6, 17, 17));
}

} // namespace zendara::test
