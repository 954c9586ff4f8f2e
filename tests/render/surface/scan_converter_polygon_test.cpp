#include "render/surface/picture_rows.hpp"
#include "zendara/render/surface/scan_converter.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

namespace zendara::test
{

namespace
{

using Corners = std::array<DevicePoint, 4>;
__extension__ using Wide = __int128;

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

constexpr Paint ink = {'#', false};

Image filled(Corners const& corners, int width, int height)
{
    Image image = empty_picture(width, height);
    fill_polygon(image, corners, ink);
    return image;
}

/// Whether an edge passes the row of a point, at its left or through it.
bool has_to_its_left(DevicePoint upper, DevicePoint lower, std::int64_t x, std::int64_t y)
{
    if (upper.y > lower.y)
        std::swap(upper, lower);
    if (y < upper.y || y >= lower.y)
        return false;
    // upper.x + (y - upper.y) * dx / dy <= x
    Wide const dx = Wide{lower.x} - upper.x;
    Wide const dy = Wide{lower.y} - upper.y;
    return (y - upper.y) * dx <= (x - upper.x) * dy;
}

/// The rule of filling, pixel by pixel.
Image slowly_filled(Corners const& corners, int width, int height)
{
    Image image = empty_picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            int edges = 0;
            for (std::size_t i = 0; i < 4; ++i)
                edges += has_to_its_left(corners[i], corners[(i + 1) % 4], x, y) ? 1 : 0;
            if (edges % 2 == 1)
                image.row(y)[x] = '#';
        }
    return image;
}

DevicePoint random_point(std::mt19937& random, std::int32_t low, std::int32_t high)
{
    std::uniform_int_distribution<std::int32_t> coordinate(low, high);
    auto const x = coordinate(random);
    return {x, coordinate(random)};
}

Corners random_corners(std::mt19937& random, std::int32_t low, std::int32_t high)
{
    Corners corners;
    for (DevicePoint& corner : corners)
        corner = random_point(random, low, high);
    return corners;
}

/// Corners of a grid, all but those of the border moved about by less than half the spacing, and the two triangles
/// of each mesh.
std::vector<Corners> random_triangles(std::mt19937& random, int meshes, int spacing)
{
    std::vector<std::vector<DevicePoint>> nodes;
    std::uniform_int_distribution<int> shift(-spacing / 4, spacing / 4);
    for (int j = 0; j <= meshes; ++j) {
        nodes.emplace_back();
        for (int i = 0; i <= meshes; ++i) {
            bool const is_border = i == 0 || j == 0 || i == meshes || j == meshes;
            int const dx = is_border ? 0 : shift(random);
            int const dy = is_border ? 0 : shift(random);
            nodes.back().push_back({i * spacing + dx, j * spacing + dy});
        }
    }
    std::vector<Corners> triangles;
    for (std::size_t j = 0; j + 1 < nodes.size(); ++j)
        for (std::size_t i = 0; i + 1 < nodes.size(); ++i) {
            DevicePoint const a = nodes[j][i], b = nodes[j][i + 1], c = nodes[j + 1][i + 1], d = nodes[j + 1][i];
            triangles.push_back({a, b, c, c});
            triangles.push_back({a, a, c, d});
        }
    return triangles;
}

} // namespace

TEST(FillPolygon, ABoxTakesItsLeftAndTopEdgesInAndLeavesTheOthersOut)
{
    EXPECT_EQ(rows_of(filled({{{1, 1}, {4, 1}, {4, 3}, {1, 3}}}, 6, 5)), (Rows{
                                                                             "......",
                                                                             ".###..",
                                                                             ".###..",
                                                                             "......",
                                                                             "......",
                                                                         }));
}

TEST(FillPolygon, ASlantedEdgeTakesTheCentresRightOfItAndOnIt)
{
    EXPECT_EQ(rows_of(filled({{{4, 0}, {7, 3}, {4, 6}, {1, 3}}}, 8, 7)), (Rows{
                                                                             "........",
                                                                             "...##...",
                                                                             "..####..",
                                                                             ".######.",
                                                                             "..####..",
                                                                             "...##...",
                                                                             "........",
                                                                         }));
}

