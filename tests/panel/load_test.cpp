#include "listening_container.hpp"
#include "support/failure_kind.hpp"
#include "zendara/panel/load.hpp"
#include "zendara/panel/panel.hpp"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <limits>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace zendara
{
namespace
{

using Array = HostArray<double>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

Array counted(std::int32_t lower, std::int32_t upper, double first)
{
    Array array;
    array.redim(lower, upper);
    for (double& value : array.values())
        value = first++;
    return array;
}

double value_of(panel const& record, std::int16_t site)
{
    Array position(1, {0, 0});
    return record.GetGridValue(site, position);
}

panel& sized(panel& record)
{
    record.SizeX = 300;
    record.SizeY = 200;
    return record;
}

class LoadFile : public testing::Test
{
protected:
    void SetUp() override
    {
        folder_ = std::filesystem::temp_directory_path() /
                  ("zendara_load_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directory(folder_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    std::string path(std::string const& name) const { return (folder_ / name).string(); }

    std::string write(std::string const& name, std::string const& bytes) const
    {
        std::ofstream(path(name), std::ios::binary) << bytes;
        return path(name);
    }

    std::string read(std::string const& name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path folder_;
};

// The little-endian bytes of 1, 2, 3 and so on up to 6.
std::string six_values()
{
    std::string bytes;
    for (char const* const high : {"\xf0\x3f", "\x00\x40", "\x08\x40", "\x10\x40", "\x14\x40", "\x18\x40"})
        bytes += std::string(6, '\0') + std::string(high, 2);
    return bytes;
}

TEST(LoadArrays, ArraysFrom0To9GiveTenSitesInTheirOrder)
{
    panel record;
    EXPECT_EQ(load_arrays(sized(record), counted(0, 9, 1), counted(0, 9, 11), counted(0, 9, 21), false),
              LoadResult::Done);
    EXPECT_EQ(record.GetNop(), 10);
    Array position(1, {0, 0});
    EXPECT_EQ(record.GetGridValue(1, position), 21);
    EXPECT_EQ(position(1), 1);
    EXPECT_EQ(position(2), 11);
    EXPECT_EQ(record.GetGridValue(10, position), 30);
    EXPECT_EQ(record.maxi, 30);
}

TEST(LoadArrays, NegativeLowerBoundsCount)
{
    panel record;
    EXPECT_EQ(load_arrays(record, counted(-2, 2, 0), counted(-2, 2, 0), counted(-2, 2, 7), false), LoadResult::Done);
    EXPECT_EQ(record.GetNop(), 5);
    EXPECT_EQ(value_of(record, 1), 7);
}

TEST(LoadArrays, AShorterZFailsAtItsFirstMissingElementAndKeepsTheSitesBefore)
{
    panel record;
    EXPECT_EQ(load_arrays(record, counted(1, 5, 1), counted(1, 5, 1), counted(1, 3, 7), false),
              LoadResult::RunTimeFailure);
    EXPECT_EQ(record.GetNop(), 5);
    EXPECT_EQ(value_of(record, 3), 9);
    EXPECT_EQ(value_of(record, 4), 0);
    EXPECT_EQ(record.maxi, 0);
}

TEST(LoadArrays, AWrongXAloneIsRefusedByNeitherBoundAndFailsWhenItEnds)
{
    panel record;
    EXPECT_EQ(load_arrays(record, counted(1, 7, 1), counted(1, 5, 1), counted(1, 5, 7), false),
              LoadResult::RunTimeFailure);
    EXPECT_EQ(record.GetNop(), 7);
    EXPECT_EQ(value_of(record, 5), 11);
}

TEST(LoadArrays, ThreeDifferentUpperBoundsEndWith1AndKeepTheOldData)
{
    panel record;
    load_arrays(record, counted(1, 2, 1), counted(1, 2, 1), counted(1, 2, 7), false);
    EXPECT_EQ(load_arrays(record, counted(1, 5, 1), counted(1, 6, 1), counted(1, 7, 7), false),
              LoadResult::UpperBoundsDiffer);
    EXPECT_EQ(record.GetNop(), 2);
    EXPECT_EQ(value_of(record, 2), 8);
}

TEST(LoadArrays, ThreeDifferentLowerBoundsEndWith2AndKeepTheOldData)
{
    panel record;
    load_arrays(record, counted(1, 2, 1), counted(1, 2, 1), counted(1, 2, 7), false);
    EXPECT_EQ(load_arrays(record, counted(1, 5, 1), counted(2, 5, 1), counted(3, 5, 7), false),
              LoadResult::LowerBoundsDiffer);
    EXPECT_EQ(value_of(record, 2), 8);
}

TEST(LoadArrays, ABoundBeyond16BitsFailsBeforeTheOldDataGo)
{
    panel record;
    load_arrays(record, counted(1, 2, 1), counted(1, 2, 1), counted(1, 2, 7), false);
    Array const far = counted(40000, 40001, 1);
    EXPECT_EQ(load_arrays(record, far, far, far, false), LoadResult::RunTimeFailure);
    EXPECT_EQ(value_of(record, 2), 8);
}

TEST(LoadArrays, ArraysWithoutBoundsFailBeforeTheOldDataGo)
{
    panel record;
    load_arrays(record, counted(1, 2, 1), counted(1, 2, 1), counted(1, 2, 7), false);
    EXPECT_EQ(load_arrays(record, Array(), Array(), Array(), false), LoadResult::RunTimeFailure);
    EXPECT_EQ(value_of(record, 2), 8);
}

TEST(LoadArrays, EmptyArraysFailAfterTheOldDataAreGone)
{
    panel record;
    load_arrays(record, counted(1, 2, 1), counted(1, 2, 1), counted(1, 2, 7), false);
    Array const none = counted(0, -1, 0);
    EXPECT_EQ(load_arrays(record, none, none, none, false), LoadResult::RunTimeFailure);
    EXPECT_EQ(record.GetNop(), 0);
    EXPECT_EQ(record.maxi, 8);
}

TEST(LoadArrays, ALastIndexOf32767StoresAllSitesAndFailsWithoutStatistics)
{
    panel record;
    Array const x = counted(1, 32767, 0);
    EXPECT_EQ(load_arrays(sized(record), x, x, counted(1, 32767, 1), false), LoadResult::RunTimeFailure);
    EXPECT_EQ(record.GetNop(), 32767);
    EXPECT_EQ(value_of(record, 32767), 32767);
    EXPECT_EQ(record.maxi, 0);
}

TEST(LoadArrays, ACountOfSitesBeyond16BitsFailsAfterTheOldDataAreGone)
{
    for (auto const& [lower, upper] : {std::pair{0, 32767}, {-1, 32766}, {-20000, 20000}, {-32768, 32767}}) {
        panel record;
        load_arrays(record, counted(1, 2, 1), counted(1, 2, 1), counted(1, 2, 7), false);
        Array const x = counted(lower, upper, 1);
        EXPECT_EQ(load_arrays(record, x, x, x, false), LoadResult::RunTimeFailure) << lower;
        EXPECT_EQ(record.GetNop(), 0) << lower;
        EXPECT_EQ(record.maxi, 8) << lower;
    }
}

TEST(LoadArrays, TheLargestCountIsTakenWhereTheCounterDoesNotPassItsEnd)
{
    panel record;
    Array zeros;
    zeros.redim(-1, 32765);
    EXPECT_EQ(load_arrays(sized(record), zeros, zeros, counted(-1, 32765, 1), false), LoadResult::Done);
    EXPECT_EQ(record.GetNop(), 32767);
    EXPECT_EQ(record.maxi, 32767);
}

TEST(LoadArrays, ACoordinateThatIsNotFiniteEndsWith4WhateverTheCountOfSites)
{
    for (std::int32_t const count : {1, 3, 9, 10, 40})
        for (double const wrong : {infinity, -infinity, nan})
            for (bool const is_x : {true, false}) {
                panel record;
                Array x = counted(1, count, 0), y = counted(1, count, 0);
                (is_x ? x : y)(count) = wrong;
                EXPECT_EQ(load_arrays(sized(record), x, y, counted(1, count, 7), false), LoadResult::RunTimeFailure)
                    << count << ' ' << wrong << ' ' << is_x;
                EXPECT_EQ(record.GetNop(), count);
                EXPECT_EQ(record.maxi, 0);
            }
}

TEST(LoadArrays, ACoordinateThatIsNotFiniteEndsTheLoadAtItsSite)
{
    test::ListeningContainer container;
    panel record;
    record.container = &container;
    Array x = counted(0, 4, 1), y = counted(0, 4, 1), Z = counted(0, 4, 7);
    y(2) = -infinity;
    x(3) = nan;
    EXPECT_EQ(load_arrays(record, x, y, Z, false), LoadResult::RunTimeFailure);
    EXPECT_EQ(value_of(record, 2), 8);
    EXPECT_EQ(value_of(record, 3), 0);
    ASSERT_EQ(container.failures.size(), 1u);
    EXPECT_EQ(container.failures[0].kind, FailureKind::Overflow);
    EXPECT_EQ(container.failures[0].what, "y(2) is no finite number: -inf");
}

TEST(LoadArrays, AYThatDiffersFromBothOthersEndsWith1)
{
    panel record;
    EXPECT_EQ(load_arrays(record, counted(1, 5, 1), counted(1, 7, 1), counted(1, 5, 7), false),
              LoadResult::UpperBoundsDiffer);
    EXPECT_EQ(load_arrays(record, counted(1, 5, 1), counted(0, 5, 1), counted(1, 5, 7), false),
              LoadResult::LowerBoundsDiffer);
    EXPECT_EQ(record.GetNop(), 0);
}

TEST(LoadArrays, SpansCountFrom0AndGiveWhatHostArraysGive)
{
    std::vector<double> const x = {1, 2, 3}, y = {4, 5, 6};
    std::array<double, 4> Z = {7, 8, 9, 10};
    panel record;
    EXPECT_EQ(load_arrays(record, x, std::span(y), std::span(Z).first(3), false), LoadResult::Done);
    EXPECT_EQ(record.GetNop(), 3);
    Array position(1, {0, 0});
    EXPECT_EQ(record.GetGridValue(3, position), 9);
    EXPECT_EQ(position(1), 3);
    EXPECT_EQ(position(2), 6);
    EXPECT_EQ(record.maxi, 9);

    EXPECT_EQ(load_arrays(record, x, y, Z, false), LoadResult::Done) << "a longer Z has an equal pair before it";
    EXPECT_EQ(load_arrays(record, x, Z, y, false), LoadResult::UpperBoundsDiffer);
    EXPECT_EQ(load_arrays(record, Z, x, y, false), LoadResult::RunTimeFailure);
    EXPECT_EQ(record.GetNop(), 4);
}

TEST(LoadArrays, EmptySpansFailAsEmptyArraysDo)
{
    panel record;
    std::span<double const> const none;
    EXPECT_EQ(load_arrays(record, none, none, none, false), LoadResult::RunTimeFailure);
    EXPECT_EQ(record.GetNop(), 0);
}

TEST(LoadArrays, KeptLimitsOutliveNewData)
{
    panel record;
    load_arrays(record, counted(1, 2, 1), counted(1, 2, 1), counted(1, 2, 7), false);
    record.setMaximalMinial(100, 50);
    EXPECT_EQ(load_arrays(record, counted(1, 3, 1), counted(1, 3, 1), counted(1, 3, 20), true), LoadResult::Done);
    EXPECT_EQ(record.maximal, 100);
    EXPECT_EQ(record.minimal, 50);
    EXPECT_EQ(record.range, 50);
    EXPECT_EQ(record.maxi, 22);
    EXPECT_EQ(record.mini, 20);
}

TEST(LoadArrays, LimitsThatAreNotKeptFollowTheData)
{
    panel record;
    record.setMaximalMinial(100, 50);
    load_arrays(record, counted(1, 3, 1), counted(1, 3, 1), counted(1, 3, 20), false);
    EXPECT_EQ(record.maximal, 22);
}

TEST(Load, AFailureTellsItsStepAndTheValueThatWasWrong)
{
    auto const told = [](auto&& load) {
        test::ListeningContainer container;
        panel record;
        record.container = &container;
        EXPECT_EQ(load(record), LoadResult::RunTimeFailure);
        return container.failures.size() == 1 ? container.failures[0].where + ": " + container.failures[0].what
                                              : std::to_string(container.failures.size()) + " failures";
    };
    auto const told_of_arrays = [&](Array const& x, Array const& Z) {
        return told([&](panel& record) { return load_arrays(record, x, x, Z, false); });
    };
    EXPECT_EQ(told_of_arrays(Array(), Array()), "SetPanelData: bounds: an array has no bounds yet");
    EXPECT_EQ(told_of_arrays(counted(0, 40000, 1), counted(0, 40000, 1)),
              "SetPanelData: bounds: a number does not fit into 16 bits: 40000");
    EXPECT_EQ(told_of_arrays(counted(-20000, 20000, 1), counted(-20000, 20000, 1)),
              "SetPanelData: count of sites: a number does not fit into 16 bits: 40000");
    EXPECT_EQ(told_of_arrays(counted(1, 5, 1), counted(1, 3, 1)),
              "SetPanelData: sites: an index lies outside its array: 4");
    EXPECT_EQ(told_of_arrays(counted(1, 12, 1), counted(1, 12, 1)),
              "SetPanelData: statistics: a number is divided by 0: 0");
    EXPECT_EQ(told([](panel& record) {
                  record.setMaximalMinial(1e308, 2);
                  record.minimal = -1e308;
                  return load_arrays(record, counted(1, 2, 1), counted(1, 2, 1), counted(1, 2, 1), true);
              }),
              "SetPanelData: plot limits: the result of a calculation is not finite: inf");
    EXPECT_EQ(told([](panel& record) { return load_file(record, "", -2, false); }),
              "SetDataFile: count of sites: an array's upper bound lies below its lower bound: -2");
    EXPECT_EQ(told([](panel& record) { return load_file(record, "no/such/folder.dat", 2, false); }).substr(0, 41),
              "SetDataFile: data file: no/such/folder.da");
}

TEST_F(LoadFile, ReadsTheBlocksOfXThenYThenZInLittleEndianOrder)
{
    panel record;
    EXPECT_EQ(load_file(record, write("six.dat", six_values()), 2, false), LoadResult::Done);
    EXPECT_EQ(record.GetNop(), 2);
    Array position(1, {0, 0});
    EXPECT_EQ(record.GetGridValue(1, position), 5);
    EXPECT_EQ(position(1), 1);
    EXPECT_EQ(position(2), 3);
    EXPECT_EQ(record.GetGridValue(2, position), 6);
    EXPECT_EQ(record.maxi, 6);
}

TEST_F(LoadFile, ReadsALongerFileJustAsFarAsTheCountAsksAndLeavesItAsItWas)
{
    panel record;
    EXPECT_EQ(load_file(record, write("six.dat", six_values()), 1, false), LoadResult::Done);
    EXPECT_EQ(value_of(record, 1), 3);
    EXPECT_EQ(read("six.dat"), six_values());
}

TEST_F(LoadFile, WhatAShortFileLacksIsZeroWithoutAFailure)
{
    panel record;
    std::string const cut = six_values().substr(0, 5 * 8 + 7);
    EXPECT_EQ(load_file(record, write("cut.dat", cut), 2, false), LoadResult::Done);
    EXPECT_EQ(value_of(record, 1), 5);
    EXPECT_EQ(value_of(record, 2), 0);
    EXPECT_TRUE(record.FW_NUll);
}

TEST_F(LoadFile, AMissingFileIsCreatedEmptyAndGivesSitesOfZero)
{
    panel record;
    EXPECT_EQ(load_file(record, path("new.dat"), 4, false), LoadResult::Done);
    EXPECT_EQ(record.GetNop(), 4);
    EXPECT_TRUE(record.FW_NUll);
    EXPECT_EQ(value_of(record, 4), 0);
    ASSERT_TRUE(std::filesystem::exists(path("new.dat")));
    EXPECT_EQ(std::filesystem::file_size(path("new.dat")), 0u);
}

TEST_F(LoadFile, APathThatCannotBeOpenedEndsWith4AfterTheOldDataAreGone)
{
    panel record;
    load_file(record, write("six.dat", six_values()), 2, false);
    for (std::string const& bad : {path("no/such/folder.dat"), folder_.string(), std::string()}) {
        EXPECT_EQ(load_file(record, bad, 3, false), LoadResult::RunTimeFailure);
        EXPECT_EQ(record.GetNop(), 3);
        EXPECT_EQ(value_of(record, 1), 0);
    }
    EXPECT_EQ(record.maxi, 6);
}

TEST_F(LoadFile, AFileThatOpensButCannotBeReadEndsWith4AndNotWithZeros)
{
    std::string const unreadable = "/proc/self/mem"; // nothing is mapped where it begins
    if (!std::filesystem::exists(unreadable))
        GTEST_SKIP() << "no " << unreadable;
    test::ListeningContainer container;
    panel record;
    load_file(record, write("six.dat", six_values()), 2, false);
    record.container = &container;
    EXPECT_EQ(load_file(record, unreadable, 3, false), LoadResult::RunTimeFailure);
    EXPECT_EQ(record.GetNop(), 3);
    EXPECT_FALSE(record.FW_NUll);
    EXPECT_EQ(record.maxi, 6);
    ASSERT_EQ(container.failures.size(), 1u);
    EXPECT_EQ(container.failures[0].kind, FailureKind::FileError);
    EXPECT_EQ(container.failures[0].what.substr(0, unreadable.size() + 2), unreadable + ": ");
}

TEST_F(LoadFile, ANegativeCountFailsBeforeAFileIsMade)
{
    panel record;
    EXPECT_EQ(load_file(record, path("new.dat"), -2, false), LoadResult::RunTimeFailure);
    EXPECT_FALSE(std::filesystem::exists(path("new.dat")));
}

TEST_F(LoadFile, ACountOf32767StoresAllSitesAndFailsWithoutStatistics)
{
    panel record;
    std::string const one = six_values().substr(0, 8);
    std::string bytes;
    for (int i = 0; i < 3 * 32767; ++i)
        bytes += one;
    EXPECT_EQ(load_file(sized(record), write("most.dat", bytes), 32767, false), LoadResult::RunTimeFailure);
    EXPECT_EQ(value_of(record, 32767), 1);
    EXPECT_EQ(record.maxi, 0);
}

TEST_F(LoadFile, ACountBeyond16BitsFailsWithTheFileMadeAndNoSiteStored)
{
    panel record;
    EXPECT_EQ(load_file(record, path("new.dat"), 1e9, false), LoadResult::RunTimeFailure);
    EXPECT_TRUE(std::filesystem::exists(path("new.dat")));
    EXPECT_EQ(record.GetNop(), 1e9);
    EXPECT_FALSE(record.FW_NUll);
}

TEST_F(LoadFile, ACoordinateThatIsNotFiniteEndsWith4AtItsSite)
{
    std::string bytes = six_values();
    bytes.replace(3 * 8 + 6, 2, "\xf0\x7f"); // y of the second site becomes infinite
    panel record;
    EXPECT_EQ(load_file(record, write("infinite.dat", bytes), 2, false), LoadResult::RunTimeFailure);
    EXPECT_EQ(value_of(record, 1), 5);
    EXPECT_EQ(value_of(record, 2), 0);
    EXPECT_EQ(record.maxi, 0);
}

TEST_F(LoadFile, KeptLimitsOutliveNewData)
{
    panel record;
    record.setMaximalMinial(100, 50);
    EXPECT_EQ(load_file(record, write("six.dat", six_values()), 2, true), LoadResult::Done);
    EXPECT_EQ(record.maximal, 100);
    EXPECT_EQ(record.minimal, 50);
    EXPECT_EQ(record.maxi, 6);
}

TEST(ReadSites, BeforeAnyLoadThereAreNoneAndTheArraysStay)
{
    panel const record;
    Array x(3, {1}), y(4, {2}), Z(5, {3});
    EXPECT_EQ(read_sites(record, x, y, Z), 0);
    EXPECT_EQ(x(3), 1);
    EXPECT_EQ(y(4), 2);
    EXPECT_EQ(Z(5), 3);
}

TEST(ReadSites, GivesWhatWasLoadedWithTheBounds1ToTheirNumber)
{
    panel record;
    load_arrays(record, counted(0, 2, 1), counted(0, 2, 4), counted(0, 2, 7), false);
    Array x, y, Z(9, {1, 2, 3, 4, 5});
    EXPECT_EQ(read_sites(record, x, y, Z), 3);
    EXPECT_EQ(x.lower_bound(), 1);
    EXPECT_EQ(Z.upper_bound(), 3);
    EXPECT_EQ(x(1), 1);
    EXPECT_EQ(y(2), 5);
    EXPECT_EQ(Z(3), 9);
}

TEST(ReadSites, TheCounterOverflowsBehindSite32767)
{
    panel record;
    record.SetNop(32767);
    record.SetGridValueD(32767, 1, 2, 3);
    Array x, y, Z;
    EXPECT_EQ(failure_of([&] { read_sites(record, x, y, Z); }), FailureKind::Overflow);
    EXPECT_EQ(Z(32767), 3);
}

TEST(ReadSites, OfAPanelSizedBeyondAllSiteNumbersThoseThatAreThereAreReadOut)
{
    for (double const count : {32768.0, 1e9}) {
        panel record;
        record.SetNop(count);
        record.SetGridValueD(32767, 1, 2, 3);
        Array x, y, Z;
        EXPECT_EQ(failure_of([&] { read_sites(record, x, y, Z); }), FailureKind::Overflow) << count;
        for (Array const* const column : {&x, &y, &Z}) {
            ASSERT_EQ(column->lower_bound(), 1) << count;
            ASSERT_EQ(column->upper_bound(), 32767) << count;
        }
        EXPECT_EQ(x(32767), 1);
        EXPECT_EQ(y(32767), 2);
        EXPECT_EQ(Z(32767), 3);
    }
}

TEST(ReadSites, ACountBeyond32BitsFailsAndLeavesTheArrays)
{
    panel record;
    EXPECT_EQ(failure_of([&] { record.SetNop(1e10); }), FailureKind::Overflow);
    Array x(3, {1}), y, Z;
    EXPECT_EQ(failure_of([&] { read_sites(record, x, y, Z); }), FailureKind::Overflow);
    EXPECT_EQ(x(3), 1);
}

TEST(ReadSites, ACountThatIsNoWholeNumberIsReadAsFarAsItGoes)
{
    panel record;
    record.SetNop(2.5);
    record.SetGridValue(1, 2, 3);
    record.SetGridValue(4, 5, 6);
    Array x, y, Z;
    EXPECT_EQ(read_sites(record, x, y, Z), 2.5);
    EXPECT_EQ(Z.upper_bound(), 2);
    EXPECT_EQ(Z(2), 6);
}

} // namespace
} // namespace zendara
