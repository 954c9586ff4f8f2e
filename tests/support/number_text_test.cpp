#include "decimal_mark.hpp"
#include "failure_kind.hpp"
#include "zendara/support/number_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace zendara;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

struct Count {
    int digits;
    bool sci;
    bool operator==(Count const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Count const& count)
{
    return out << count.digits << (count.sci ? " scientific" : " ordinary");
}

Count integer_digits(double value, bool extra = false)
{
    BooleanWord sci;
    auto const digits = IntegerDigits(value, extra, sci);
    return {digits, sci};
}

Count decimal_digits(double value, std::int16_t field)
{
    BooleanWord sci;
    auto const digits = DecimalDigits(value, field, sci);
    return {digits, sci};
}

constexpr bool ordinary = false;
constexpr bool scientific = true;

} // namespace

// --- plain_text, signed_text ---------------------------------------------------------------------------------------

TEST(PlainText, WholeNumbersHaveNoDecimalMark)
{
    EXPECT_EQ(plain_text(0), "0");
    EXPECT_EQ(plain_text(-3), "-3");
    EXPECT_EQ(plain_text(1000000), "1000000");
}

TEST(PlainText, AFractionKeepsItsZeroInFront)
{
    EXPECT_EQ(plain_text(0.5), "0.5");
    EXPECT_EQ(plain_text(-0.25), "-0.25");
    EXPECT_EQ(plain_text(0.0001), "0.0001");
}

