#include "data_file.hpp"
#include "scratch.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace zendara::program
{

namespace
{

using DataFile = Scratch;

std::vector<double> list(HostArray<double> const& array)
{
    return {array.values().begin(), array.values().end()};
}

/// The line with which reading a file fails, "" when it does not.
struct Rejection {
    std::string line;
    std::optional<Exit> exit;
};
Rejection rejection(std::string const& path, std::optional<std::int64_t> sites = {})
{
    try {
        read_data_file(path, sites);
        return {};
    } catch (UserError const& error) {
        return {error.what(), error.exit()};
    }
}

void expect_bad_input(std::string const& path, std::string const& line)
{
    auto const found = rejection(path);
    EXPECT_EQ(found.line, line);
    EXPECT_EQ(found.exit, Exit::BadInput);
}

std::vector<double> sites_on_a_line(std::size_t count)
{
    return std::vector<double>(3 * count, 1.0);
}

std::string csv_rows(std::size_t count)
{
    std::string text = "x,y,z\n";
    for (std::size_t i = 0; i < count; ++i)
        text += "1,2,3\n";
    return text;
}

} // namespace

// --- Raw files
// --------------------------------------------------------------------------------------------------------

TEST_F(DataFile, ARawFileHoldsAllXThenAllYThenAllZ)
{
    auto const data = read_data_file(raw_file("a.dat", {1, 2, 30, 40, 500, 600}), {});
    EXPECT_EQ(data.source, SiteData::Source::Raw);
    EXPECT_EQ(list(data.x), (std::vector<double>{1, 2}));
    EXPECT_EQ(list(data.y), (std::vector<double>{30, 40}));
    EXPECT_EQ(list(data.z), (std::vector<double>{500, 600}));
    EXPECT_EQ(data.x.lower_bound(), 0);
}

TEST_F(DataFile, ACountOfSitesReadsALongerRawFileOnlySoFar)
{
    auto const data = read_data_file(raw_file("a.dat", {1, 2, 3, 4, 5, 6, 7}), 1);
    EXPECT_EQ(list(data.x), std::vector<double>{1});
    EXPECT_EQ(list(data.y), std::vector<double>{2});
    EXPECT_EQ(list(data.z), std::vector<double>{3});
}

TEST_F(DataFile, ARawFileThatIsNoWholeNumberOfSitesIsNamed)
{
    auto const path = raw_file("a.dat", {1, 2, 3, 4});
    expect_bad_input(path, path + ": 32 bytes are no whole number of sites, which take 24 bytes each in a raw file; "
                                  "a CSV is told by .csv at the end of its name");
}

TEST_F(DataFile, MoreSitesThanTheRawFileHoldsAreRejected)
{
    auto const path = raw_file("a.dat", {1, 2, 3});
    auto const found = rejection(path, 2);
    EXPECT_EQ(found.line, "--sites: " + path + " holds 24 bytes, 2 sites take 48");
    EXPECT_EQ(found.exit, Exit::BadInput);
}

TEST_F(DataFile, AHugeCountOfSitesIsRejectedWithoutOverflow)
{
    auto const path = raw_file("a.dat", {1, 2, 3});
    auto const found = rejection(path, std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(found.exit, Exit::BadInput);
    EXPECT_NE(found.line.find("9223372036854775807 sites"), std::string::npos);
}

TEST_F(DataFile, ANegativeCountOfSitesIsRejected)
{
    EXPECT_EQ(rejection(raw_file("a.dat", {1, 2, 3}), -1).line, "--sites: expected a count of sites, not -1");
}

TEST_F(DataFile, NoSitesAreNothingToPlot)
{
    EXPECT_EQ(rejection(raw_file("a.dat", {1, 2, 3}), 0).exit, Exit::NothingToPlot);
}

TEST_F(DataFile, ANumberThatIsNoneIsNamedWithItsSite)
{
    auto const path = raw_file("a.dat", {1, 2, 3, 4, 5, std::nan("")});
    expect_bad_input(path, path + ": site 2: Z is not a number");
}

TEST_F(DataFile, AnInfiniteNumberIsNamedWithItsSite)
{
    auto const path = raw_file("a.dat", {1, 2, -std::numeric_limits<double>::infinity(), 4, 5, 6});
    expect_bad_input(path, path + ": site 1: y is infinite");
}

TEST_F(DataFile, ARawFileOf32767SitesIsRead)
{
    EXPECT_EQ(read_data_file(raw_file("a.dat", sites_on_a_line(32767)), {}).count(), 32767u);
}

TEST_F(DataFile, ARawFileOf32768SitesIsTooLong)
{
    auto const path = raw_file("a.dat", sites_on_a_line(32768));
    expect_bad_input(path, path + ": 32768 sites are more than the 32767 that a control takes");
}

// --- Any file
// -----------------------------------------------------------------------------------------------------------

TEST_F(DataFile, AMissingFileIsNamedAndStaysMissing)
{
    expect_bad_input(path("a.dat"), path("a.dat") + ": No such file or directory");
    expect_bad_input(path("a.csv"), path("a.csv") + ": No such file or directory");
    EXPECT_EQ(file_count(), 0u);
}

TEST_F(DataFile, ADirectoryIsNoDataFile)
{
    expect_bad_input(folder().string(), folder().string() + ": is a directory, not a data file");
}

TEST_F(DataFile, AnEmptyFileIsNothingToPlot)
{
    auto const found = rejection(file("a.dat", ""));
    EXPECT_EQ(found.line, path("a.dat") + ": the file is empty");
    EXPECT_EQ(found.exit, Exit::NothingToPlot);
    EXPECT_EQ(rejection(file("a.csv", "")).exit, Exit::NothingToPlot);
}

// --- CSV
// ------------------------------------------------------------------------------------------------------------------

TEST_F(DataFile, ACsvNamesItsColumnsInAnyOrderAndCase)
{
    auto const data = read_data_file(file("a.csv", "Z,note,X,y\n5,a,1,2\n-6.5e1,b,3,4\n"), {});
    EXPECT_EQ(data.source, SiteData::Source::Csv);
    EXPECT_EQ(list(data.x), (std::vector<double>{1, 3}));
    EXPECT_EQ(list(data.y), (std::vector<double>{2, 4}));
    EXPECT_EQ(list(data.z), (std::vector<double>{5, -65}));
    EXPECT_EQ(data.x.lower_bound(), 0);
}

TEST_F(DataFile, ACsvMayHaveSemicolonsAndDecimalCommas)
{
    auto const data = read_data_file(file("a.CSV", "x;y;z\n1,5;+2;0,25\n"), {});
    EXPECT_EQ(list(data.x), std::vector<double>{1.5});
    EXPECT_EQ(list(data.y), std::vector<double>{2});
    EXPECT_EQ(list(data.z), std::vector<double>{0.25});
}

TEST_F(DataFile, ACsvMayHaveTabs)
{
    EXPECT_EQ(list(read_data_file(file("a.tsv", "x\ty\tz\n1\t2\t3,5\n"), {}).z), std::vector<double>{3.5});
}

TEST_F(DataFile, AByteOrderMarkLineEndsBlankLinesAndQuotesAreAccepted)
{
    auto const data =
        read_data_file(file("a.csv", "\xEF\xBB\xBF\"x\", y ,\"z\"\r\n\r\n\"1\",\" 2 \",3\r\n  \r\n4,5,6"), {});
    EXPECT_EQ(list(data.x), (std::vector<double>{1, 4}));
    EXPECT_EQ(list(data.y), (std::vector<double>{2, 5}));
    EXPECT_EQ(list(data.z), (std::vector<double>{3, 6}));
}

TEST_F(DataFile, ASeparatorInQuotesSeparatesNothing)
{
    EXPECT_EQ(list(read_data_file(file("a.csv", "note,x,y,z\n\"a,\"\"b\",1,2,3\n"), {}).x), std::vector<double>{1});
}

TEST_F(DataFile, AMissingColumnIsNamedWithItsLine)
{
    auto const path = file("a.csv", "\nx,y,value\n1,2,3\n");
    expect_bad_input(path, path + ":2: expected a header with the columns x, y, z, found no z");
}

TEST_F(DataFile, AColumnThatStandsTwiceIsRejected)
{
    auto const path = file("a.csv", "x,y,z,Z\n1,2,3,4\n");
    expect_bad_input(path, path + ":1: expected one column z, found two");
}

TEST_F(DataFile, TextInANumberIsNamedWithItsLine)
{
    auto const path = file("a.csv", "x,y,z\n1,2,3\n1,2,three\n");
    expect_bad_input(path, path + ":3: expected a number in column z, found \"three\"");
}

TEST_F(DataFile, AnEmptyCellIsNoNumber)
{
    auto const path = file("a.csv", "x,y,z\n1,,3\n");
    expect_bad_input(path, path + ":2: expected a number in column y, found \"\"");
}

TEST_F(DataFile, ADecimalCommaBetweenCommasIsOneColumnTooMany)
{
    auto const path = file("a.csv", "x,y,z\n1,5,2,3\n");
    expect_bad_input(path, path + ":2: expected 3 columns as in the header, found 4");
}

TEST_F(DataFile, AThousandsMarkIsNoNumber)
{
    auto const path = file("a.csv", "x;y;z\n1.000,5;2;3\n");
    expect_bad_input(path, path + ":2: expected a number in column x, found \"1.000,5\"");
}

TEST_F(DataFile, NotANumberAndInfinityAreRejected)
{
    for (std::string const cell : {"nan", "inf", "-Infinity", "1e999"}) {
        auto const path = file("a.csv", "x,y,z\n" + cell + ",2,3\n");
        expect_bad_input(path, path + ":2: expected a finite number in column x, found \"" + cell + '"');
    }
}

TEST_F(DataFile, ATinyNumberIsZero)
{
    EXPECT_EQ(list(read_data_file(file("a.csv", "x,y,z\n1,2,1e-999\n"), {}).z), std::vector<double>{0});
}

TEST_F(DataFile, ARowThatIsTooShortIsNamed)
{
    auto const path = file("a.csv", "x,y,z\n1,2,3\n\n1,2\n");
    expect_bad_input(path, path + ":4: expected 3 columns as in the header, found 2");
}

TEST_F(DataFile, AHeaderAloneIsNothingToPlot)
{
    auto const found = rejection(file("a.csv", "x,y,z\n"));
    EXPECT_EQ(found.line, path("a.csv") + ":2: expected a row of numbers behind the header, the file ends");
    EXPECT_EQ(found.exit, Exit::NothingToPlot);
}

TEST_F(DataFile, AnOpenQuoteIsRejected)
{
    auto const path = file("a.csv", "x,y,z\n1,\"2,3\n");
    expect_bad_input(path, path + ":2: expected a closing quote");
}

TEST_F(DataFile, Utf16IsRejectedInWords)
{
    auto const path = file("a.csv", std::string("\xFF\xFEx\0,\0", 6));
    expect_bad_input(path, path + ":1: expected text in UTF-8 or ASCII, found UTF-16");
}

TEST_F(DataFile, ControlLettersAndLongTextsDoNotReachTheMessage)
{
    auto const path = file("a.csv", "x,y,z\n1,2,\x1b[31m" + std::string(100, 'q') + "\n");
    expect_bad_input(path, path + ":2: expected a number in column z, found \"?[31m" + std::string(35, 'q') + "...\"");
}

TEST_F(DataFile, ACsvOf32767RowsIsRead)
{
    EXPECT_EQ(read_data_file(file("a.csv", csv_rows(32767)), {}).count(), 32767u);
}

TEST_F(DataFile, ACsvOfMoreRowsTellsTheirNumberAndTheLimit)
{
    auto const path = file("a.csv", csv_rows(40000));
    expect_bad_input(path, path + ": 40000 sites are more than the 32767 that a control takes");
}

TEST_F(DataFile, ACountOfSitesIsNotForACsv)
{
    auto const path = file("a.csv", csv_rows(2));
    EXPECT_EQ(rejection(path, 1).line, "--sites: is for raw data files, the rows of " + path + " count themselves");
}

} // namespace zendara::program
