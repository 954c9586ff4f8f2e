#include "failure_kind.hpp"
#include "zendara/support/host_array.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <span>
#include <vector>

using namespace zendara;

namespace
{

constexpr auto lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto highest = std::numeric_limits<std::int32_t>::max();

} // namespace

TEST(HostArray, ANewOneHasNoBoundsAndNoElement)
{
    HostArray<double> array;
    EXPECT_FALSE(array.is_dimensioned());
    EXPECT_EQ(failure_of([&] { array.lower_bound(); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(failure_of([&] { array.upper_bound(); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(failure_of([&] { array(0); }), FailureKind::SubscriptOutOfRange);
}

TEST(HostArray, KeepsTheBoundsAndValuesItIsMadeFrom)
{
    HostArray<double> const array(-1, {10, 20, 30});
    EXPECT_EQ(array.lower_bound(), -1);
    EXPECT_EQ(array.upper_bound(), 1);
    EXPECT_EQ(array(-1), 10);
    EXPECT_EQ(array(1), 30);
}

TEST(HostArray, AnIndexOutsideTheBoundsIsAFailure)
{
    HostArray<double> array(1, {10, 20});
    for (std::int32_t const index : {0, 3, -1, lowest, highest})
        EXPECT_EQ(failure_of([&] { array(index); }), FailureKind::SubscriptOutOfRange) << index;
}

TEST(HostArray, BoundsAtTheEndsOf32BitsAreChecked)
{
    HostArray<double> array(highest, {1.0});
    EXPECT_EQ(array.upper_bound(), highest);
    EXPECT_EQ(array(highest), 1.0);
    EXPECT_EQ(failure_of([&] { array(lowest); }), FailureKind::SubscriptOutOfRange);
}

TEST(HostArray, ElementsCanBeWritten)
{
    HostArray<double> array(0, {1, 2});
    array(1) = 5;
    EXPECT_EQ(array.values()[1], 5);
    array.values()[0] = 7;
    EXPECT_EQ(array(0), 7);
}

TEST(HostArray, RedimGivesNewBoundsAndForgetsTheValues)
{
    HostArray<double> array(0, {1, 2});
    array.redim(1, 3);
    EXPECT_EQ(array.lower_bound(), 1);
    EXPECT_EQ(array.upper_bound(), 3);
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(array(i), 0);
}

TEST(HostArray, RedimToOneBelowTheLowerBoundMakesItEmpty)
{
    HostArray<double> array;
    array.redim(1, 0);
    EXPECT_TRUE(array.is_dimensioned());
    EXPECT_EQ(array.upper_bound(), 0);
    EXPECT_EQ(failure_of([&] { array(1); }), FailureKind::SubscriptOutOfRange);
}

TEST(HostArray, RedimFurtherBelowIsAFailureAndKeepsTheArray)
{
    HostArray<double> array(0, {1, 2});
    EXPECT_EQ(failure_of([&] { array.redim(1, -1); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(failure_of([&] { array.redim(highest, lowest); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(array(1), 2);
}

TEST(HostArray, AnIndexIsNotCutTo32BitsBeforeItIsChecked)
{
    HostArray<double> const array(highest, {1, 2, 3});
    EXPECT_EQ(failure_of([&] { array(lowest); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(failure_of([&] { array(lowest + 1); }), FailureKind::SubscriptOutOfRange);
}

TEST(HostArray, AnUpperBoundBeyond32BitsIsAFailure)
{
    HostArray<double> const above(highest, {1, 2}), below(lowest, {});
    EXPECT_EQ(failure_of([&] { above.upper_bound(); }), FailureKind::Overflow);
    EXPECT_EQ(failure_of([&] { below.upper_bound(); }), FailureKind::Overflow);
    EXPECT_EQ(HostArray<double>(lowest, {1}).upper_bound(), lowest);
}

TEST(HostArrayView, HasTheBoundsAndTheElementsOfItsArray)
{
    HostArray<double> array(-1, {10, 20, 30});
    HostArrayView<double> const view = array;
    EXPECT_EQ(view.lower_bound(), -1);
    EXPECT_EQ(view.upper_bound(), 1);
    array(1) = 31;
    EXPECT_EQ(view(1), 31);
    EXPECT_EQ(view.values().size(), 3u);
    EXPECT_EQ(failure_of([&] { view(2); }), FailureKind::SubscriptOutOfRange);
}

TEST(HostArrayView, OfAnArrayWithoutBoundsHasNone)
{
    HostArray<double> const array;
    HostArrayView<double> const view = array;
    EXPECT_EQ(failure_of([&] { view.lower_bound(); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(failure_of([&] { view.upper_bound(); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(failure_of([&] { view(0); }), FailureKind::SubscriptOutOfRange);
}

TEST(HostArrayView, ValuesAloneCountFrom0)
{
    std::vector<double> values = {1, 2};
    for (HostArrayView<double> const& view : {HostArrayView<double>(values), HostArrayView<double>(std::span(values)),
                                              HostArrayView<double>(std::span<double const>(values))}) {
        EXPECT_EQ(view.lower_bound(), 0);
        EXPECT_EQ(view.upper_bound(), 1);
        EXPECT_EQ(view(1), 2);
    }
    HostArrayView<double> const counted(5, values);
    EXPECT_EQ(counted(6), 2);
    EXPECT_EQ(counted.lower_bound(), 5);
}

TEST(HostArray, AFailureNamesTheIndexOrTheBoundThatWasWrong)
{
    HostArray<double> array(1, {10, 20});
    EXPECT_EQ(message_of([&] { array(-7); }), "an index lies outside its array: -7");
    EXPECT_EQ(message_of([&] { array.redim(1, -5); }), "an array's upper bound lies below its lower bound: -5");
}

TEST(HostArray, EraseTakesValuesAndBoundsAway)
{
    HostArray<double> array(0, {1, 2});
    array.erase();
    EXPECT_FALSE(array.is_dimensioned());
    EXPECT_TRUE(array.values().empty());
    EXPECT_EQ(failure_of([&] { array(0); }), FailureKind::SubscriptOutOfRange);
}
