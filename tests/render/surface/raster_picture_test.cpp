#include "render/surface/block_glyphs.hpp"
#include "render/surface/picture_rows.hpp"
#include "support/failure_kind.hpp"
#include "zendara/render/surface/raster_picture.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

namespace zendara::test
{

namespace
{

// Colours are the codes of the letters that the pictures show.
constexpr Color ground = '.';
constexpr Color pen = '#';
constexpr Color fill = 'o';

/// A small picture, its pen and fill ready.
struct Canvas {
    explicit Canvas(int width = 10, int height = 7) : picture(width, height, glyphs, 15, ground)
    {
        picture.ForeColor = pen;
        picture.FillColor = fill;
    }

    RasterPicture* operator->() { return &picture; }
    Rows rows() const { return rows_of(*picture.image()); }

    BlockGlyphs glyphs;
    RasterPicture picture;
};

Rows empty_rows(int width = 10, int height = 7)
{
    return rows_of(empty_picture(width, height));
}

} // namespace

TEST(RasterPolygon, HasAnOutlineInForeColorAroundItsFill)
{
    Canvas canvas;
    canvas->FillStyle = fill_solid;
    canvas->Polygon({{{1, 1}, {7, 1}, {7, 5}, {1, 5}}});
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 ".#######..",
                                 ".#ooooo#..",
                                 ".#ooooo#..",
                                 ".#ooooo#..",
                                 ".#######..",
                                 "..........",
                             }));
}

TEST(RasterPolygon, WithoutAPenTheFillReachesUpToTheRightAndBottomEdges)
{
    Canvas canvas;
    canvas->FillStyle = fill_solid;
    canvas->DrawStyle = pen_none;
    canvas->Polygon({{{1, 1}, {7, 1}, {7, 5}, {1, 5}}});
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 ".oooooo...",
                                 ".oooooo...",
                                 ".oooooo...",
                                 ".oooooo...",
                                 "..........",
                                 "..........",
                             }));
}

TEST(RasterPolygon, WithoutAFillThePolygonIsItsOutline)
{
    Canvas canvas;
    canvas->Polygon({{{4, 0}, {7, 3}, {4, 6}, {1, 3}}});
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "....#.....",
                                 "...#.#....",
                                 "..#...#...",
                                 ".#.....#..",
                                 "..#...#...",
                                 "...#.#....",
                                 "....#.....",
                             }));
}

TEST(RasterPolygon, WithoutPenAndFillNothingIsDrawn)
{
    Canvas canvas;
    canvas->DrawStyle = pen_none;
    canvas->Polygon({{{1, 1}, {7, 1}, {7, 5}, {1, 5}}});
    EXPECT_EQ(canvas.rows(), empty_rows());
}

TEST(RasterPolygon, TheOutlineIsAsWideAsThePen)
{
    Canvas canvas(11, 9);
    canvas->DrawWidth = 3;
    canvas->Polygon({{{2, 2}, {8, 2}, {8, 6}, {2, 6}}});
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "...........",
                                 ".#########.",
                                 ".#########.",
                                 ".#########.",
                                 ".###...###.",
                                 ".#########.",
                                 ".#########.",
                                 ".#########.",
                                 "...........",
                             }));
}

TEST(RasterPolygon, TheHatchLeavesTheGround)
{
    Canvas canvas(12, 8);
    canvas->FillStyle = fill_diagonal_cross;
    canvas->DrawStyle = pen_none;
    canvas->FillBox(0, 0, 3, 7, 'g');
    canvas->Polygon({{{1, 0}, {11, 0}, {11, 8}, {1, 8}}});
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "gggg...oo...",
                                 "gogg..o..o..",
                                 "ggog.o....o.",
                                 "gggoo.......",
                                 "gggoo.......",
                                 "ggog.o....o.",
                                 "gogg..o..o..",
                                 "gggg...oo...",
                             }));
}

TEST(RasterPolygon, IsInPixelsInEveryScaleMode)
{
    Canvas canvas;
    canvas->ScaleMode(scale_twips);
    canvas->FillStyle = fill_solid;
    canvas->DrawStyle = pen_none;
    canvas->Polygon({{{0, 0}, {2, 0}, {2, 1}, {0, 1}}});
    EXPECT_EQ(canvas.rows()[0], "oo........");
}

