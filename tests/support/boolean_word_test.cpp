#include "zendara/support/boolean_word.hpp"

#include <gtest/gtest.h>

using namespace zendara;

TEST(BooleanWord, TrueIsMinusOneAndFalseIsZero)
{
    EXPECT_EQ(BooleanWord(true).word, -1);
    EXPECT_EQ(BooleanWord(false).word, 0);
    EXPECT_EQ(BooleanWord().word, 0);
}

TEST(BooleanWord, AnyWordButZeroTestsAsTrue)
{
    for (std::int16_t const word : {std::int16_t{1}, std::int16_t{5}, std::int16_t{-1}, std::int16_t{-32768}})
        EXPECT_TRUE(BooleanWord::from_word(word)) << word;
    EXPECT_FALSE(BooleanWord::from_word(0));
}

TEST(BooleanWord, KeepsTheWordItIsMadeFrom)
{
    EXPECT_EQ(BooleanWord::from_word(5).word, 5);
}
