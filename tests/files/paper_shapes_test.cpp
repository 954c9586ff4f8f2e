// What shows on the page: fields of cells without seams, outlined polygons, hatches, the order of painting.

#include "files/paper_pages.hpp"

#include <cmath>

namespace zendara::test
{

namespace
{

constexpr std::uint32_t red = 0x0000FF, blue = 0xFF0000;

/// Columns and rows of polygons, edge to edge, at odd device pixels.
struct Field {
    std::int32_t left = 503, top = 701, columns = 137, rows = 91;
    double pitch = 17.37; // device pixels

    std::int32_t x(int column) const { return left + static_cast<std::int32_t>(std::lround(column * pitch)); }
    std::int32_t y(int row) const { return top + static_cast<std::int32_t>(std::lround(row * pitch)); }
};

std::array<DevicePoint, 4> box(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom)
{
    return {{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
}

void draw(PaperSurface& page, Field const& field)
{
    for (int row = 0; row < field.rows; ++row)
        for (int column = 0; column < field.columns; ++column)
            page.Polygon(box(field.x(column), field.y(row), field.x(column + 1), field.y(row + 1)));
}

void use_solid_fill(PaperSurface& page, std::uint32_t color, std::int16_t pen)
{
    page.DrawStyle = pen;
    page.FillStyle = fill_solid;
    page.FillColor = static_cast<Color>(color);
}

/// Whether a viewer shows a colour: where it makes an image smaller, its arithmetic is off by one or two.
bool is_shown_as(std::uint32_t shown, std::uint32_t color)
{
    for (int const shift : {0, 8, 16})
        if (std::abs(static_cast<int>(shown >> shift & 0xFF) - static_cast<int>(color >> shift & 0xFF)) > 2)
            return false;
    return true;
}

testing::AssertionResult shows(Image const& image, int x, int y, std::uint32_t color)
{
    if (is_shown_as(image.row(y)[x], color))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "0x" << std::hex << image.row(y)[x] << " at " << std::dec << x << ", " << y;
}

/// Pixels of another colour within the reach of a shape, its rim of one pixel left out.
std::size_t stray_pixels(Image const& image, Reach const& reach, std::uint32_t color)
{
    std::size_t stray = 0;
    for (int y = reach.top + 1; y < reach.bottom; ++y)
        for (int x = reach.left + 1; x < reach.right; ++x)
            stray += is_shown_as(image.row(y)[x], color) ? 0u : 1u;
    return stray;
}

bool has_image(std::string const& pdf)
{
    return pdf.find("/Subtype /Image") != std::string::npos;
}

} // namespace

// --- Fields of cells ------------------------------------------------------------------------------------------------

TEST_F(Paper, AFieldOfOneColourHasNoSeamsAtAnyResolution)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    use_solid_fill(page, blue, pen_none);
    draw(page, {});
    page.EndDoc();
    for (int const dots_per_inch : {72, 96, 300}) {
        auto const image = shown(dots_per_inch);
        auto const reach = reach_of(image);
        ASSERT_GT(reach.right - reach.left, 200);
        EXPECT_EQ(stray_pixels(image, reach, blue), 0u) << dots_per_inch << " dots per inch";
    }
}

TEST_F(Paper, AFieldEndsWhereAnOutlinedBoxOfTheSameCornersEnds)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    Field const field;
    auto const reach_at_600 = [&](bool is_outlined) {
        PaperSurface page(file());
        use_solid_fill(page, blue, is_outlined ? pen_solid : pen_none);
        if (is_outlined)
            page.Polygon(box(field.x(0), field.y(0), field.x(field.columns), field.y(field.rows)));
        else
            draw(page, field);
        page.EndDoc();
        return reach_of(shown(600));
    };
    auto const cells = reach_at_600(false);
    auto const outlined = reach_at_600(true);
    EXPECT_NEAR(cells.left, outlined.left, 1);
    EXPECT_NEAR(cells.top, outlined.top, 1);
    EXPECT_NEAR(cells.right, outlined.right, 1);
    EXPECT_NEAR(cells.bottom, outlined.bottom, 1);
}

TEST_F(Paper, ALargeFieldKeepsItsEdgesAndItsFileStaysSmall)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.DrawStyle = pen_none;
    page.FillStyle = fill_solid;
    Field const field{0, 0, 450, 640, 10.9}; // nearly the whole page
    for (int row = 0; row < field.rows; ++row)
        for (int column = 0; column < field.columns; ++column) {
            page.FillColor = static_cast<Color>((row / 50 + column / 50) % 2 == 0 ? red : blue);
            page.Polygon(box(field.x(column), field.y(row), field.x(column + 1), field.y(row + 1)));
        }
    page.EndDoc();
    EXPECT_LT(bytes().size(), 200000u);
    auto const image = shown(100);
    // A square of 50 cells is 545 device pixels: 90.8 pixels here.
    EXPECT_TRUE(shows(image, 45, 45, red));
    EXPECT_TRUE(shows(image, 136, 45, blue));
    EXPECT_TRUE(shows(image, 136, 136, red));
    auto const reach = reach_of(image);
    EXPECT_NEAR(reach.right, 450 * 10.9 / 6, 1);
    EXPECT_NEAR(reach.bottom, 640 * 10.9 / 6, 1);
}