TEST(FillPolygon, CrossingEdgesEncloseTwoTriangles)
{
    EXPECT_EQ(rows_of(filled({{{0, 0}, {8, 8}, {8, 0}, {0, 8}}}, 8, 8)), (Rows{
                                                                             "........",
                                                                             "#......#",
                                                                             "##....##",
                                                                             "###..###",
                                                                             "########",
                                                                             "###..###",
                                                                             "##....##",
                                                                             "#......#",
                                                                         }));
}

TEST(FillPolygon, PolygonsWithoutAnInsidePaintNothing)
{
    Image const empty = empty_picture(8, 8);
    EXPECT_EQ(filled({{{3, 3}, {3, 3}, {3, 3}, {3, 3}}}, 8, 8), empty);
    EXPECT_EQ(filled({{{1, 3}, {6, 3}, {6, 3}, {1, 3}}}, 8, 8), empty);
    EXPECT_EQ(filled({{{3, 1}, {3, 1}, {3, 6}, {3, 6}}}, 8, 8), empty);
    EXPECT_EQ(filled({{{1, 1}, {6, 6}, {6, 6}, {1, 1}}}, 8, 8), empty);
}

TEST(FillPolygon, EveryPixelFollowsTheRuleOfLeftEdges)
{
    std::mt19937 random(1);
    for (int i = 0; i < 3000; ++i) {
        Corners const corners = random_corners(random, -10, 30);
        ASSERT_EQ(rows_of(filled(corners, 20, 20)), rows_of(slowly_filled(corners, 20, 20))) << "polygon " << i;
    }
}

TEST(FillPolygon, EveryPolygonOfAFewColumnsAndRowsFollowsTheRule)
{
    constexpr std::int32_t columns = 3, rows = 4;
    constexpr int places = columns * rows;
    for (int number = 0; number < places * places * places * places; ++number) {
        Corners corners;
        int rest = number;
        for (DevicePoint& corner : corners) {
            corner = {rest % places % columns, rest % places / columns - 1}; // the top row lies above the picture
            rest /= places;
        }
        ASSERT_EQ(filled(corners, columns, rows), slowly_filled(corners, columns, rows)) << "polygon " << number;
    }
}

TEST(FillPolygon, EveryPixelFollowsTheRuleForCornersOfAll32Bits)
{
    std::mt19937 random(2);
    int cut_through = 0;
    for (int i = 0; i < 3000; ++i) {
        Corners corners = random_corners(random, lowest, highest);
        if (i % 2 == 0)
            corners[0] = random_point(random, -5, 25); // so that edges cross the picture
        if (i % 4 == 0)
            corners[2] = random_point(random, -5, 25);
        Image const image = filled(corners, 20, 20);
        ASSERT_EQ(rows_of(image), rows_of(slowly_filled(corners, 20, 20))) << "polygon " << i;
        bool const has_ink = rows_of(image) != rows_of(empty_picture(20, 20));
        cut_through += has_ink && rows_of(image) != Rows(20, std::string(20, '#')) ? 1 : 0;
    }
    EXPECT_GT(cut_through, 100) << "the test is empty without edges that cross the picture";
}

TEST(FillPolygon, APolygonMuchLargerThanThePictureFillsIt)
{
    EXPECT_EQ(filled({{{-2000000000, -2000000000},
                       {2000000000, -2000000000},
                       {2000000000, 2000000000},
                       {-2000000000, 2000000000}}},
                     50, 40),
              Image(50, 40, '#'));
    EXPECT_EQ(filled({{{0, lowest}, {highest, 0}, {0, highest}, {lowest, 0}}}, 50, 40), Image(50, 40, '#'));
    EXPECT_EQ(filled({{{lowest, lowest}, {highest, lowest}, {highest, highest}, {lowest, highest}}}, 50, 40),
              Image(50, 40, '#'));
}

TEST(FillPolygon, ABoxIsFilledAsAnyPolygonIs)
{
    std::mt19937 random(3);
    for (int i = 0; i < 5000; ++i) {
        bool const is_huge = i % 10 == 0;
        DevicePoint const a = is_huge ? random_point(random, lowest, highest) : random_point(random, -10, 30);
        DevicePoint const b = is_huge ? random_point(random, lowest, highest) : random_point(random, -10, 30);
        Corners corners = {{a, {b.x, a.y}, b, {a.x, b.y}}};
        if (i % 2 == 1)
            std::swap(corners[1], corners[3]);
        Paint const paint = {'#', i % 3 == 0};

        Image fast = empty_picture(20, 20);
        fill_polygon(fast, corners, paint);
        Image by_edges = empty_picture(20, 20);
        fill_polygon_by_edges(by_edges, corners, paint);
        ASSERT_EQ(rows_of(fast), rows_of(by_edges)) << "box " << i;
    }
}