TEST(RasterLine, CoordinatesRoundHalfToEven)
{
    Canvas canvas;
    canvas->Line(0.5, 0.5, 3.5, 0.5, 'a');
    canvas->Line(1.5, 1.5, 4.5, 1.5, 'b');
    canvas->Line(-0.5, 3.4, 2.6, 3.4, 'c');
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "aaaa......",
                                 "..........",
                                 "..bb......",
                                 "ccc.......",
                                 "..........",
                                 "..........",
                                 "..........",
                             }));
}

TEST(RasterLine, TwipsAreDividedByTheScreensTwipsPerPixel)
{
    Canvas canvas;
    canvas->ScaleMode(scale_twips);
    canvas->Line(15, 30, 75, 30, 'a');     // 1, 2 to 5, 2
    canvas->Line(22.5, 60, 67.5, 60, 'b'); // 1.5, 4 to 4.5, 4
    EXPECT_EQ(canvas.rows()[2], ".aaaa.....");
    EXPECT_EQ(canvas.rows()[4], "..bb......");
}

TEST(RasterLine, GoesOnFromTheCurrentPosition)
{
    Canvas canvas;
    canvas->Line(1, 1, 4, 1, pen);
    canvas->LineTo(4, 4, pen);
    canvas->LineTo(0, 4, pen);
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 ".####.....",
                                 "....#.....",
                                 "....#.....",
                                 ".####.....",
                                 "..........",
                                 "..........",
                             }));
    EXPECT_EQ(canvas->CurrentX, 0);
    EXPECT_EQ(canvas->CurrentY, 4);
}

TEST(RasterLine, AWidePenDrawsABand)
{
    Canvas canvas;
    canvas->DrawWidth = 2;
    canvas->Line(3, 3, 6, 3, pen);
    EXPECT_EQ(canvas.rows()[1], "..........");
    EXPECT_EQ(canvas.rows()[2], "..#####...");
    EXPECT_EQ(canvas.rows()[3], "..#####...");
    EXPECT_EQ(canvas.rows()[4], "..........");
}

TEST(RasterLine, ANumberThatDoesNotFit32BitsIsAnOverflowAndDrawsNothing)
{
    Canvas canvas;
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(failure_of([&] { canvas->Line(0, 0, 3e9, 0, pen); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([&] { canvas->Line(nan, 0, 5, 0, pen); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([&] { canvas->Box(0, 0, 5, -3e9, pen); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([&] { canvas->FillBox(0, 0, 1e300, 1, pen); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([&] { canvas->Circle(1, 1, 3e9); }), FailureKind::Overflow);
    canvas->CurrentX = 3e9;
    EXPECT_EQ(failure_of([&] { canvas->Print("a"); }), FailureKind::Overflow);
    EXPECT_EQ(canvas.rows(), empty_rows());
}

TEST(RasterLine, TwipsBeyond32BitsFitWhenTheirPixelsDo)
{
    Canvas canvas;
    canvas->ScaleMode(scale_twips);
    canvas->Line(0, 15, 30e9, 15, pen);
    EXPECT_EQ(canvas.rows()[1], "##########");
}

TEST(RasterLine, SystemColoursShowAsPlainOnes)
{
    Canvas canvas;
    canvas->Line(0, 0, 2, 0, button_face);
    canvas->Line(2, 0, 4, 0, 0x7F000041);
    EXPECT_EQ(canvas->image()->row(0)[0], static_cast<std::uint32_t>(plain_color(button_face)));
    EXPECT_EQ(canvas->image()->row(0)[2], 0x41u);
}

TEST(RasterBox, CoversTheRowsAndColumnsOfBothCorners)
{
    Canvas canvas;
    canvas->FillStyle = fill_solid;
    canvas->Box(6, 5, 2, 1, pen);
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 "..#####...",
                                 "..#ooo#...",
                                 "..#ooo#...",
                                 "..#ooo#...",
                                 "..#####...",
                                 "..........",
                             }));
}

TEST(RasterBox, WithoutAFillTheInsideStays)
{
    Canvas canvas;
    canvas->BoxStep(1, 1, 3, 2, pen);
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 ".####.....",
                                 ".#..#.....",
                                 ".####.....",
                                 "..........",
                                 "..........",
                                 "..........",
                             }));
}

TEST(RasterBox, WithoutAPenOnlyTheInsideIsFilled)
{
    Canvas canvas;
    canvas->FillStyle = fill_solid;
    canvas->DrawStyle = pen_none;
    canvas->Box(1, 1, 5, 4, pen);
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 "..........",
                                 "..ooo.....",
                                 "..ooo.....",
                                 "..........",
                                 "..........",
                                 "..........",
                             }));
}