TEST(PlainText, ShowsFifteenSignificantDigits)
{
    EXPECT_EQ(plain_text(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(plain_text(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(plain_text(0.1 + 0.2), "0.3");
    EXPECT_EQ(plain_text(123456789.0123456789), "123456789.012346");
}

TEST(PlainText, TheExponentFormBeginsBelow0_0001)
{
    EXPECT_EQ(plain_text(0.00001), "1E-05");
    EXPECT_EQ(plain_text(-0.000099), "-9.9E-05");
    EXPECT_EQ(plain_text(0.00009999999999999999), "0.0001");
}

TEST(PlainText, TheExponentFormBeginsAt1E15)
{
    EXPECT_EQ(plain_text(1e15), "1E+15");
    EXPECT_EQ(plain_text(999999999999999.0), "999999999999999");
    EXPECT_EQ(plain_text(999999999999999.9), "1E+15");
    EXPECT_EQ(plain_text(1.5e300), "1.5E+300");
}

TEST(PlainText, ANegativeZeroIsZero)
{
    EXPECT_EQ(plain_text(-0.0), "0");
}

TEST(PlainText, TheExtremesOfADoubleShow)
{
    EXPECT_EQ(plain_text(std::numeric_limits<double>::max()), "1.79769313486232E+308");
    EXPECT_EQ(plain_text(std::numeric_limits<double>::min()), "2.2250738585072E-308");
    EXPECT_EQ(plain_text(std::numeric_limits<double>::denorm_min()), "4.94065645841247E-324");
}

TEST(PlainText, ShowsTheDecimalMarkOfTheLocale)
{
    DecimalMark const comma(",");
    EXPECT_EQ(plain_text(0.5), "0,5");
    EXPECT_EQ(plain_text(1.5e-7), "1,5E-07");
    EXPECT_EQ(plain_text(12), "12");
}

TEST(PlainText, WhatIsNoFiniteNumberShowsAsAWord)
{
    EXPECT_EQ(plain_text(infinity), "inf");
    EXPECT_EQ(plain_text(-infinity), "-inf");
    EXPECT_EQ(plain_text(not_a_number), "nan");
}

TEST(SignedText, OnlyANegativeNumberHasNoBlankInFront)
{
    EXPECT_EQ(signed_text(12.5), " 12.5");
    EXPECT_EQ(signed_text(0), " 0");
    EXPECT_EQ(signed_text(-0.0), " 0");
    EXPECT_EQ(signed_text(-12.5), "-12.5");
}

// --- parse_number --------------------------------------------------------------------------------------------------

TEST(ParseNumber, ReadsCommaAndPointAlike)
{
    EXPECT_EQ(parse_number("12,5"), 12.5);
    EXPECT_EQ(parse_number("12.5"), 12.5);
    DecimalMark const comma(",");
    EXPECT_EQ(parse_number("12.5"), 12.5);
}

TEST(ParseNumber, AllowsBlanksAround)
{
    EXPECT_EQ(parse_number("  42\t"), 42);
    EXPECT_EQ(parse_number(" -0.5 "), -0.5);
}

TEST(ParseNumber, BlanksInsideMakeItNoNumber)
{
    for (auto const* text : {"1 2", "- 5", "1 e3", "1e 3", "1. 5"})
        EXPECT_EQ(parse_number(text), std::nullopt) << text;
}

TEST(ParseNumber, ReadsASignInFront)
{
    EXPECT_EQ(parse_number("+7"), 7);
    EXPECT_EQ(parse_number("-7"), -7);
    EXPECT_TRUE(std::signbit(*parse_number("-0")));
}

TEST(ParseNumber, AMarkMayStandAtEitherEnd)
{
    EXPECT_EQ(parse_number("5."), 5);
    EXPECT_EQ(parse_number(".5"), 0.5);
    EXPECT_EQ(parse_number("-,5"), -0.5);
}

TEST(ParseNumber, ReadsAnExponentBehindAnyOfFourLetters)
{
    for (auto const* text : {"1e3", "1E3", "1d3", "1D3", "1e+3", "1.E+03", "10000d-1"})
        EXPECT_EQ(parse_number(text), 1000.0) << text;
}

TEST(ParseNumber, TextsThatAreNoNumbersGiveNothing)
{
    for (auto const* text :
         {"",      " ",    "-",        "+",       ".",     ",",     "-.",    "e3",  ".e3", "1e",   "1e+",
          "1e3.5", "1ee3", "1e3e3",    "1,234.5", "1.2.3", "1,,2",  "--1",   "+-1", "1-",  "0x10", "10h",
          "inf",   "nan",  "INFINITY", "abc",     "12a",   "1_000", "1'000", "$5",  "5%"})
        EXPECT_EQ(parse_number(text), std::nullopt) << text;
}

TEST(ParseNumber, ATextWithAZeroByteIsNoNumber)
{
    EXPECT_EQ(parse_number(std::string_view("12\0", 3)), std::nullopt);
    EXPECT_EQ(parse_number(std::string_view("1\0002", 3)), std::nullopt);
}

TEST(ParseNumber, ANumberTooLargeForADoubleGivesNothing)
{
    EXPECT_EQ(parse_number("1e309"), std::nullopt);
    EXPECT_EQ(parse_number("-1e309"), std::nullopt);
    EXPECT_EQ(parse_number("1e99999999999999999999999"), std::nullopt);
    EXPECT_EQ(parse_number("1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(ParseNumber, ANumberTooSmallForADoubleIsZero)
{
    EXPECT_EQ(parse_number("1e-400"), 0.0);
    EXPECT_EQ(parse_number("1e-99999999999999999999999"), 0.0);
    EXPECT_EQ(parse_number("4.9e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(ParseNumber, ZeroStaysZeroWithAnyExponent)
{
    EXPECT_EQ(parse_number("0e99999999999"), 0.0);
}

TEST(ParseNumber, LongTextsAreExactlyRounded)
{
    EXPECT_EQ(parse_number("0.1000000000000000055511151231257827021181583404541015625"), 0.1);
    // Just above the middle between 1 and its next Double.
    EXPECT_EQ(parse_number("1.00000000000000011102230246251565404236316680908203126"), 1.0000000000000002);
    EXPECT_EQ(parse_number("1.00000000000000011102230246251565404236316680908203125"), 1.0);
    EXPECT_EQ(parse_number("1" + std::string(400, '0') + "e-400"), 1.0);
    EXPECT_EQ(parse_number("0." + std::string(400, '0') + "1e401"), 1.0);
}

// --- format_mask ---------------------------------------------------------------------------------------------------

TEST(FormatMask, AZeroAlwaysShowsADigitAndASharpOnlyOneThatCounts)
{
    EXPECT_EQ(format_mask(3.5, "0.00"), "3.50");
    EXPECT_EQ(format_mask(3.5, "00.00"), "03.50");
    EXPECT_EQ(format_mask(3.5, "0.0###"), "3.5");
    EXPECT_EQ(format_mask(3.25, "0.0###"), "3.25");
    EXPECT_EQ(format_mask(0, "00.00"), "00.00");
}

TEST(FormatMask, WithoutAZeroInFrontTheIntegerPartOfAFractionIsEmpty)
{
    EXPECT_EQ(format_mask(0.25, "#.##"), ".25");
    EXPECT_EQ(format_mask(0.25, ".##"), ".25");
}

TEST(FormatMask, APointInTheMaskAlwaysShows)
{
    EXPECT_EQ(format_mask(5, "0.##"), "5.");
    EXPECT_EQ(format_mask(100000, "0.###E+#0"), "1.E+5");
    EXPECT_EQ(format_mask(5, "0"), "5");
}

TEST(FormatMask, TheMaskOfABarePointEndsWithTheDecimalMark)
{
    EXPECT_EQ(format_mask(0.5, ".").back(), '.');
    DecimalMark const comma(",");
    EXPECT_EQ(format_mask(0.5, ".").back(), ',');
}

TEST(FormatMask, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(format_mask(0.125, "0.00"), "0.13");
    EXPECT_EQ(format_mask(-0.125, "0.00"), "-0.13");
    EXPECT_EQ(format_mask(2.5, "0"), "3");
    EXPECT_EQ(format_mask(0.5, "0"), "1");
    EXPECT_EQ(format_mask(0.49, "0"), "0");
    EXPECT_EQ(format_mask(0.05, "0.0"), "0.1");
    EXPECT_EQ(format_mask(0.005, "0.0"), "0.0");
}

TEST(FormatMask, RoundsTheFifteenDigitTextAndNotTheBinaryNumber)
{
    // The Double next to 1.005 lies below it.
    EXPECT_EQ(format_mask(1.005, "0.00"), "1.01");
    EXPECT_EQ(format_mask(0.285, "0.00"), "0.29");
}

TEST(FormatMask, RoundingCarriesThroughNines)
{
    EXPECT_EQ(format_mask(9.996, "0.00"), "10.00");
    EXPECT_EQ(format_mask(0.9996, "0.0##"), "1.0");
    EXPECT_EQ(format_mask(9.9996, "0.###E+#0"), "1.E+1");
    EXPECT_EQ(format_mask(999999, "0.00E+00"), "1.00E+06");
    EXPECT_EQ(format_mask(0.0995, "0.00"), "0.10");
}

TEST(FormatMask, LargeIntegerPartsShowWhole)
{
    EXPECT_EQ(format_mask(1234567, "0.0"), "1234567.0");
    EXPECT_EQ(format_mask(1e20, "0.0"), "100000000000000000000.0");
}

TEST(FormatMask, DigitsBeyondTheFifteenSignificantOnesAreZeros)
{
    EXPECT_EQ(format_mask(1.0 / 3, "0.00000000000000000000"), "0.33333333333333300000");
    EXPECT_EQ(format_mask(12345678901234567890.0, "0"), "12345678901234600000");
}

TEST(FormatMask, ManyDecimalsShowATinyNumber)
{
    EXPECT_EQ(format_mask(1e-300, "0." + std::string(300, '0')), "0." + std::string(299, '0') + "1");
}

TEST(FormatMask, ANegativeNumberKeepsItsSignWhereOnlyZerosShow)
{
    EXPECT_EQ(format_mask(-0.001, "0.00"), "-0.00");
    EXPECT_EQ(format_mask(-0.0, "0.00"), "0.00");
}

TEST(FormatMask, TheExponentShowsItsSignAndItsLeastCountOfDigits)
{
    EXPECT_EQ(format_mask(1e-8, "0.###E+#0"), "1.E-8");
    EXPECT_EQ(format_mask(1.2345e123, "0.###E+#0"), "1.235E+123");
    EXPECT_EQ(format_mask(0, "0.###E+#0"), "0.E+0");
    EXPECT_EQ(format_mask(-123456, "0.###E+#0"), "-1.235E+5");
}

TEST(FormatMask, TheMantissaFillsAllDigitPlacesInFrontOfThePoint)
{
    EXPECT_EQ(format_mask(12345, "00.0E+0"), "12.3E+3");
    EXPECT_EQ(format_mask(0.5, "00.0E+0"), "50.0E-2");
}

TEST(FormatMask, ShowsTheDecimalMarkOfTheLocale)
{
    DecimalMark const comma(",");
    EXPECT_EQ(format_mask(1.5, "0.00"), "1,50");
    EXPECT_EQ(format_mask(1.5e9, "0.###E+#0"), "1,5E+9");
}

TEST(FormatMask, WhatIsNoFiniteNumberShowsAsAWord)
{
    EXPECT_EQ(format_mask(-infinity, "0.00"), "-inf");
    EXPECT_EQ(format_mask(not_a_number, "0.###E+#0"), "nan");
}

// --- format_scientific ---------------------------------------------------------------------------------------------

TEST(FormatScientific, HasTwoDecimalsAndAnExponentOfAtLeastTwoDigits)
{
    EXPECT_EQ(format_scientific(123456), "1.23E+05");
    EXPECT_EQ(format_scientific(-0.00001), "-1.00E-05");
    EXPECT_EQ(format_scientific(1e-100), "1.00E-100");
    EXPECT_EQ(format_scientific(0), "0.00E+00");
    EXPECT_EQ(format_scientific(7), "7.00E+00");
}

TEST(FormatScientific, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(format_scientific(1.125), "1.13E+00");
    EXPECT_EQ(format_scientific(-1.125), "-1.13E+00");
    EXPECT_EQ(format_scientific(9.995), "1.00E+01");
}

// --- format_label --------------------------------------------------------------------------------------------------

TEST(FormatLabel, ZeroIsTheText0_0)
{
    EXPECT_EQ(format_label(0), "0.0");
    EXPECT_EQ(format_label(-0.0), "0.0");
    DecimalMark const comma(",");
    EXPECT_EQ(format_label(0), "0.0");
}

TEST(FormatLabel, BelowOneSevenDecimalsShow)
{
    EXPECT_EQ(format_label(0.123456789), "0.1234568");
    EXPECT_EQ(format_label(-0.5), "-0.5");
    EXPECT_EQ(format_label(0.99999999), "1.0");
}

TEST(FormatLabel, FromOneTo10000FourDecimalsShow)
{
    EXPECT_EQ(format_label(1), "1.0");
    EXPECT_EQ(format_label(1.23456), "1.2346");
    EXPECT_EQ(format_label(-9999.12345), "-9999.1235");
    EXPECT_EQ(format_label(10000), "10000.0");
}

TEST(FormatLabel, Above10000TwoDecimalsShow)
{
    EXPECT_EQ(format_label(10000.126), "10000.13");
    EXPECT_EQ(format_label(-99999.5), "-99999.5");
}

TEST(FormatLabel, ThePlainFormEndsWith100000)
{
    EXPECT_EQ(format_label(100000), "100000.0");
    EXPECT_EQ(format_label(-100000), "-100000.0");
    EXPECT_EQ(format_label(100001), "1.E+5");
    EXPECT_EQ(format_label(-123456), "-1.235E+5");
}

TEST(FormatLabel, ThePlainFormBeginsWith1EMinus07)
{
    EXPECT_EQ(format_label(1e-07), "0.0000001");
    EXPECT_EQ(format_label(1e-08), "1.E-8");
    EXPECT_EQ(format_label(-9.9e-08), "-9.9E-8");
}

TEST(FormatLabel, ShowsTheDecimalMarkOfTheLocale)
{
    DecimalMark const comma(",");
    EXPECT_EQ(format_label(1.5), "1,5");
    EXPECT_EQ(format_label(1500000), "1,5E+6");
}

TEST(FormatLabel, WhatIsNoFiniteNumberShowsAsAWord)
{
    EXPECT_EQ(format_label(infinity), "inf");
    EXPECT_EQ(format_label(not_a_number), "nan");
}

// --- IntegerDigits -------------------------------------------------------------------------------------------------

TEST(IntegerDigits, CountsTheSignPlaceAndTheDigitsOfTheRoundedNumber)
{
    EXPECT_EQ(integer_digits(123), (Count{4, ordinary}));
    EXPECT_EQ(integer_digits(-123), (Count{4, ordinary}));
    EXPECT_EQ(integer_digits(9.6), (Count{3, ordinary}));
    EXPECT_EQ(integer_digits(9.5), (Count{3, ordinary}));
    EXPECT_EQ(integer_digits(8.5), (Count{2, ordinary}));
    EXPECT_EQ(integer_digits(0.4), (Count{2, ordinary}));
}

TEST(IntegerDigits, OrdinaryNumbersReachFrom0_0001To100000)
{
    EXPECT_EQ(integer_digits(100000), (Count{7, ordinary}));
    EXPECT_EQ(integer_digits(-100000), (Count{7, ordinary}));
    EXPECT_EQ(integer_digits(0.0001), (Count{2, ordinary}));
}

TEST(IntegerDigits, AnyOtherNumberIsScientificWithOneDigit)
{
    for (double const value : {100000.5, -100001.0, 0.00009, -0.00009, 0.0, infinity, not_a_number})
        EXPECT_EQ(integer_digits(value), (Count{1, scientific})) << value;
}

TEST(IntegerDigits, ExtraAddsOne)
{
    EXPECT_EQ(integer_digits(123, true), (Count{5, ordinary}));
    EXPECT_EQ(integer_digits(1e9, true), (Count{2, scientific}));
}

TEST(IntegerDigits, TakesSciBackForAnOrdinaryNumber)
{
    BooleanWord sci = true;
    IntegerDigits(5, false, sci);
    EXPECT_FALSE(sci);
}

// --- DecimalDigits -------------------------------------------------------------------------------------------------

TEST(DecimalDigits, AreWhatTheIntegerPartAndTheSignPlaceLeaveOfTheField)
{
    EXPECT_EQ(decimal_digits(123.456, 9), (Count{5, ordinary}));
    EXPECT_EQ(decimal_digits(0.5, 6), (Count{4, ordinary}));
    EXPECT_EQ(decimal_digits(99.7, 6), (Count{2, ordinary}));
}

TEST(DecimalDigits, ANegativeNumberHasOneLess)
{
    EXPECT_EQ(decimal_digits(-123.456, 9), (Count{4, ordinary}));
    EXPECT_EQ(decimal_digits(-0.3, 9), (Count{6, ordinary}));
}

TEST(DecimalDigits, AreNeverLessThanZero)
{
    EXPECT_EQ(decimal_digits(12345.5, 4), (Count{0, ordinary}));
    EXPECT_EQ(decimal_digits(0, -5), (Count{0, ordinary}));
}

TEST(DecimalDigits, WithoutAFieldAWholeNumberHasNone)
{
    EXPECT_EQ(decimal_digits(123, 0), (Count{0, ordinary}));
    EXPECT_EQ(decimal_digits(0, 0), (Count{0, ordinary}));
    EXPECT_EQ(decimal_digits(-123, 0), (Count{0, ordinary}));
}

TEST(DecimalDigits, WithoutAFieldAFractionHasItsNaturalCount)
{
    EXPECT_EQ(decimal_digits(0.25, 0), (Count{2, ordinary}));
    EXPECT_EQ(decimal_digits(2.5, 0), (Count{1, ordinary}));
    EXPECT_EQ(decimal_digits(1.125, -3), (Count{3, ordinary}));
}

TEST(DecimalDigits, TheNaturalCountLeavesTheSignOfTheFractionOut)
{
    EXPECT_EQ(decimal_digits(1.75, 0), (Count{2, ordinary})); // 2 - 0.25
    EXPECT_EQ(decimal_digits(-0.25, 0), (Count{2, ordinary}));
    EXPECT_EQ(decimal_digits(-0.25, 1), (Count{2, ordinary})); // the sign uses the field up
}

TEST(DecimalDigits, TheNaturalCountIsThatOfTheBinaryRemainder)
{
    EXPECT_EQ(decimal_digits(100.1, 0), (Count{16, ordinary})); // of 0.0999999999999943
}

TEST(DecimalDigits, TheNaturalCountDoesNotDependOnTheLengthOfTheDecimalMark)
{
    DecimalMark const arabic("\xD9\xAB");
    EXPECT_EQ(decimal_digits(0.25, 0), (Count{2, ordinary}));
}

TEST(DecimalDigits, ATinyNegativeNumberStaysOrdinaryAndATinyPositiveOneDoesNot)
{
    EXPECT_EQ(decimal_digits(-0.00001, 9), (Count{6, ordinary}));
    EXPECT_EQ(decimal_digits(0.00001, 9), (Count{2, scientific}));
}

TEST(DecimalDigits, OfAScientificNumberFollowTheFieldFrom9On)
{
    EXPECT_EQ(decimal_digits(1e6, 8), (Count{2, scientific}));
    EXPECT_EQ(decimal_digits(1e6, 9), (Count{2, scientific}));
    EXPECT_EQ(decimal_digits(1e6, 10), (Count{3, scientific}));
    EXPECT_EQ(decimal_digits(-1e6, 10), (Count{2, scientific}));
    EXPECT_EQ(decimal_digits(-1e6, 11), (Count{3, scientific}));
    EXPECT_EQ(decimal_digits(1e6, 0), (Count{2, scientific}));
}

TEST(DecimalDigits, OrdinaryNumbersReachTo100000)
{
    EXPECT_EQ(decimal_digits(100000, 9), (Count{2, ordinary}));
    EXPECT_EQ(decimal_digits(-100000, 9), (Count{1, ordinary}));
    EXPECT_EQ(decimal_digits(100000.5, 9), (Count{2, scientific}));
    EXPECT_EQ(decimal_digits(-100000.5, 12), (Count{4, scientific}));
}

TEST(DecimalDigits, WhatIsNoFiniteNumberIsScientific)
{
    for (double const value : {infinity, -infinity, not_a_number})
        EXPECT_EQ(decimal_digits(value, 4), (Count{2, scientific})) << value;
}

TEST(DecimalDigits, ASumBelow16BitsIsAnOverflow)
{
    BooleanWord sci;
    EXPECT_EQ(failure_of([&] { DecimalDigits(-1, -32768, sci); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([&] { DecimalDigits(1, -32768, sci); }), std::nullopt);
}

TEST(DecimalDigits, TakesSciBackForAnOrdinaryNumber)
{
    BooleanWord sci = true;
    DecimalDigits(5, 6, sci);
    EXPECT_FALSE(sci);
}

// --- FormatFixed ---------------------------------------------------------------------------------------------------

TEST(FormatFixed, CutsDigitsAndDoesNotRound)
{
    EXPECT_EQ(FormatFixed(1.999, 0, 2, false), "1.99");
    EXPECT_EQ(FormatFixed(-1.999, 0, 2, false), "-1.99");
    EXPECT_EQ(FormatFixed(0.99999, 0, 1, false), "0.9");
}

TEST(FormatFixed, RoundsToTenDecimalsBeforeItCuts)
{
    EXPECT_EQ(FormatFixed(1.99999999999, 0, 2, false), "2.00");
    EXPECT_EQ(FormatFixed(1.9999999999, 0, 2, false), "1.99");
}

TEST(FormatFixed, PadsDecimalsWithZeros)
{
    EXPECT_EQ(FormatFixed(12.5, 0, 3, false), "12.500");
    EXPECT_EQ(FormatFixed(12, 0, 2, false), "12.00");
    EXPECT_EQ(FormatFixed(1.0 / 3, 0, 14, false), "0.33333333330000");
}

TEST(FormatFixed, WithoutDecimalsTheMarkGoesToo)
{
    EXPECT_EQ(FormatFixed(12.9, 0, 0, false), "12");
    EXPECT_EQ(FormatFixed(12.9, 0, -1, false), "12");
    EXPECT_EQ(FormatFixed(-0.9, 0, 0, false), "-0");
}

TEST(FormatFixed, AlignsRightInTheField)
{
    EXPECT_EQ(FormatFixed(12.5, 8, 2, false), "   12.50");
    EXPECT_EQ(FormatFixed(12.5, 5, 2, false), "12.50");
}

TEST(FormatFixed, ALongerTextLosesItsLeftPart)
{
    EXPECT_EQ(FormatFixed(12.5, 4, 3, false), ".500");
    EXPECT_EQ(FormatFixed(123456, 3, 0, false), "456");
}

TEST(FormatFixed, WithoutAFieldTheTextKeepsItsLength)
{
    EXPECT_EQ(FormatFixed(12.5, 0, 1, false), "12.5");
    EXPECT_EQ(FormatFixed(12.5, -4, 1, false), "12.5");
}

TEST(FormatFixed, SciGivesTheScientificForm)
{
    EXPECT_EQ(FormatFixed(123456, 0, 5, true), "1.23E+05");
    EXPECT_EQ(FormatFixed(0.00001, 0, 0, true), "1.00E-05");
}

TEST(FormatFixed, TheScientificFormIsAlignedInTheFieldToo)
{
    EXPECT_EQ(FormatFixed(123456, 10, 5, true), "  1.23E+05");
    EXPECT_EQ(FormatFixed(123456, 4, 5, true), "E+05");
}

TEST(FormatFixed, LargeIntegerPartsShowWhole)
{
    EXPECT_EQ(FormatFixed(12345678901234.0, 0, 1, false), "12345678901234.0");
    EXPECT_EQ(FormatFixed(1e17, 0, 1, false), "100000000000000000.0");
}

TEST(FormatFixed, ShowsTheDecimalMarkOfTheLocale)
{
    DecimalMark const comma(",");
    EXPECT_EQ(FormatFixed(1.999, 0, 2, false), "1,99");
    EXPECT_EQ(FormatFixed(123456, 0, 2, true), "1,23E+05");
    EXPECT_EQ(FormatFixed(12.9, 0, 0, false), "12");
}

TEST(FormatFixed, AMarkOfSeveralBytesCountsAsOneCharacter)
{
    DecimalMark const arabic("\xD9\xAB");
    EXPECT_EQ(FormatFixed(1.999, 5, 2, false), " 1\xD9\xAB"
                                               "99");
    EXPECT_EQ(FormatFixed(1.999, 3, 2, false), "\xD9\xAB"
                                               "99");
}

TEST(FormatFixed, ATextWithoutAMarkGetsOneAndItsZeros)
{
    EXPECT_EQ(FormatFixed(infinity, 0, 2, false), "inf.00");
    EXPECT_EQ(FormatFixed(infinity, 0, 0, false), "inf");
    EXPECT_EQ(FormatFixed(not_a_number, 5, 0, false), "  nan");
}

TEST(FormatFixed, ALengthBeyond16BitsIsAnOverflow)
{
    EXPECT_EQ(failure_of([] { FormatFixed(1.5, 0, 32766, false); }), FailureKind::Overflow);
    EXPECT_EQ(FormatFixed(1.5, 0, 32765, false).size(), 32767u);
}

TEST(FormatFixed, TheLargestFieldIsFilled)
{
    EXPECT_EQ(FormatFixed(1.5, 32767, 1, false).size(), 32767u);
}