TEST_F(Paper, AThinFrameAroundAFieldShowsOnAllSidesAtAnyResolution)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.ScaleMode(scale_pixels);
    Field const field;
    page.Box(field.left - 1, field.top - 1, field.x(field.columns), field.y(field.rows), 0);
    use_solid_fill(page, white, pen_none);
    draw(page, field);
    page.EndDoc();
    for (int const dots_per_inch : {72, 96, 300}) {
        auto const image = shown(dots_per_inch);
        auto const reach = reach_of(image);
        EXPECT_NEAR(reach.left, field.left * dots_per_inch / 600.0, 1.5);
        EXPECT_NEAR(reach.top, field.top * dots_per_inch / 600.0, 1.5);
        EXPECT_NEAR(reach.right, field.x(field.columns) * dots_per_inch / 600.0, 1.5);
        EXPECT_NEAR(reach.bottom, field.y(field.rows) * dots_per_inch / 600.0, 1.5);
    }
}

TEST_F(Paper, ABoxThatIsNoFrameOfTheFieldStaysBehindIt)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.ScaleMode(scale_pixels);
    page.DrawWidth = 20;
    page.Box(1000, 1000, 2000, 2000, static_cast<Color>(red));
    use_solid_fill(page, blue, pen_none);
    page.Polygon(box(500, 500, 1500, 2500));
    page.Polygon(box(1500, 500, 2500, 2500));
    page.EndDoc();
    auto const image = shown(60);
    EXPECT_TRUE(shows(image, 100, 150, blue));
}

TEST_F(Paper, LinesOfOnePenGoOnAfterLinesOfAnother)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.ScaleMode(scale_pixels);
    page.DrawWidth = 40;
    page.Line(1000, 1000, 2000, 1000, static_cast<Color>(red));
    page.LineTo(2000, 2000, static_cast<Color>(red));
    page.LineTo(1500, 2000, static_cast<Color>(blue));
    page.Line(1000, 1500, 3000, 1500, static_cast<Color>(red)); // crosses the first path
    page.Line(2500, 1000, 2500, 2000, static_cast<Color>(blue));
    page.EndDoc();
    auto const image = shown(60);
    EXPECT_TRUE(shows(image, 150, 100, red));
    EXPECT_TRUE(shows(image, 200, 130, red));
    EXPECT_TRUE(shows(image, 170, 200, blue));
    EXPECT_TRUE(shows(image, 230, 150, red));
    EXPECT_TRUE(shows(image, 250, 150, blue)) << "the last one lies on top";
    EXPECT_TRUE(shows(image, 150, 125, white)) << "a path is no area";
}

TEST_F(Paper, CellsOverEachOtherShowTheLastOne)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    use_solid_fill(page, blue, pen_none);
    page.Polygon(box(1000, 1000, 3000, 3000));
    page.FillColor = static_cast<Color>(red);
    page.Polygon(box(2000, 2000, 4000, 4000));
    page.EndDoc();
    auto const image = shown(60); // ten device pixels each
    EXPECT_TRUE(shows(image, 150, 150, blue));
    EXPECT_TRUE(shows(image, 250, 250, red));
    EXPECT_TRUE(shows(image, 350, 150, white)) << "what no cell covers stays as it was";
}

TEST_F(Paper, LinesLieOverTheCellsBeforeThemAndUnderTheCellsBehind)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.ScaleMode(scale_pixels);
    use_solid_fill(page, blue, pen_none);
    page.Polygon(box(1000, 1000, 2000, 2000));
    page.Polygon(box(2000, 1000, 3000, 2000));
    page.DrawStyle = pen_solid;
    page.DrawWidth = 60;
    page.Line(1000, 1500, 5000, 1500, static_cast<Color>(red));
    page.DrawStyle = pen_none;
    page.Polygon(box(3000, 1000, 4000, 2000));
    page.Polygon(box(4000, 1000, 4500, 2000));
    page.EndDoc();
    auto const image = shown(60);
    EXPECT_TRUE(shows(image, 200, 150, red));
    EXPECT_TRUE(shows(image, 400, 150, blue));
    EXPECT_TRUE(shows(image, 475, 150, red));
}

TEST_F(Paper, CellsBeyondThePageCostNothing)
{
    PaperSurface page(file());
    use_solid_fill(page, blue, pen_none);
    page.Polygon(box(-2000000000, -2000000000, -10, -10));
    page.Polygon(box(5000, 100, 2000000000, 2000000000));
    page.EndDoc();
    EXPECT_FALSE(has_image(bytes()));
    EXPECT_LT(bytes().size(), 10000u);
}

// --- Outlined polygons ----------------------------------------------------------------------------------------------

TEST_F(Paper, OutlinedPolygonsAndALonelyFillAreVectors)
{
    PaperSurface page(file());
    use_solid_fill(page, blue, pen_none);
    page.Polygon(box(100, 100, 200, 200));
    page.DrawStyle = pen_solid;
    draw(page, {300, 300, 50, 50, 20});
    page.EndDoc();
    EXPECT_FALSE(has_image(bytes()));
}

