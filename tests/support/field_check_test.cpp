#include "zendara/support/field_check.hpp"

#include <gtest/gtest.h>

using namespace zendara;

namespace
{

struct Verdict {
    bool is_valid;
    std::string message;
    bool operator==(Verdict const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Verdict const& verdict)
{
    return out << (verdict.is_valid ? "valid" : "not valid") << ", \"" << verdict.message << '"';
}

Verdict check(std::string_view text, double lo = 0, double hi = 1000)
{
    std::string message;
    bool const is_valid = CheckField(text, lo, hi, message, "Resolution X ");
    return {is_valid, message};
}

Verdict const valid = {true, ""};
Verdict const not_valid = {false, "Resolution X not valid\n"};
Verdict const not_numeric = {false, "Resolution X must be numeric\n"};

} // namespace

TEST(CheckField, AnEmptyTextCanNotBe)
{
    EXPECT_EQ(check(""), (Verdict{false, "Resolution X can not be empty\n"}));
}

TEST(CheckField, LettersMustBeNumeric)
{
    for (auto const* text : {"abc", "-", "1,234.5", " ", "1e"})
        EXPECT_EQ(check(text), not_numeric) << text;
}

TEST(CheckField, TheBoundsLieOutside)
{
    EXPECT_EQ(check("1000"), not_valid);
    EXPECT_EQ(check("0"), not_valid);
    EXPECT_EQ(check("999.999"), valid);
    EXPECT_EQ(check("0.001"), valid);
    EXPECT_EQ(check("-1"), not_valid);
    EXPECT_EQ(check("1001"), not_valid);
}

TEST(CheckField, AnExponentIsNumeric)
{
    EXPECT_EQ(check("1e3", 0, 1001), valid);
    EXPECT_EQ(check("1e3", 0, 1000), not_valid);
}

TEST(CheckField, ACommaIsADecimalMark)
{
    EXPECT_EQ(check("12,5", 12.4, 12.6), valid);
    EXPECT_EQ(check("12,5", 12.5, 13), not_valid);
}

TEST(CheckField, ATextTooLargeForANumberIsNotNumeric)
{
    EXPECT_EQ(check("1e999"), not_numeric);
}

TEST(CheckField, TheMessageGrowsLineByLine)
{
    std::string message = "before\n";
    CheckField("", 0, 1, message, "Left ");
    CheckField("0.5", 0, 1, message, "Middle ");
    CheckField("2", 0, 1, message, "Right ");
    EXPECT_EQ(message, "before\nLeft can not be empty\nRight not valid\n");
}

TEST(CheckField, AnswersMinusOneForTrue)
{
    std::string message;
    EXPECT_EQ(CheckField("1", 0, 2, message, "").word, -1);
    EXPECT_EQ(CheckField("2", 0, 2, message, "").word, 0);
}

TEST(IsInRange, EmptyTextsAndLettersPass)
{
    EXPECT_TRUE(IsInRange("", 0, 10));
    EXPECT_TRUE(IsInRange("abc", 0, 10));
    EXPECT_TRUE(IsInRange("-", 0, 10));
}

TEST(IsInRange, ANumberHasToLieStrictlyBetweenTheBounds)
{
    EXPECT_TRUE(IsInRange("5", 0, 10));
    EXPECT_TRUE(IsInRange("9,99", 0, 10));
    EXPECT_FALSE(IsInRange("10", 0, 10));
    EXPECT_FALSE(IsInRange("0", 0, 10));
    EXPECT_FALSE(IsInRange("-1e5", 0, 10));
    EXPECT_FALSE(IsInRange("11", 0, 10));
}

TEST(IsWholeText, AnEmptyTextPasses)
{
    EXPECT_TRUE(IsWholeText(""));
}

TEST(IsWholeText, WholeNumbersPass)
{
    for (auto const* text : {"0", "12", "-3", "+4", " 5 ", "007"})
        EXPECT_TRUE(IsWholeText(text)) << text;
}

TEST(IsWholeText, MarksAndExponentsDoNotPass)
{
    for (auto const* text : {"12,5", "12.5", "12.", ",5", "1e3", "1E3", "1d3", "1D3"})
        EXPECT_FALSE(IsWholeText(text)) << text;
}

TEST(IsWholeText, WhatIsNoNumberDoesNotPass)
{
    for (auto const* text : {"abc", "-", " ", "1 2", "0x1"})
        EXPECT_FALSE(IsWholeText(text)) << text;
}

TEST(IsNumberText, AnEmptyTextDoesNotPass)
{
    EXPECT_FALSE(IsNumberText("", false));
    EXPECT_FALSE(IsNumberText("", true));
}

TEST(IsNumberText, EitherDecimalMarkPasses)
{
    for (auto const* text : {"12,5", "12.5", "-0.5", "12.", ",5", "7"})
        EXPECT_TRUE(IsNumberText(text, false)) << text;
}

TEST(IsNumberText, MoreThanOneMarkDoesNotPass)
{
    for (auto const* text : {"1,234.5", "1.2.3", "1,2,3"})
        EXPECT_FALSE(IsNumberText(text, false)) << text;
}

TEST(IsNumberText, ExponentsDoNotPass)
{
    for (auto const* text : {"1e3", "1E3", "1d3", "1D3"})
        EXPECT_FALSE(IsNumberText(text, true)) << text;
}

TEST(IsNumberText, ALoneMinusPassesOnlyWithTheFlag)
{
    EXPECT_FALSE(IsNumberText("-", false));
    EXPECT_TRUE(IsNumberText("-", true));
    EXPECT_EQ(IsNumberText("-", BooleanWord::from_word(5)).word, -1);
    EXPECT_FALSE(IsNumberText("+", true));
}
