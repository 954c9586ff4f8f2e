#include "zendara/files/freetype_glyphs.hpp"
#include "zendara/render/surface/raster_picture.hpp"
#include "zendara/support/failure.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

namespace zendara::test
{

namespace
{

/// A letter as rows of text.
std::vector<std::string> rows_of(Glyph const& glyph)
{
    std::vector<std::string> rows;
    for (int y = 0; y < glyph.height; ++y) {
        rows.emplace_back();
        for (int x = 0; x < glyph.width; ++x)
            rows.back().push_back(glyph.mask[static_cast<std::size_t>(y * glyph.width + x)] != 0 ? '#' : '.');
    }
    return rows;
}

FontFace arial(double size = 8)
{
    return {"Arial", size};
}

FontFace symbol(double size = 8)
{
    return {"Symbol", size};
}

} // namespace

TEST(FreeTypeGlyphs, ALetterStandsOnItsBaseLineWithoutSmoothing)
{
    FreeTypeGlyphs glyphs;
    Glyph const& letter = glyphs.glyph(arial(), U'H');
    EXPECT_EQ(letter.top, letter.height);
    EXPECT_EQ(rows_of(letter).front(), rows_of(letter).back()) << "two upright bars";
    EXPECT_EQ(rows_of(letter).front().front(), '#');
    EXPECT_EQ(rows_of(letter).front().back(), '#');
    EXPECT_NE(rows_of(letter).front().find('.'), std::string::npos);
}

TEST(FreeTypeGlyphs, ALetterGrowsWithItsSizeAt96DotsPerInch)
{
    FreeTypeGlyphs glyphs;
    // Capitals of Arial are 0.716 of the face's height: 72 points are 96 pixels.
    EXPECT_EQ(glyphs.glyph(arial(8), U'H').height, 8);
    EXPECT_NEAR(glyphs.glyph(arial(72), U'H').height, 0.716 * 96, 3);
}

TEST(FreeTypeGlyphs, SizesOfOneFaceDoNotDisturbEachOther)
{
    FreeTypeGlyphs mixed;
    mixed.glyph(arial(8), U'a');
    mixed.glyph(arial(30), U'a');
    auto const small = rows_of(mixed.glyph(arial(8), U'g'));
    FreeTypeGlyphs alone;
    EXPECT_EQ(small, rows_of(alone.glyph(arial(8), U'g')));
    EXPECT_GT(mixed.line_metrics(arial(30)).height, mixed.line_metrics(arial(8)).height);
}

TEST(FreeTypeGlyphs, ALetterIsMadeOnce)
{
    FreeTypeGlyphs glyphs;
    Glyph const& letter = glyphs.glyph(arial(), U'x');
    Glyph const& rare = glyphs.glyph(arial(), U'\u00B5');
    for (char32_t other = 0x20; other < 0x500; ++other)
        glyphs.glyph(arial(), other);
    glyphs.glyph(symbol(), U'x');
    EXPECT_EQ(&glyphs.glyph(arial(), U'x'), &letter);
    EXPECT_EQ(&glyphs.glyph(arial(), U'\u00B5'), &rare);
}

TEST(FreeTypeGlyphs, TheLetterSOfSymbolIsSigma)
{
    FreeTypeGlyphs glyphs;
    auto const sigma = rows_of(glyphs.glyph(symbol(30), U's'));
    ASSERT_FALSE(sigma.empty());
    EXPECT_NE(sigma, rows_of(glyphs.glyph(arial(30), U's')));
    EXPECT_NE(sigma, rows_of(glyphs.glyph(symbol(30), U'a'))) << "not the sign for a missing letter";

    // A small sigma has one bar at its top that reaches furthest right, and its ring is closed: the row below the bar
    // holds ink at both sides of a hole.
    std::size_t const bar_end = sigma.front().rfind('#');
    for (std::size_t y = sigma.size() / 2; y < sigma.size(); ++y)
        EXPECT_LT(sigma[y].rfind('#'), bar_end) << y;
    std::string const& middle = sigma[sigma.size() / 2];
    EXPECT_NE(middle.substr(middle.find('#'), middle.rfind('#') - middle.find('#')).find('.'), std::string::npos);
}

TEST(FreeTypeGlyphs, SymbolIsFoundInUpperAndLowerCase)
{
    FreeTypeGlyphs glyphs;
    EXPECT_EQ(rows_of(glyphs.glyph({"SYMBOL", 8}, U's')), rows_of(glyphs.glyph(symbol(), U's')));
}

TEST(FreeTypeGlyphs, AnUnknownFaceShowsAsArial)
{
    FreeTypeGlyphs glyphs;
    EXPECT_EQ(&glyphs.glyph({"No Such Face", 8}, U'k'), &glyphs.glyph(arial(), U'k'));
    EXPECT_EQ(glyphs.line_metrics({"", 8}).height, glyphs.line_metrics(arial()).height);
}

TEST(FreeTypeGlyphs, ControlLettersShowNothing)
{
    FreeTypeGlyphs glyphs;
    Glyph const& line_end = glyphs.glyph(arial(), U'\n');
    EXPECT_EQ(line_end.width, 0);
    EXPECT_EQ(line_end.advance, 0);
    for (std::string const& row : rows_of(glyphs.glyph(arial(), U' ')))
        EXPECT_EQ(row.find('#'), std::string::npos);
    EXPECT_GT(glyphs.glyph(arial(), U' ').advance, 0);
}

TEST(FreeTypeGlyphs, ALineHoldsCapitalsAndTails)
{
    FreeTypeGlyphs glyphs;
    for (double const size : {6.0, 8.0, 8.25, 10.0, 14.0, 24.0}) {
        auto const line = glyphs.line_metrics(arial(size));
        Glyph const& capital = glyphs.glyph(arial(size), U'H');
        Glyph const& tail = glyphs.glyph(arial(size), U'g');
        EXPECT_LE(capital.top, line.ascent) << size;
        EXPECT_LE(tail.height - tail.top, line.height - line.ascent) << size;
    }
}

TEST(FreeTypeGlyphs, SizesOutOfRangeAreHeldAtItsEnds)
{
    FreeTypeGlyphs glyphs;
    EXPECT_EQ(&glyphs.glyph(arial(-5), U'a'), &glyphs.glyph(arial(1), U'a'));
    EXPECT_EQ(&glyphs.glyph(arial(1e300), U'.'), &glyphs.glyph(arial(1000), U'.'));
    EXPECT_EQ(&glyphs.glyph(arial(std::numeric_limits<double>::quiet_NaN()), U'a'), &glyphs.glyph(arial(8), U'a'));
}

TEST(FreeTypeGlyphs, TheEnvironmentChangesNoLetter)
{
    FreeTypeGlyphs plain;
    auto const before = rows_of(plain.glyph(symbol(20), U'W'));
    auto const arial_before = rows_of(plain.glyph(arial(7), U'W'));
    ASSERT_EQ(setenv("FREETYPE_PROPERTIES",
                     "truetype:interpreter-version=35 cff:no-stem-darkening=0 "
                     "cff:darkening-parameters=500,500,1000,500,1667,500,2333,500",
                     1),
              0);
    FreeTypeGlyphs other;
    auto const after = rows_of(other.glyph(symbol(20), U'W'));
    auto const arial_after = rows_of(other.glyph(arial(7), U'W'));
    unsetenv("FREETYPE_PROPERTIES");
    EXPECT_EQ(after, before);
    EXPECT_EQ(arial_after, arial_before);
}

TEST(FreeTypeGlyphs, AMissingFileIsNamedTogetherWithItsPackage)
{
    FreeTypeGlyphs glyphs("/no/such/folder");
    struct Case {
        FontFace face;
        std::string file;
        std::string package;
    };
    for (Case const& missing : {Case{arial(), "/no/such/folder/LiberationSans-Regular.ttf", "fonts-liberation"},
                                Case{symbol(), "/no/such/folder/StandardSymbolsPS.otf", "fonts-urw-base35"}}) {
        try {
            glyphs.glyph(missing.face, U'a');
            ADD_FAILURE() << "nothing was thrown";
        } catch (Failure const& failure) {
            EXPECT_EQ(failure.kind(), FailureKind::FileError);
            EXPECT_NE(std::string(failure.what()).find(missing.file), std::string::npos) << failure.what();
            EXPECT_NE(std::string(failure.what()).find(missing.package), std::string::npos) << failure.what();
        }
        EXPECT_THROW(glyphs.line_metrics(missing.face), Failure) << "also at the second try";
    }
}

TEST(FreeTypeGlyphs, FontFilesMayLieInAnotherFolder)
{
    FreeTypeGlyphs system;
    FreeTypeGlyphs other("/usr/share/fonts/truetype/liberation");
    EXPECT_EQ(rows_of(other.glyph(arial(), U'R')), rows_of(system.glyph(arial(), U'R')));
    EXPECT_THROW(other.glyph(symbol(), U's'), Failure) << "the other face is not in that folder";
}

TEST(FreeTypeGlyphs, ATextOnAPictureIsAsWideAsItsInk)
{
    FreeTypeGlyphs glyphs;
    RasterPicture picture(200, 40, glyphs);
    picture.Font.size = 14;
    picture.ForeColor = 255;
    picture.CurrentX = 20;
    picture.CurrentY = 10;
    picture.Print("H1.25H");
    int left = 200, right = -1, top = 40, bottom = -1;
    auto const image = picture.image();
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 200; ++x)
            if (image->row(y)[x] == 255) {
                left = std::min(left, x), right = std::max(right, x);
                top = std::min(top, y), bottom = std::max(bottom, y);
            }
    EXPECT_GE(left, 20);
    EXPECT_LE(left, 22);
    EXPECT_NEAR(right, 20 + picture.TextWidth("H1.25H"), 3);
    EXPECT_GE(top, 10);
    EXPECT_LT(bottom, 10 + picture.TextHeight("H1.25H"));
    EXPECT_EQ(picture.CurrentX, 20 + picture.TextWidth("H1.25H"));
}

} // namespace zendara::test
