#include "support/failure_kind.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/support/process_state.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <variant>
#include <vector>

namespace zendara
{
namespace
{

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct StoredSite {
    double x, y, Z;
    bool operator==(StoredSite const&) const = default;
};

StoredSite site(panel const& record, std::int16_t number)
{
    HostArray<double> position(1, {-1, -1});
    double const Z = record.GetGridValue(number, position);
    return {position(1), position(2), Z};
}

TEST(Panel, ANewOneHasTheTenIntervalColoursAndNoData)
{
    panel const record;
    EXPECT_EQ(record.col1, 128);
    EXPECT_EQ(record.col3, rgb(255, 255, 0));
    EXPECT_EQ(record.col10, rgb(128, 0, 128));
    EXPECT_EQ(record.ColS2, rgb(0, 128, 0));
    EXPECT_TRUE(record.changeResx);
    EXPECT_FALSE(record.FW_NUll);
    EXPECT_EQ(record.GetNop(), 0);
    EXPECT_TRUE(std::holds_alternative<Empty>(record.HiLo));
}

TEST(Panel, CreationLeavesTheDecimalSeparatorAsItIs)
{
    set_decimal_separator("#");
    panel const record;
    EXPECT_EQ(decimal_separator(), "#");
    set_decimal_separator("");
}

TEST(SetNop, GivesAllSitesZeroAndForgetsTheOldOnes)
{
    panel record;
    record.SetNop(3);
    record.SetGridValue(1, 2, 3);
    record.SetNop(4);
    EXPECT_EQ(record.GetNop(), 4);
    for (std::int16_t i = 1; i <= 4; ++i)
        EXPECT_EQ(site(record, i), (StoredSite{0, 0, 0}));
    EXPECT_EQ(failure_of([&] { site(record, 5); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(failure_of([&] { site(record, 0); }), FailureKind::SubscriptOutOfRange);
}

TEST(SetNop, RoundsItsBoundsHalfToEvenAndKeepsTheNumber)
{
    panel record;
    record.SetNop(2.5);
    EXPECT_EQ(record.GetNop(), 2.5);
    site(record, 2);
    EXPECT_EQ(failure_of([&] { site(record, 3); }), FailureKind::SubscriptOutOfRange);
    record.SetNop(3.5);
    site(record, 4);
}

TEST(SetNop, ZeroLeavesNoSiteWithoutAFailure)
{
    panel record;
    record.SetNop(0);
    EXPECT_EQ(failure_of([&] { site(record, 1); }), FailureKind::SubscriptOutOfRange);
}

TEST(SetNop, ANegativeOrHugeCountFailsAfterTheNumberIsStored)
{
    panel record;
    EXPECT_EQ(failure_of([&] { record.SetNop(-1); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(record.GetNop(), -1);
    EXPECT_EQ(failure_of([&] { record.SetNop(1e10); }), FailureKind::Overflow);
    EXPECT_EQ(record.GetNop(), 1e10);
    EXPECT_EQ(failure_of([&] { record.SetNop(nan); }), FailureKind::Overflow);
}

TEST(SetGridValue, StoresInTheOrderOfTheCallsAndIgnoresSurplusOnes)
{
    panel record;
    record.SetNop(2);
    record.SetGridValue(1, 2, 3);
    record.SetGridValue(4, 5, 6);
    record.SetGridValue(7, 8, -9);
    EXPECT_EQ(site(record, 1), (StoredSite{1, 2, 3}));
    EXPECT_EQ(site(record, 2), (StoredSite{4, 5, 6}));
    EXPECT_FALSE(record.FW_Negativ);
}

TEST(SetGridValue, DoesNothingBeforeSetNop)
{
    panel record;
    record.SetGridValue(1, 2, -3);
    EXPECT_FALSE(record.FW_Negativ);
    EXPECT_EQ(record.GetNop(), 0);
}

TEST(SetGridValue, ASiteNumberBeyond16BitsOverflows)
{
    panel record;
    record.SetNop(40000);
    for (int i = 0; i < 32767; ++i)
        record.SetGridValue(1, 2, 3);
    EXPECT_EQ(failure_of([&] { record.SetGridValue(1, 2, 3); }), FailureKind::Overflow);
    EXPECT_EQ(site(record, 32767), (StoredSite{1, 2, 3}));
}

TEST(SetGridValue, AMagnitudeBelow1em15IsStoredAsZeroAndOnlySetsTheZeroFlag)
{
    for (double const Z : {0.0, -0.0, 5e-16, -5e-16, std::nextafter(1e-15, 0), std::nextafter(-1e-15, 0)}) {
        panel record;
        record.SetNop(1);
        record.SetGridValue(0, 0, Z);
        EXPECT_EQ(site(record, 1).Z, 0) << Z;
        EXPECT_FALSE(std::signbit(site(record, 1).Z)) << Z;
        EXPECT_EQ(record.FW_NUll.word, -1) << Z;
        EXPECT_EQ(record.FW_Negativ.word, 0) << Z;
    }
}

TEST(SetGridValue, TheBorder1em15ItselfIsARealValue)
{
    panel record;
    record.SetNop(2);
    record.SetGridValue(0, 0, 1e-15);
    EXPECT_EQ(site(record, 1).Z, 1e-15);
    EXPECT_FALSE(record.FW_Negativ);
    record.SetGridValue(0, 0, -1e-15);
    EXPECT_EQ(site(record, 2).Z, -1e-15);
    EXPECT_FALSE(record.FW_NUll);
    EXPECT_EQ(record.FW_Negativ.word, -1);
}

TEST(SetGridValue, TakesCoordinatesThatAreNotFinite)
{
    panel record;
    record.SetNop(1);
    record.SetGridValue(std::numeric_limits<double>::infinity(), nan, 3);
    EXPECT_EQ(site(record, 1).x, std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(site(record, 1).y));
}

TEST(SetGridValueD, FillsItsSiteAndLeavesTheNextOneToSetGridValue)
{
    panel record;
    record.SetNop(3);
    record.SetGridValueD(2, 1, 2, 3);
    record.SetGridValueD(4, 1, 2, -3);
    record.SetGridValue(4, 5, 6);
    EXPECT_EQ(site(record, 2), (StoredSite{1, 2, 3}));
    EXPECT_EQ(site(record, 1), (StoredSite{4, 5, 6}));
    EXPECT_FALSE(record.FW_Negativ);
    EXPECT_EQ(failure_of([&] { record.SetGridValueD(0, 1, 2, 3); }), FailureKind::SubscriptOutOfRange);
}

TEST(OverwriteGridValue, FailsOutsideTheSitesOnBothEnds)
{
    panel record;
    record.SetNop(3);
    record.OverwriteGridValue(3, 1, 2, -3);
    EXPECT_EQ(site(record, 3), (StoredSite{1, 2, -3}));
    EXPECT_TRUE(record.FW_Negativ);
    EXPECT_EQ(failure_of([&] { record.OverwriteGridValue(4, 1, 2, 3); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(failure_of([&] { record.OverwriteGridValue(0, 1, 2, 3); }), FailureKind::SubscriptOutOfRange);
}

TEST(GetGridValue, ASiteNeverFilledIsZero)
{
    panel record;
    record.SetNop(3);
    record.SetGridValue(1, 1, 1);
    EXPECT_EQ(site(record, 2), (StoredSite{0, 0, 0}));
}

TEST(GetGridValue, AnArrayWithoutTheSecondElementFails)
{
    panel record;
    record.SetNop(1);
    HostArray<double> position(1, {0});
    EXPECT_EQ(failure_of([&] { record.GetGridValue(1, position); }), FailureKind::SubscriptOutOfRange);
}

TEST(Reset, TakesSitesAndFlagsAwayAndKeepsStatistics)
{
    panel record;
    record.SetNop(2);
    record.SetGridValue(0, 0, -4);
    record.SetGridValue(0, 0, 0);
    record.MaxMin();
    record.reset();
    EXPECT_EQ(record.GetNop(), 0);
    EXPECT_FALSE(record.FW_NUll);
    EXPECT_FALSE(record.FW_Negativ);
    EXPECT_EQ(record.mean, -2);
    EXPECT_EQ(record.mini, -4);
    EXPECT_EQ(failure_of([&] { site(record, 1); }), FailureKind::SubscriptOutOfRange);
    record.SetNop(1);
    record.SetGridValue(7, 8, 9);
    EXPECT_EQ(site(record, 1), (StoredSite{7, 8, 9}));
}

} // namespace
} // namespace zendara