TEST(RasterBox, OfOnePixelIsThatPixel)
{
    Canvas canvas;
    canvas->FillStyle = fill_solid;
    canvas->Box(3, 2, 3, 2, pen);
    Rows expected = empty_rows();
    expected[2][3] = '#';
    EXPECT_EQ(canvas.rows(), expected);
}

TEST(RasterBox, AWidePenGoesToBothSidesOfTheOutline)
{
    Canvas canvas(9, 9);
    canvas->DrawWidth = 3;
    canvas->FillStyle = fill_solid;
    canvas->Box(2, 2, 6, 6, pen);
    EXPECT_EQ(canvas.rows(), (Rows{
                                 ".........",
                                 ".#######.",
                                 ".#######.",
                                 ".#######.",
                                 ".###o###.",
                                 ".#######.",
                                 ".#######.",
                                 ".#######.",
                                 ".........",
                             }));
}

TEST(RasterFillBox, IncludesAllFourEdges)
{
    Canvas canvas;
    canvas->FillBox(4, 3, 1, 1, pen);
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 ".####.....",
                                 ".####.....",
                                 ".####.....",
                                 "..........",
                                 "..........",
                                 "..........",
                             }));
}

TEST(RasterFillBox, WithTwoEqualCoordinatesItIsALine)
{
    Canvas canvas;
    canvas->FillBox(1, 1, 5, 1, 'a');
    canvas->FillBox(7, 2, 7, 4, 'b');
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 ".aaaaa....",
                                 ".......b..",
                                 ".......b..",
                                 ".......b..",
                                 "..........",
                                 "..........",
                             }));
}

TEST(RasterFillBox, NeedsNeitherPenNorFill)
{
    Canvas canvas;
    canvas->DrawStyle = pen_none;
    canvas->DrawWidth = 5;
    canvas->FillStyle = fill_none;
    canvas->FillBox(1, 1, 3, 1, 'a');
    Rows expected = empty_rows();
    expected[1] = ".aaa......";
    EXPECT_EQ(canvas.rows(), expected);
}

TEST(RasterFillBox, AHugeBoxFillsThePicture)
{
    Canvas canvas;
    canvas->FillBox(-2147483648.0, -2147483648.0, 2147483647.0, 2147483647.0, pen);
    EXPECT_EQ(canvas.rows(), rows_of(Image(10, 7, '#')));
}

TEST(RasterCircle, HasItsLineInForeColorUnlessAColourIsGiven)
{
    Canvas canvas(14, 7);
    canvas->FillStyle = fill_solid;
    canvas->Circle(3, 3, 3);
    canvas->FillStyle = fill_none;
    canvas->Circle(10, 3, 2, 'x');
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..###.........",
                                 ".#ooo#...xxx..",
                                 "#ooooo#.x...x.",
                                 "#ooooo#.x...x.",
                                 "#ooooo#.x...x.",
                                 ".#ooo#...xxx..",
                                 "..###.........",
                             }));
}

TEST(RasterCircle, WithoutAPenOnlyTheInsideShows)
{
    Canvas canvas;
    canvas->DrawStyle = pen_none;
    canvas->FillStyle = fill_solid;
    canvas->Circle(3, 3, 1);
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 "..........",
                                 "..ooo.....",
                                 "..ooo.....",
                                 "..ooo.....",
                                 "..........",
                                 "..........",
                             }));
}

TEST(RasterCircle, ItsRadiusIsInTheUnitOfScaleMode)
{
    Canvas canvas;
    canvas->ScaleMode(scale_twips);
    canvas->Circle(45, 45, 30);
    EXPECT_EQ(canvas.rows()[3], ".#...#....");
}

