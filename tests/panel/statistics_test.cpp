#include "support/failure_kind.hpp"
#include "zendara/panel/load.hpp"
#include "zendara/panel/panel.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <variant>
#include <vector>

namespace zendara
{
namespace
{

void store(panel& record, std::vector<double> const& values)
{
    record.reset();
    record.SetNop(static_cast<double>(values.size()));
    for (double const Z : values)
        record.SetGridValue(0, 0, Z);
}

void fill(panel& record, std::vector<double> const& values)
{
    store(record, values);
    record.MaxMin();
}

bool is_integer_0(Value const& value)
{
    return std::holds_alternative<std::int16_t>(value) && std::get<std::int16_t>(value) == 0;
}

TEST(MaxMin, OneSiteHasNoSpreadAndLowALittleUnderIt)
{
    panel record;
    fill(record, {5});
    EXPECT_EQ(record.mean, 5);
    EXPECT_EQ(record.StdDev, 0);
    EXPECT_EQ(record.range, 0);
    EXPECT_EQ(std::get<double>(record.HiLo), 0.0);
    EXPECT_NEAR(record.Low, 4.499, 1e-12);
    EXPECT_EQ(record.Summe_Value, 5);
}

TEST(MaxMin, ALoneNegativeValueHasLowUnderItToo)
{
    panel record;
    fill(record, {-5});
    EXPECT_NEAR(record.Low, -5.501, 1e-12);
    EXPECT_EQ(std::get<double>(record.HiLo), 0.0);
}

TEST(MaxMin, ExtremesThatCancelGiveTheInteger0AsHiLo)
{
    panel record;
    fill(record, {-3, 3});
    EXPECT_TRUE(is_integer_0(record.HiLo));
    EXPECT_EQ(record.Low, -3);
    EXPECT_EQ(record.range, 6);
}

TEST(MaxMin, TwoSitesDivideTheSquaresBy1)
{
    panel record;
    fill(record, {1, 3});
    EXPECT_DOUBLE_EQ(record.StdDev, std::sqrt(2.0));
    EXPECT_EQ(record.mean, 2);
    EXPECT_DOUBLE_EQ(std::get<double>(record.HiLo), 50);
}

TEST(MaxMin, TheScaleLimitsAreThoseOfTheData)
{
    panel record;
    fill(record, {4, 2, 9});
    EXPECT_EQ(record.maxi, 9);
    EXPECT_EQ(record.mini, 2);
    EXPECT_EQ(record.maximal, 9);
    EXPECT_EQ(record.minimal, 2);
    EXPECT_EQ(record.Low, 2);
    EXPECT_EQ(record.Summe_Value, 15);
}

TEST(MaxMin, WithoutASiteTheBoundsFailureGoesToTheCaller)
{
    panel record;
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::SubscriptOutOfRange);
    record.SetNop(0);
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::SubscriptOutOfRange);
}

TEST(MaxMin, AnOverflowOfTheSumFails)
{
    panel record;
    store(record, {1e308, 1e308});
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::Overflow);
}

TEST(MaxMin, AnOverflowOfTheSquaresFailsWithTheMeanDone)
{
    panel record;
    store(record, {1e200, -1e200, 3});
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::Overflow);
    EXPECT_EQ(record.mean, 1);
    EXPECT_EQ(record.StdDev, 0);
}

TEST(MaxMin, APartOfASiteAtTheEndOfTheCountIsNotVisited)
{
    panel record;
    record.SetNop(2.6); // three elements, visited at 1 and 2
    record.SetGridValueD(1, 0, 0, 1);
    record.SetGridValueD(2, 0, 0, 2);
    record.OverwriteGridValue(3, 0, 0, 100);
    record.MaxMin();
    EXPECT_EQ(record.maxi, 2);
    EXPECT_DOUBLE_EQ(record.mean, 3 / 2.6);
}