TEST(FillPolygon, TrianglesOfAMeshCoverEachPixelOnce)
{
    std::mt19937 random(4);
    constexpr int meshes = 6, spacing = 9, size = meshes * spacing;
    for (int round = 0; round < 100; ++round) {
        Image counts(size + 2, size + 2, '0');
        for (Corners const& triangle : random_triangles(random, meshes, spacing)) {
            Image const one = filled(triangle, size + 2, size + 2);
            for (int y = 0; y < size + 2; ++y)
                for (int x = 0; x < size + 2; ++x)
                    counts.row(y)[x] += one.row(y)[x] == '#' ? 1 : 0;
        }
        Image expected(size + 2, size + 2, '0');
        fill_box(expected, {0, 0, size, size}, {'1', false});
        ASSERT_EQ(rows_of(counts), rows_of(expected)) << "mesh " << round;
    }
}

TEST(FillPolygon, TheOrderOfNeighboursChangesNoPixel)
{
    std::mt19937 random(5);
    constexpr int meshes = 5, spacing = 8, size = meshes * spacing;
    for (int round = 0; round < 50; ++round) {
        auto const triangles = random_triangles(random, meshes, spacing);
        std::vector<std::size_t> order(triangles.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        Image in_order = empty_picture(size, size);
        for (std::size_t const i : order)
            fill_polygon(in_order, triangles[i], {static_cast<std::uint32_t>(100 + i), false});
        std::shuffle(order.begin(), order.end(), random);
        Image shuffled = empty_picture(size, size);
        for (std::size_t const i : order)
            fill_polygon(shuffled, triangles[i], {static_cast<std::uint32_t>(100 + i), false});
        ASSERT_EQ(in_order, shuffled) << "mesh " << round;
    }
}

TEST(FillPolygon, AClippedPolygonIsAPieceOfTheWholeOne)
{
    std::mt19937 random(6);
    for (int i = 0; i < 1000; ++i) {
        Corners const corners = random_corners(random, 0, 60);
        Corners moved = corners;
        for (DevicePoint& corner : moved)
            corner = {corner.x - 24, corner.y - 16};
        ASSERT_EQ(filled(moved, 20, 20), cut_out(filled(corners, 60, 60), 24, 16, 20, 20)) << "polygon " << i;
    }
}

TEST(FillPolygon, APictureWithoutPixelsTakesAnyPolygon)
{
    Image image(0, 0);
    fill_polygon(image, {{{-5, -5}, {5, -5}, {5, 5}, {-5, 5}}}, ink);
    fill_polygon(image, {{{-5, -5}, {5, 0}, {5, 5}, {0, 5}}}, ink);
    EXPECT_EQ(image, Image(0, 0));
}

TEST(FillBox, PaintsRunsOfEveryLength)
{
    for (int width = 0; width <= 100; ++width) {
        Image image = empty_picture(104, 1);
        fill_box(image, {2, 0, 2 + width, 1}, ink);
        ASSERT_EQ(rows_of(image)[0], ".." + std::string(static_cast<std::size_t>(width), '#') +
                                         std::string(static_cast<std::size_t>(102 - width), '.'));
    }
}

TEST(FillBox, TheHatchIsFixedToTheOriginAndLeavesTheGround)
{
    Image image = empty_picture(18, 10);
    fill_box(image, {1, 1, 18, 10}, {'#', true});
    EXPECT_EQ(rows_of(image), (Rows{
                                  "..................",
                                  ".#....#..#....#..#",
                                  "..#..#....#..#....",
                                  "...##......##.....",
                                  "...##......##.....",
                                  "..#..#....#..#....",
                                  ".#....#..#....#..#",
                                  ".......##......##.",
                                  ".......##......##.",
                                  ".#....#..#....#..#",
                              }));
}

} // namespace zendara::test
