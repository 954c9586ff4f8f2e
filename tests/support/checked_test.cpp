#include "failure_kind.hpp"
#include "zendara/support/checked.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

using namespace zendara;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();
constexpr double two_to_51 = 2251799813685248.0;

} // namespace

TEST(RoundHalfEven, HalvesGoToTheEvenNeighbour)
{
    EXPECT_EQ(round_half_even(0.5), 0);
    EXPECT_EQ(round_half_even(1.5), 2);
    EXPECT_EQ(round_half_even(2.5), 2);
    EXPECT_EQ(round_half_even(-0.5), 0);
    EXPECT_EQ(round_half_even(-1.5), -2);
    EXPECT_EQ(round_half_even(-2.5), -2);
}

TEST(RoundHalfEven, TheDoublesNextToAHalfGoToTheNearerNeighbour)
{
    EXPECT_EQ(round_half_even(std::nextafter(0.5, 0)), 0);
    EXPECT_EQ(round_half_even(std::nextafter(0.5, 1)), 1);
    EXPECT_EQ(round_half_even(std::nextafter(-0.5, -1)), -1);
    EXPECT_EQ(round_half_even(std::nextafter(2.5, 3)), 3);
}

TEST(RoundHalfEven, AgreesWithTheProcessorAroundTheEndOfTheFastWay)
{
    for (double const base : {two_to_51 / 2, two_to_51, two_to_51 * 2, two_to_51 * 4})
        for (double const sign : {1.0, -1.0})
            for (int quarters = -32; quarters <= 32; ++quarters) {
                double const value = sign * (base + quarters / 4.0);
                ASSERT_EQ(round_half_even(value), std::nearbyint(value)) << value;
            }
    double before = std::nextafter(two_to_51, 0);
    EXPECT_EQ(round_half_even(before), std::nearbyint(before));
}

TEST(RoundHalfEven, HugeValuesStayAsTheyAre)
{
    for (double const value : {1e16, -1e16, 1e300, -1e300, std::numeric_limits<double>::max(), infinity, -infinity})
        EXPECT_EQ(round_half_even(value), value);
}

TEST(RoundHalfEven, AgreesWithTheProcessorOnRandomNumbers)
{
    std::mt19937_64 engine(7);
    std::uniform_real_distribution<double> exponent(-3, 17);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    for (int i = 0; i < 100000; ++i) {
        double const value = mantissa(engine) * std::pow(10.0, exponent(engine));
        ASSERT_EQ(round_half_even(value), std::nearbyint(value)) << value;
        double const half = std::floor(value) + 0.5;
        ASSERT_EQ(round_half_even(half), std::nearbyint(half)) << half;
    }
}

TEST(RoundHalfEven, NoNumberStaysNone)
{
    EXPECT_TRUE(std::isnan(round_half_even(not_a_number)));
}

TEST(ToI16, TakesWhatRoundsIntoItsLimits)
{
    EXPECT_EQ(to_i16(32767.49), 32767);
    EXPECT_EQ(to_i16(-32768.5), -32768);
    EXPECT_EQ(to_i16(2.5), 2);
    EXPECT_EQ(to_i16(-0.4), 0);
}

TEST(ToI16, FailsWithOverflowBeyondThem)
{
    for (double const value : {32767.5, 32768.0, -32768.51, -32769.0, 1e300, infinity, -infinity, not_a_number})
        EXPECT_EQ(failure_of([&] { to_i16(value); }), FailureKind::Overflow) << value;
}

TEST(ToI32, TakesWhatRoundsIntoItsLimits)
{
    EXPECT_EQ(to_i32(2147483647.49), 2147483647);
    EXPECT_EQ(to_i32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(to_i32(3.5), 4);
}

TEST(ToI32, FailsWithOverflowBeyondThem)
{
    for (double const value : {2147483647.5, 2147483648.0, -2147483648.51, 1e300, infinity, -infinity, not_a_number})
        EXPECT_EQ(failure_of([&] { to_i32(value); }), FailureKind::Overflow) << value;
}

TEST(Finite, PassesNumbersAndFailsWithOverflowForTheRest)
{
    EXPECT_EQ(zendara::finite(std::numeric_limits<double>::max()), std::numeric_limits<double>::max());
    for (double const value : {infinity, -infinity, not_a_number})
        EXPECT_EQ(failure_of([&] { zendara::finite(value); }), FailureKind::Overflow) << value;
}

TEST(Divide, GivesTheQuotient)
{
    EXPECT_EQ(divide(1, 4), 0.25);
    EXPECT_EQ(divide(0, -4), 0);
}

TEST(Divide, ByZeroFailsWhateverTheDividend)
{
    for (double const dividend : {1.0, 0.0, -1.0})
        for (double const zero : {0.0, -0.0})
            EXPECT_EQ(failure_of([&] { divide(dividend, zero); }), FailureKind::DivisionByZero);
}

TEST(Divide, FailsWithOverflowWhereTheQuotientIsNotFinite)
{
    EXPECT_EQ(failure_of([] { divide(1e300, 1e-300); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([] { divide(not_a_number, 1); }), FailureKind::Overflow);
}

TEST(Nearest, RoundsHalfToEvenAndNeverFails)
{
    EXPECT_EQ(nearest_i16(2.5), 2);
    EXPECT_EQ(nearest_i16(32767.4), 32767);
    EXPECT_EQ(nearest_i16(1e300), 32767);
    EXPECT_EQ(nearest_i16(-1e300), -32768);
    EXPECT_EQ(nearest_i16(not_a_number), 0);
    EXPECT_EQ(nearest_i32(-3.5), -4);
    EXPECT_EQ(nearest_i32(2147483648.0), 2147483647);
    EXPECT_EQ(nearest_i32(-std::numeric_limits<double>::infinity()), -2147483647 - 1);
    EXPECT_EQ(nearest_i32(not_a_number), 0);
}

TEST(Checks, NameTheValueThatWasWrong)
{
    std::int16_t full = 32767;
    EXPECT_EQ(message_of([] { to_i16(-40000.5); }), "a number does not fit into 16 bits: -40000.5");
    EXPECT_EQ(message_of([] { to_i32(not_a_number); }), "a number does not fit into 32 bits: nan");
    EXPECT_EQ(message_of([] { to_f32(1e39); }), "a number does not fit into a 32-bit float: 1e+39");
    EXPECT_EQ(message_of([] { zendara::finite(-infinity); }), "the result of a calculation is not finite: -inf");
    EXPECT_EQ(message_of([] { divide(7.5, 0); }), "a number is divided by 0: 7.5");
    EXPECT_EQ(message_of([&] { count_on(full); }), "a 16-bit counter passes 32767");
}

TEST(CountOn, CountsTo32767AndFailsThere)
{
    std::int16_t counter = 32766;
    count_on(counter);
    EXPECT_EQ(counter, 32767);
    EXPECT_EQ(failure_of([&] { count_on(counter); }), FailureKind::Overflow);
    EXPECT_EQ(counter, 32767);
}

TEST(CountOn, CountsUpFromTheLowestCount)
{
    std::int16_t counter = -32768;
    count_on(counter);
    EXPECT_EQ(counter, -32767);
}
