#include "zendara/render/surface/font.hpp"

#include <gtest/gtest.h>

#include <string>

namespace zendara::test
{

namespace
{

std::u32string letters_of(std::string_view text)
{
    std::u32string letters;
    while (!text.empty())
        letters.push_back(next_letter(text));
    return letters;
}

} // namespace

TEST(NextLetter, TakesLettersOfOneToFourBytes)
{
    EXPECT_EQ(letters_of("a\xC2\xB5\xE2\x82\xAC\xF0\x9D\x84\x9E!"), U"a\u00B5\u20AC\U0001D11E!");
    EXPECT_EQ(letters_of("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"),
              U"\x7F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF");
}

TEST(NextLetter, ABrokenByteComesAsItself)
{
    EXPECT_EQ(letters_of("\xB5m"), U"\u00B5m") << "in the middle of a letter";
    EXPECT_EQ(letters_of("\xE4x"), U"\u00E4x") << "without those that should follow";
    EXPECT_EQ(letters_of("\xE2\x82"), U"\u00E2\u0082") << "cut off at the end";
    EXPECT_EQ(letters_of("\xFF"), U"\u00FF");
    EXPECT_EQ(letters_of("\xF8"), U"\u00F8");
}

TEST(NextLetter, LettersThatAreWrittenTooLongOrDoNotExistAreBroken)
{
    EXPECT_EQ(letters_of("\xC1\x81"), U"\u00C1\u0081");
    EXPECT_EQ(letters_of("\xE0\x81\x81"), U"\u00E0\u0081\u0081");
    EXPECT_EQ(letters_of("\xED\xA0\x80"), U"\u00ED\u00A0\u0080") << "half of a pair";
    EXPECT_EQ(letters_of("\xF4\x90\x80\x80"), U"\u00F4\u0090\u0080\u0080") << "behind the last letter";
}

TEST(NextLetter, AnEmptyTextGivesZeroAndStaysEmpty)
{
    std::string_view text;
    EXPECT_EQ(next_letter(text), U'\0');
    EXPECT_TRUE(text.empty());
}

} // namespace zendara::test
