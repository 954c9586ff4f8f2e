#include "panel/panel_samples.hpp"
#include "support/failure_kind.hpp"
#include "zendara/panel/panel.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <utility>
#include <vector>

namespace zendara
{

struct BucketTableProbe {
    panel const& record;

    double pitch() const { return record.bucket_pitch_; }
    int half() const { return record.bucket_half_; }
    bool copies_hold() const { return record.bucket_copies_hold_; }

    std::map<std::pair<int, int>, std::vector<int>> filled_cells() const
    {
        std::map<std::pair<int, int>, std::vector<int>> cells;
        auto const& box = record.bucket_box_;
        for (int i = 0; i < box.columns; ++i)
            for (int j = 0; j < box.rows; ++j) {
                auto const cell = static_cast<std::size_t>(i * box.rows + j);
                for (auto k = record.bucket_start_[cell]; k < record.bucket_start_[cell + 1]; ++k)
                    cells[{box.first_i + i, box.first_j + j}].push_back(record.bucket_items_[k]);
            }
        return cells;
    }
};

namespace
{

using samples::Sample;

Sample ten_sites(double size_x, double size_y)
{
    return {"ten", size_x, size_y, std::vector<samples::Site>(10, {1, 1, 1})};
}

TEST(SiteBuckets, ACellHoldsFourSitesOfAnEvenlyMeasuredPanelOnAverage)
{
    panel record;
    samples::fill(record, ten_sites(100, 40));
    EXPECT_DOUBLE_EQ(BucketTableProbe{record}.pitch(), 40);
    EXPECT_EQ(BucketTableProbe{record}.half(), 2); // 2.5 to the even side
}

TEST(SiteBuckets, EachSiteIsInTheCellOfItsRoundedPositionInAscendingOrder)
{
    for (Sample const& sample : samples::random_panels(7)) {
        if (sample.sites.size() < 10)
            continue;
        panel record;
        samples::fill(record, sample);
        BucketTableProbe const table{record};
        std::map<std::pair<int, int>, std::vector<int>> expected;
        for (std::size_t s = 0; s < sample.sites.size(); ++s) {
            auto const cell = [&](double at) {
                return static_cast<int>(std::lrint(at / table.pitch() + table.half()));
            };
            expected[{cell(sample.sites[s].x), cell(sample.sites[s].y)}].push_back(static_cast<int>(s));
        }
        EXPECT_EQ(table.filled_cells(), expected) << sample.name;
        EXPECT_TRUE(table.copies_hold()) << sample.name;
    }
}

TEST(SiteBuckets, BelowTenSitesNoTableIsMade)
{
    panel record;
    Sample sample = ten_sites(100, 100);
    sample.sites.pop_back();
    samples::fill(record, sample);
    EXPECT_TRUE(BucketTableProbe{record}.filled_cells().empty());
    EXPECT_EQ(BucketTableProbe{record}.pitch(), 0);
}

TEST(SiteBuckets, ASiteAtTheTablesEdgeIsTakenAndOneFurtherOutFails)
{
    panel record;
    Sample sample = ten_sites(100, 40); // cells of 40 up to 2.5 cells from the centre
    sample.sites[9].x = 99.9;
    samples::fill(record, sample);
    EXPECT_EQ(BucketTableProbe{record}.filled_cells().count({4, 2}), 1u);
    sample.sites[9].x = -100.1;
    samples::store(record, sample);
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::SubscriptOutOfRange);
}

TEST(SiteBuckets, AFailedBuildKeepsTheOldListsButNotTheCopies)
{
    panel record;
    Sample sample = ten_sites(100, 40);
    samples::fill(record, sample);
    auto const before = BucketTableProbe{record}.filled_cells();
    sample.sites[3].y = 500;
    samples::store(record, sample);
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::SubscriptOutOfRange);
    EXPECT_EQ(BucketTableProbe{record}.filled_cells(), before);
    EXPECT_FALSE(BucketTableProbe{record}.copies_hold());
}

TEST(SiteBuckets, ResetAndSetNopKeepTheListsButNotTheCopies)
{
    panel record;
    samples::fill(record, ten_sites(100, 40));
    auto const before = BucketTableProbe{record}.filled_cells();
    record.reset();
    record.SetNop(12);
    EXPECT_EQ(BucketTableProbe{record}.filled_cells(), before);
    EXPECT_FALSE(BucketTableProbe{record}.copies_hold());
}

TEST(SiteBuckets, EveryStoreEndsTheCopies)
{
    panel record;
    samples::fill(record, ten_sites(100, 40));
    record.SetGridValue(0, 0, 0); // surplus: nothing is stored
    EXPECT_TRUE(BucketTableProbe{record}.copies_hold());
    record.SetGridValueD(1, 2, 2, 2);
    EXPECT_FALSE(BucketTableProbe{record}.copies_hold());
    record.MaxMin();
    EXPECT_TRUE(BucketTableProbe{record}.copies_hold());
    record.OverwriteGridValue(1, 2, 2, 2);
    EXPECT_FALSE(BucketTableProbe{record}.copies_hold());
}

TEST(SiteBuckets, APanelWithoutSizeFailsByDivision)
{
    for (auto const& [size_x, size_y] : {std::pair{0.0, 0.0}, {100.0, 0.0}, {0.0, 100.0}}) {
        panel record;
        samples::store(record, ten_sites(size_x, size_y));
        EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::DivisionByZero);
    }
}

TEST(SiteBuckets, SizesOfDifferentSignsHaveNoPitch)
{
    panel record;
    samples::store(record, ten_sites(-100, 40));
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::InvalidProcedureCall);
}

TEST(SiteBuckets, ACellCountBeyond16BitsOverflows)
{
    panel record;
    samples::store(record, ten_sites(1e6, 1e-9));
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::Overflow);
}

TEST(SiteBuckets, ASiteWithoutAPositionOverflows)
{
    panel record;
    Sample sample = ten_sites(100, 40);
    sample.sites[3].x = std::numeric_limits<double>::quiet_NaN();
    samples::store(record, sample);
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::Overflow);
}

TEST(SiteBuckets, MoreSitesThan16BitsOverflow)
{
    panel record;
    record.SizeX = record.SizeY = 100;
    record.SetNop(32768);
    EXPECT_EQ(failure_of([&] { record.MaxMin(); }), FailureKind::Overflow);
}

} // namespace
} // namespace zendara