TEST(RasterCircle, ANegativeRadiusDrawsNothing)
{
    Canvas canvas;
    canvas->Circle(3, 3, -2);
    EXPECT_EQ(canvas.rows(), empty_rows());
}

TEST(RasterText, StandsWithItsTopLeftCornerAtTheCurrentPosition)
{
    Canvas canvas;
    canvas->CurrentX = 1;
    canvas->CurrentY = 1;
    canvas->Print("ab");
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "..........",
                                 "..........",
                                 ".##.###...",
                                 ".##.#.#...",
                                 ".##.###...",
                                 "..........",
                                 "..........",
                             }));
    EXPECT_EQ(canvas->CurrentX, 1 + 3 + 4);
    EXPECT_EQ(canvas->CurrentY, 1);
}

TEST(RasterText, AnOpaqueTextHasItsLineInBackColor)
{
    Canvas canvas;
    canvas->FillBox(0, 0, 9, 6, 'g');
    canvas->CurrentX = 1;
    canvas->CurrentY = 1;
    canvas->FontTransparent = false;
    canvas->Print("ab");
    EXPECT_EQ(canvas.rows(), (Rows{
                                 "gggggggggg",
                                 "g.......gg",
                                 "g##.###.gg",
                                 "g##.#.#.gg",
                                 "g##.###.gg",
                                 "g.......gg",
                                 "gggggggggg",
                             }));
}

TEST(RasterText, AnyWordButZeroMakesItTransparent)
{
    Canvas canvas;
    canvas->FillBox(0, 0, 9, 6, 'g');
    canvas->CurrentX = 0;
    canvas->CurrentY = 0;
    canvas->FontTransparent = BooleanWord::from_word(5);
    canvas->Print("b");
    EXPECT_EQ(canvas.rows()[0], "gggggggggg");
    EXPECT_EQ(canvas.rows()[2], "#g#ggggggg");
}

TEST(RasterText, IsCutOffAtEveryEdge)
{
    Canvas large(50, 40);
    large->CurrentX = 14;
    large->CurrentY = 14;
    large->Print("ehe");
    for (int y = 8; y <= 22; ++y)
        for (int x = 8; x <= 40; ++x) {
            Canvas small(7, 4);
            small->CurrentX = 14 - x;
            small->CurrentY = 14 - y;
            small->Print("ehe");
            ASSERT_EQ(*small->image(), cut_out(*large->image(), x, y, 7, 4)) << x << ' ' << y;
        }
}

TEST(RasterText, FarOutsideNothingIsDrawn)
{
    Canvas canvas;
    for (double const far : {-2147483648.0, 2147483647.0}) {
        canvas->CurrentX = far;
        canvas->CurrentY = far;
        canvas->FontTransparent = true;
        canvas->Print("abc");
        canvas->CurrentX = far;
        canvas->FontTransparent = false;
        canvas->Print("abc");
    }
    EXPECT_EQ(canvas.rows(), empty_rows());
}

TEST(RasterText, ItsExtentIsInTheUnitOfScaleMode)
{
    Canvas canvas;
    EXPECT_EQ(canvas->TextWidth("abc"), 3 + 4 + 5);
    EXPECT_EQ(canvas->TextHeight("abc"), 5);
    EXPECT_EQ(canvas->TextWidth(""), 0);
    canvas->ScaleMode(scale_twips);
    EXPECT_EQ(canvas->TextWidth("abc"), 12 * 15);
    EXPECT_EQ(canvas->TextHeight("abc"), 5 * 15);
    canvas->Font.size = 16;
    EXPECT_EQ(canvas->TextWidth("abc"), 2 * 12 * 15);
    EXPECT_EQ(canvas->TextHeight("abc"), 2 * 5 * 15);
}

TEST(RasterPicture, ItsInnerAreaIsInTheUnitOfScaleMode)
{
    Canvas canvas;
    EXPECT_EQ(canvas->ScaleLeft(), 0);
    EXPECT_EQ(canvas->ScaleTop(), 0);
    EXPECT_EQ(canvas->ScaleWidth(), 10);
    EXPECT_EQ(canvas->ScaleHeight(), 7);
    canvas->ScaleMode(scale_twips);
    EXPECT_EQ(canvas->ScaleWidth(), 150);
    EXPECT_EQ(canvas->ScaleHeight(), 105);
    EXPECT_EQ(canvas->TwipsPerPixelX(), 15);
    EXPECT_EQ(canvas->TwipsPerPixelY(), 15);
    EXPECT_FALSE(canvas->is_printer());
    EXPECT_EQ(canvas->hdc(), 0);
}