TEST(SetMaximalMinial, MovesTheScaleAndLeavesTheData)
{
    panel record;
    fill(record, {4, 2, 9});
    double const mean = record.mean, deviation = record.StdDev;
    record.setMaximalMinial(30, 10);
    EXPECT_EQ(record.maximal, 30);
    EXPECT_EQ(record.minimal, 10);
    EXPECT_EQ(record.range, 20);
    EXPECT_EQ(std::get<double>(record.HiLo), 50.0);
    EXPECT_EQ(record.Low, 10);
    EXPECT_EQ(record.maxi, 9);
    EXPECT_EQ(record.mini, 2);
    EXPECT_EQ(record.mean, mean);
    EXPECT_EQ(record.StdDev, deviation);
}

TEST(SetMaximalMinial, EqualLimitsPutLowUnderThem)
{
    panel record;
    record.setMaximalMinial(10, 10);
    EXPECT_NEAR(record.Low, 8.999, 1e-12);
    record.setMaximalMinial(-10, -10);
    EXPECT_NEAR(record.Low, -11.001, 1e-12);
    record.setMaximalMinial(0, 0);
    EXPECT_TRUE(is_integer_0(record.HiLo));
    EXPECT_EQ(record.Low, -0.001);
}

TEST(SetMaximalMinial, LimitsThatCancelGiveTheInteger0AsHiLo)
{
    panel record;
    record.setMaximalMinial(4, -4);
    EXPECT_TRUE(is_integer_0(record.HiLo));
}

TEST(Gauss, IsTheStandardNormalDensityAtTheStandardisedValue)
{
    panel record;
    record.mean = 10;
    record.StdDev = 2;
    double const peak = 1 / std::sqrt(2 * std::numbers::pi);
    EXPECT_DOUBLE_EQ(record.Gauss(10), peak);
    EXPECT_DOUBLE_EQ(record.Gauss(12), peak * std::exp(-0.5));
    EXPECT_DOUBLE_EQ(record.Gauss(6), peak * std::exp(-2.0));
}

TEST(Gauss, AZeroDeviationFailsEvenAtTheMean)
{
    panel record;
    record.mean = 3;
    EXPECT_EQ(failure_of([&] { record.Gauss(3); }), FailureKind::DivisionByZero);
    EXPECT_EQ(failure_of([&] { record.Gauss(4); }), FailureKind::DivisionByZero);
}

TEST(GloblalValueSubMean, SumsTheSquaredDistancesFromTheGivenMean)
{
    panel record;
    fill(record, {1, 2, 4});
    double given = 2;
    EXPECT_EQ(record.Globlal_Value_Sub_Mean(given), 5);
    EXPECT_EQ(given, 2);
}

TEST(GloblalValueSubMean, MoreSitesThan16BitsOverflow)
{
    panel record;
    record.SetNop(32768);
    double given = 0;
    EXPECT_EQ(failure_of([&] { record.Globlal_Value_Sub_Mean(given); }), FailureKind::Overflow);
}

TEST(PointsOutCL, AValueOnALimitCountsInNeither)
{
    panel record;
    fill(record, {1, 2, 3, 4, 5, 5});
    double lower = 2, upper = 4;
    record.Points_OutCL(lower, upper);
    EXPECT_EQ(record.NptLCL, 1);
    EXPECT_EQ(record.NptUCL, 2);
    record.Points_OutCL(lower, upper);
    EXPECT_EQ(record.NptLCL, 1);
}

TEST(ApplyPlotLimit, RefusesALowerLimitThatIsNotBelowTheUpper)
{
    panel record;
    fill(record, {1, 9});
    EXPECT_FALSE(ApplyPlotLimit(record, 5, 5));
    EXPECT_FALSE(ApplyPlotLimit(record, 6, 5));
    EXPECT_EQ(record.maximal, 9);
    EXPECT_EQ(record.minimal, 1);
    EXPECT_TRUE(ApplyPlotLimit(record, 2, 5));
    EXPECT_EQ(record.maximal, 5);
    EXPECT_EQ(record.minimal, 2);
}

} // namespace
} // namespace zendara
