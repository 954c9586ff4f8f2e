#include "listening_container.hpp"
#include "panel/panel_samples.hpp"
#include "support/failure_kind.hpp"
#include "zendara/panel/panel.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace zendara
{
namespace
{

using samples::Sample;

constexpr double infinity = std::numeric_limits<double>::infinity();

Sample spread_sites(std::size_t count)
{
    Sample sample{"spread", 100, 100, {}};
    for (std::size_t i = 0; i < count; ++i) {
        auto const at = static_cast<double>(i);
        sample.sites.push_back({std::fmod(at * 37, 90) - 45, std::fmod(at * 53, 90) - 45, at + 1});
    }
    return sample;
}

// Cells of 100 millimetres, all sites in one that a search from the centre does not reach.
Sample all_in_a_corner()
{
    return {"corner", 1000, 1000, std::vector<samples::Site>(400, {450, 450, 5})};
}

TEST(Interpolation, BelowFourSitesIsZeroEvenOnASite)
{
    for (std::size_t count = 0; count < 4; ++count) {
        Sample const sample = spread_sites(count);
        panel record;
        samples::store(record, sample);
        EXPECT_EQ(record.Interpolation(0, 0), 0);
        for (samples::Site const& site : sample.sites)
            EXPECT_EQ(record.Interpolation(site.x, site.y), 0);
    }
}

TEST(Interpolation, FourToNineSitesGiveASitesOwnValueOnIt)
{
    for (std::size_t count = 4; count < 10; ++count) {
        Sample const sample = spread_sites(count);
        panel record;
        samples::fill(record, sample);
        for (samples::Site const& site : sample.sites)
            EXPECT_EQ(record.Interpolation(site.x, site.y), site.Z);
    }
}

TEST(Interpolation, OfTwoSitesAtOnePlaceTheLowerNumberCounts)
{
    for (std::size_t const count : {5u, 12u}) {
        Sample sample = spread_sites(count);
        sample.sites[4] = {sample.sites[1].x, sample.sites[1].y, 99};
        panel record;
        samples::fill(record, sample);
        EXPECT_EQ(record.Interpolation(sample.sites[1].x, sample.sites[1].y), sample.sites[1].Z);
    }
}

TEST(Interpolation, IsTheInverseSquareMeanOfTheFourNearest)
{
    panel record;
    samples::fill(record, {"four", 100, 100, {{1, 0, 1}, {0, 2, 2}, {-4, 0, 3}, {0, -5, 4}}});
    double const expected = (1 / 1.0 + 2 / 4.0 + 3 / 16.0 + 4 / 25.0) / (1 + 1 / 4.0 + 1 / 16.0 + 1 / 25.0);
    EXPECT_DOUBLE_EQ(record.Interpolation(0, 0), expected);
    EXPECT_EQ(record.Interpolation_Einfach(0, 0), record.Interpolation(0, 0));
}

TEST(Interpolation, NineSitesAreScannedAndTenAreSearchedByBuckets)
{
    // The point is 500 away from most sites: a scan finds them, the rings end long before.
    Sample sample{"far", 1, 300, std::vector<samples::Site>(9, {-250, 250, 5})};
    sample.sites[0] = {250, 250, 6};
    panel record;
    samples::fill(record, sample);
    EXPECT_EQ(record.Interpolation(-250, -250), record.Interpolation_Einfach(-250, -250));
    EXPECT_LT(record.Interpolation(-250, -250), 5.5);
    sample.sites.push_back({-250, 250, 5});
    samples::fill(record, sample);
    EXPECT_LT(record.Interpolation_Einfach(-250, -250), 5.5);
    EXPECT_DOUBLE_EQ(record.Interpolation(-250, -250), 6);
}

TEST(Interpolation, FourToNineSitesBeyondThreeTimesTheSizeGiveZeroWhereTheScanFails)
{
    panel record;
    samples::fill(record, {"far", 1, 1, std::vector<samples::Site>(5, {100, 100, 5})});
    EXPECT_EQ(record.Interpolation(0, 0), 0);
    EXPECT_EQ(failure_of([&] { record.Interpolation_Einfach(0, 0); }), FailureKind::SubscriptOutOfRange);
}

TEST(Interpolation, TheScanFailsBelowFourSites)
{
    panel record;
    samples::fill(record, spread_sites(3));
    EXPECT_EQ(failure_of([&] { record.Interpolation_Einfach(0, 0); }), FailureKind::SubscriptOutOfRange);
}

TEST(Interpolation, TheFirstSiteOfferedFillsAllSlotsAndStaysWhereFewerThanFourAreFound)
{
    Sample sample = all_in_a_corner();
    sample.sites[6] = {0, 0, 2};
    panel record;
    samples::fill(record, sample);
    EXPECT_DOUBLE_EQ(record.Interpolation(10, 10), 2);
}

TEST(Interpolation, TenSitesBeforeMaxMinGiveTheFirstSitesValueWithoutAFailure)
{
    panel record;
    samples::store(record, spread_sites(12));
    EXPECT_EQ(record.Interpolation(3, 4), 1);
    EXPECT_EQ(record.Interpolation(1e9, -1e9), 1);
}

TEST(Interpolation, WhereNoSiteIsInReachTheFirstSiteCountsFourTimes)
{
    Sample sample = spread_sites(40);
    sample.sites[0].Z = 42;
    panel record;
    samples::fill(record, sample);
    // 95 cells away: the radius passes twice the root of the size first.
    EXPECT_DOUBLE_EQ(record.Interpolation(3000, 3000), 42);
}

TEST(Interpolation, APointOffTheTableSkipsItsCellButStillLooksAtTheRings)
{
    Sample sample{"edge", 100, 100, std::vector<samples::Site>(10, {99, 99, 5})};
    sample.sites[0].Z = 3;
    sample.sites[0].x = sample.sites[0].y = -99;
    panel record;
    samples::fill(record, sample);
    EXPECT_DOUBLE_EQ(record.Interpolation(130, 130), 5);
}

TEST(Interpolation, NeitherFailsNorLeavesTheNumbersForAnyPoint)
{
    panel record;
    samples::fill(record, spread_sites(50));
    double const nan = std::numeric_limits<double>::quiet_NaN();
    for (double const x : {0.0, 1e5, -1e6, 1e18, 1e200, -1e308, infinity, -infinity, nan})
        for (double const y : {0.0, 1e5, 1e308, infinity, nan}) {
            EXPECT_TRUE(std::isfinite(record.Interpolation(x, y))) << x << ' ' << y;
            EXPECT_TRUE(std::isfinite(record.Interpolation(y, x))) << y << ' ' << x;
        }
}

TEST(Interpolation, AnOverflowOfTheMeanGivesZero)
{
    Sample sample = spread_sites(20);
    for (samples::Site& site : sample.sites)
        site.Z = 8e306;
    panel record;
    samples::fill(record, sample);
    samples::Site const& site = sample.sites[5];
    EXPECT_EQ(record.Interpolation(site.x + 0.01, site.y), 0);
    EXPECT_EQ(record.Interpolation(site.x, site.y), 8e306);
}

// What a panel tells its container of one interpolation: the steps that failed, each once, in their order.
std::vector<std::string> failed_steps(panel& record, double x, double y)
{
    test::ListeningContainer container;
    record.container = &container;
    record.Interpolation(x, y);
    record.container = nullptr;
    std::vector<std::string> steps;
    for (TrappedFailure const& failure : container.failures)
        if (std::find(steps.begin(), steps.end(), failure.where) == steps.end())
            steps.push_back(failure.where);
    return steps;
}

TEST(Interpolation, TellsTheContainerWhichStepHasFailed)
{
    using Steps = std::vector<std::string>;
    panel record;
    samples::fill(record, spread_sites(20));
    EXPECT_EQ(failed_steps(record, 3, 4), Steps{});
    EXPECT_EQ(failed_steps(record, 1e9, 4), Steps{"Interpolation: centre cell"});
    EXPECT_EQ(failed_steps(record, 4, -1e9), Steps{"Interpolation: centre cell"});

    record.SizeX = record.SizeY = 1e308;
    EXPECT_EQ(failed_steps(record, 3, 4), Steps{"Interpolation: size of the panel"});
    record.SizeY = 0;
    EXPECT_EQ(failed_steps(record, 3, 4), Steps{"Interpolation: first distances"});

    samples::Sample sample = spread_sites(20);
    for (samples::Site& site : sample.sites)
        site.Z = 8e306;
    samples::fill(record, sample);
    EXPECT_EQ(failed_steps(record, sample.sites[5].x + 0.01, sample.sites[5].y),
              Steps{"Interpolation: mean of four sites"});
    EXPECT_EQ(failed_steps(record, sample.sites[5].x, sample.sites[5].y), Steps{});

    record.reset();
    record.SetNop(10);
    EXPECT_EQ(failed_steps(record, 3, 4), Steps{"Interpolation: distance of a site"});

    samples::fill(record, {"far", 1, 1, std::vector<samples::Site>(5, {100, 100, 5})});
    EXPECT_EQ(failed_steps(record, 0, 0), Steps{"Interpolation: scan of all sites"});

    panel unbuilt;
    samples::store(unbuilt, spread_sites(12));
    EXPECT_EQ(failed_steps(unbuilt, 3, 4), (Steps{"Interpolation: x in cells", "Interpolation: y in cells"}));
}

TEST(Interpolation, AMovedSiteIsReadAtItsNewPositionFromItsOldCell)
{
    Sample sample = all_in_a_corner();
    sample.sites[0] = {0, 0, 1};
    sample.sites[6] = {20, 0, 2};
    panel record;
    samples::fill(record, sample);
    record.SetGridValueD(7, 0, 30, 9);
    double const d1 = 5, d7 = 25, filler = 4000;
    auto const weight = [](double d) { return 1 / (d * d); };
    double const weights = weight(d1) + weight(d7) + 2 * weight(filler);
    double const expected = (weight(d1) * 1 + weight(d7) * 9 + 2 * weight(filler) * 1) / weights;
    EXPECT_NEAR(record.Interpolation(0, 5), expected, 1e-12);
    record.OverwriteGridValue(7, 450, 450, 9); // still in its old cell's list
    EXPECT_EQ(record.Interpolation(450, 450), 5);
    EXPECT_GT(record.Interpolation(0, 5), 1);
}

TEST(Interpolation, AfterAResetNewSitesAreReadThroughTheOldLists)
{
    Sample sample = all_in_a_corner();
    sample.sites[0] = {0, 0, 1};
    panel record;
    samples::fill(record, sample);
    sample.sites[0] = {-400, -400, 8}; // its list entry stays in the middle
    samples::store(record, sample);
    EXPECT_DOUBLE_EQ(record.Interpolation(0, 0), 8);
    sample.sites.resize(10);
    samples::store(record, sample);
    EXPECT_TRUE(std::isfinite(record.Interpolation(450, 440)));
}

TEST(InterpolateRow, FillsEveryPointAsInterpolationDoes)
{
    panel record;
    for (std::size_t const count : {0u, 3u, 7u, 30u}) {
        samples::fill(record, spread_sites(std::max<std::size_t>(count, 1)));
        std::vector<double> x;
        for (int i = -70; i <= 70; ++i)
            x.push_back(i);
        std::vector<double> z(x.size() + 1, -1);
        record.interpolate_row(x, 12.5, z);
        for (std::size_t i = 0; i < x.size(); ++i)
            EXPECT_EQ(z[i], record.Interpolation(x[i], 12.5)) << count << ' ' << x[i];
        EXPECT_EQ(z.back(), -1);
    }
}

} // namespace
} // namespace zendara