TEST(RasterPicture, ClsGoesBackToTheBackgroundColourOfTheMoment)
{
    Canvas canvas(3, 2);
    canvas->FillBox(0, 0, 1, 1, pen);
    canvas->BackColor = 'b';
    canvas->Cls();
    EXPECT_EQ(canvas.rows(), (Rows{"bbb", "bbb"}));
    EXPECT_EQ(canvas->CurrentX, 0);
    EXPECT_EQ(canvas->CurrentY, 0);
}

TEST(RasterPicture, ClsGoesBackToThePicture)
{
    Canvas canvas(4, 2);
    canvas->FillBox(0, 0, 0, 1, 'a');
    canvas->set_picture(canvas->image());
    EXPECT_EQ(canvas.rows(), (Rows{"a...", "a..."})) << "its own image changes nothing";
    canvas->FillBox(2, 0, 3, 0, 'b');
    EXPECT_EQ(canvas.rows(), (Rows{"a.bb", "a..."}));
    canvas->Cls();
    EXPECT_EQ(canvas.rows(), (Rows{"a...", "a..."}));
}

TEST(RasterPicture, AnotherPictureShowsAtOnceAndNoPictureShowsTheBackground)
{
    Canvas canvas(4, 2);
    canvas->FillBox(0, 0, 3, 1, 'a');
    canvas->set_picture(std::make_shared<Image const>(2, 3, 'p'));
    EXPECT_EQ(canvas.rows(), (Rows{"pp..", "pp.."}));
    canvas->set_picture(nullptr);
    EXPECT_EQ(canvas.rows(), (Rows{"....", "...."}));
    canvas->Cls();
    EXPECT_EQ(canvas.rows(), (Rows{"....", "...."}));
}

TEST(RasterPicture, AnotherSizeKeepsNeitherDrawingNorPicture)
{
    Canvas canvas(4, 2);
    canvas->set_picture(std::make_shared<Image const>(2, 3, 'p'));
    canvas->FillBox(3, 0, 3, 0, 'a');
    canvas->resize(4, 2);
    EXPECT_EQ(canvas.rows(), (Rows{"pp.a", "pp.."}));
    canvas->resize(3, 3);
    EXPECT_EQ(canvas.rows(), (Rows{"...", "...", "..."}));
    canvas->Cls();
    EXPECT_EQ(canvas.rows(), (Rows{"...", "...", "..."}));
    EXPECT_EQ(canvas->ScaleHeight(), 3);
}

TEST(RasterPicture, ANegativeSizeIsAnEmptyPicture)
{
    Canvas canvas(4, 2);
    canvas->resize(-3, 5);
    EXPECT_EQ(canvas->ScaleWidth(), 0);
    canvas->Cls();
    canvas->Print("ab");
    canvas->FillBox(-5, -5, 5, 5, pen);
    EXPECT_EQ(*canvas->image(), Image(0, 5));
}

TEST(RasterPicture, AnImageHandedOutStaysAsItWas)
{
    Canvas canvas(4, 1);
    auto const before = canvas->image();
    canvas->FillBox(0, 0, 1, 0, 'a');
    auto const between = canvas->image();
    canvas->Cls();
    EXPECT_EQ(rows_of(*before), Rows{"...."});
    EXPECT_EQ(rows_of(*between), Rows{"aa.."});
    EXPECT_EQ(canvas.rows(), Rows{"...."});
}