TEST_F(Paper, ASurfaceOfVeryManyOutlinedCellsBecomesOneImageWithItsOutlines)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.DrawWidth = 9;
    page.ForeColor = static_cast<Color>(red);
    use_solid_fill(page, blue, pen_solid);
    draw(page, {600, 600, 120, 100, 30});
    page.EndDoc();
    EXPECT_EQ(count(bytes(), "/Subtype /Image"), 2u) << "one with its mask";
    EXPECT_LT(bytes().size(), 200000u);
    auto const image = shown(600);
    EXPECT_TRUE(shows(image, 615, 615, blue));
    EXPECT_TRUE(shows(image, 600, 615, red));
    EXPECT_TRUE(shows(image, 615, 630, red));
    auto const reach = reach_of(image);
    EXPECT_NEAR(reach.left, 596, 2);
    EXPECT_NEAR(reach.right, 600 + 3600 + 4, 2);
}

TEST_F(Paper, AnOutlineWithoutAFillShowsTheGround)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.FillStyle = fill_none;
    page.DrawWidth = 30;
    page.Polygon(box(1000, 1000, 2000, 2000));
    page.EndDoc();
    auto const image = shown(60);
    EXPECT_TRUE(shows(image, 150, 150, white));
    EXPECT_TRUE(shows(image, 100, 150, 0u));
}

// --- Boxes, circles, hatches ----------------------------------------------------------------------------------------

TEST_F(Paper, AFilledBoxWithTwoEqualCoordinatesShowsAsALine)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.FillBox(1440, 1440, 1440, 2880, static_cast<Color>(red));
    page.EndDoc();
    auto const reach = reach_of(shown(600));
    EXPECT_NEAR(reach.left, 600, 1);
    EXPECT_NEAR(reach.right, 600, 1);
    EXPECT_NEAR(reach.bottom, 1200, 1);
}

TEST_F(Paper, ABoxHasItsOutlineItsFillAndNoOutlineWithoutAPen)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    use_solid_fill(page, blue, pen_solid);
    page.DrawWidth = 30;
    page.Box(2400, 2400, 4800, 4800, static_cast<Color>(red));
    page.DrawStyle = pen_none;
    page.Box(7200, 2400, 9600, 4800, static_cast<Color>(red));
    page.EndDoc();
    auto const image = shown(60);
    EXPECT_TRUE(shows(image, 100, 150, red));
    EXPECT_TRUE(shows(image, 150, 150, blue));
    EXPECT_TRUE(shows(image, 301, 150, blue));
    EXPECT_TRUE(shows(image, 298, 150, white));
}

TEST_F(Paper, ACircleIsRoundOnADeviceWithOblongPixels)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file(), a4_paper, {2.4, 7.2});
    use_solid_fill(page, blue, pen_none);
    page.Circle(5000, 5000, 2000);
    page.EndDoc();
    auto const reach = reach_of(shown(144));
    EXPECT_NEAR(reach.left, 300, 1);
    EXPECT_NEAR(reach.right, 700, 1);
    EXPECT_NEAR(reach.top, 300, 1);
    EXPECT_NEAR(reach.bottom, 700, 1);
}

TEST_F(Paper, AHatchIsMadeOfUnbrokenLinesThroughNeighbouringShapes)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.DrawStyle = pen_none;
    page.FillStyle = fill_diagonal_cross;
    page.FillColor = static_cast<Color>(red);
    page.Box(2400, 2400, 4800, 7200, 0);
    page.Polygon(box(2000, 1000, 3000, 3000)); // 4800 to 7200 twips
    page.EndDoc();
    EXPECT_FALSE(has_image(bytes()));
    EXPECT_EQ(count(bytes(), "/PatternType"), 0u);

    auto const image = shown(300); // the hatch repeats every 25 pixels
    constexpr int first = 500, behind = 1500;
    for (int i = 5; i < behind - first - 5; ++i) {
        EXPECT_NE(image.row(first + i)[first + i], white) << "falling line " << i;
        EXPECT_NE(image.row(first + i)[behind - i], white) << "rising line " << i;
    }
    // Both kinds of lines cross at multiples of half the pitch; between them the ground shows.
    EXPECT_TRUE(shows(image, first + 100, first + 100 + 12, white));
    EXPECT_TRUE(shows(image, first + 100 + 12, first + 100, white));
    auto const reach = reach_of(image);
    EXPECT_NEAR(reach.left, 500, 1);
    EXPECT_NEAR(reach.right, 1499, 1);
}

TEST_F(Paper, ClearingCoversThePage)
{
    ZENDARA_NEEDS_PAGE_TOOLS();
    PaperSurface page(file());
    page.FillBox(1000, 1000, 5000, 5000, static_cast<Color>(red));
    use_solid_fill(page, blue, pen_none);
    page.Polygon(box(100, 100, 200, 200));
    page.Polygon(box(200, 100, 300, 200));
    page.Cls();
    page.EndDoc();
    EXPECT_EQ(reach_of(shown(60)).right, -1) << "all white";
}

} // namespace zendara::test