TEST(RasterPicture, EveryDrawingCallLeavesAnImageHandedOut)
{
    Image const source(2, 2, 's');
    std::vector<void (*)(RasterPicture&, Image const&)> const calls = {
        [](RasterPicture& picture, Image const&) { picture.Line(0, 0, 5, 5, 'x'); },
        [](RasterPicture& picture, Image const&) { picture.Box(0, 0, 5, 5, 'x'); },
        [](RasterPicture& picture, Image const&) { picture.FillBox(0, 0, 5, 5, 'x'); },
        [](RasterPicture& picture, Image const&) { picture.Circle(3, 3, 2, 'x'); },
        [](RasterPicture& picture, Image const&) { picture.Print("ab"); },
        [](RasterPicture& picture, Image const&) {
            picture.Polygon({{{0, 0}, {5, 0}, {5, 5}, {0, 5}}});
        },
        [](RasterPicture& picture, Image const& image) { picture.draw_image(image, 1, 1); },
        [](RasterPicture& picture, Image const& image) { picture.draw_image_stretched(image, 1, 1, 3, 3); },
        [](RasterPicture& picture, Image const& image) { picture.set_picture(std::make_shared<Image>(image)); },
        [](RasterPicture& picture, Image const&) { picture.resize(3, 3); },
    };
    for (std::size_t i = 0; i < calls.size(); ++i) {
        Canvas canvas;
        auto const before = canvas->image();
        calls[i](canvas.picture, source);
        EXPECT_EQ(rows_of(*before), empty_rows()) << "call " << i;
        EXPECT_NE(*canvas->image(), *before) << "call " << i;
    }
}

TEST(RasterPicture, AnImageIsCopiedOnlyWhenItIsDrawnOn)
{
    Canvas canvas;
    auto const first = canvas->image();
    EXPECT_EQ(canvas->image(), first);
    canvas->Refresh();
    EXPECT_EQ(canvas->image(), first);
    canvas->Line(0, 0, 5, 0, pen);
    auto const second = canvas->image().get();
    EXPECT_NE(second, first.get());
    canvas->Line(0, 1, 5, 1, pen);
    EXPECT_EQ(canvas->image().get(), second) << "nobody else holds it any more";
}

TEST(RasterPicture, RefreshCallsTheContainer)
{
    Canvas canvas;
    canvas->Refresh();
    int calls = 0;
    canvas->on_refresh = [&] { ++calls; };
    canvas->Refresh();
    EXPECT_EQ(calls, 1);
}

TEST(RasterPicture, DrawsAnImageWhereverItLies)
{
    Canvas canvas(5, 3);
    Image image(3, 2);
    for (int x = 0; x < 3; ++x) {
        image.row(0)[x] = static_cast<std::uint32_t>('a' + x);
        image.row(1)[x] = static_cast<std::uint32_t>('d' + x);
    }
    canvas->draw_image(image, -1, -1);
    canvas->draw_image(image, 3, 1);
    canvas->draw_image(image, 2147483647, 0);
    canvas->draw_image(image, 0, -2147483647);
    EXPECT_EQ(canvas.rows(), (Rows{"ef...", "...ab", "...de"}));
}

TEST(RasterPicture, AStretchedImageRepeatsOrSkipsPixels)
{
    Image image(4, 1);
    for (int x = 0; x < 4; ++x)
        image.row(0)[x] = static_cast<std::uint32_t>('a' + x);
    Canvas canvas(10, 2);
    canvas->draw_image_stretched(image, 1, 0, 8, 1);
    canvas->draw_image_stretched(image, 0, 1, 2, 1);
    canvas->draw_image_stretched(image, 5, 1, 0, 1);
    EXPECT_EQ(canvas.rows(), (Rows{".aabbccdd.", "bd........"}));
    canvas->draw_image_stretched(image, -2000000000, 0, 2147483647, 2);
    EXPECT_EQ(canvas.rows(), (Rows{"dddddddddd", "dddddddddd"}));
    canvas->draw_image_stretched(Image(0, 0), 0, 0, 5, 5);
    EXPECT_EQ(canvas.rows()[0], "dddddddddd");
}

TEST(RasterBackground, FollowsItsColourUntilSomethingIsDrawnOnIt)
{
    Canvas canvas(3, 1);
    canvas->set_back_color('b');
    EXPECT_EQ(canvas.rows(), Rows{"bbb"});
    canvas->FillBox(1, 0, 1, 0, pen);
    canvas->set_back_color('c');
    EXPECT_EQ(canvas.rows(), Rows{"b#b"});
    canvas->Cls();
    EXPECT_EQ(canvas.rows(), Rows{"ccc"});
    canvas->set_back_color('d');
    EXPECT_EQ(canvas.rows(), Rows{"ddd"});
}

} // namespace zendara::test
