#include "data_file.hpp"

#include "csv_table.hpp"
#include "progress.hpp"
#include "zendara/support/file.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>
#include <vector>

namespace zendara::program
{

namespace
{

constexpr std::uint64_t bytes_per_site = 24; // x, y and Z as 64-bit floats

struct OpenFile {
    File file;
    std::uint64_t size = 0; // bytes
};

/// Opens for reading alone: a missing file stays missing.
OpenFile open(std::string const& path)
{
    OpenFile result{File(std::fopen(path.c_str(), "rb"))};
    if (!result.file)
        throw UserError(path + ": " + std::strerror(errno));
    struct stat status = {};
    if (fstat(fileno(result.file.get()), &status) != 0)
        throw UserError(path + ": " + std::strerror(errno));
    if (S_ISDIR(status.st_mode))
        throw UserError(path + ": is a directory, not a data file");
    if (!S_ISREG(status.st_mode))
        throw UserError(path + ": is not a regular file");
    result.size = static_cast<std::uint64_t>(status.st_size);
    if (result.size == 0)
        throw UserError(path + ": the file is empty", Exit::NothingToPlot);
    return result;
}

bool is_csv_name(std::string_view path)
{
    auto const dot = path.rfind('.');
    if (dot == std::string_view::npos)
        return false;
    std::string ending(path.substr(dot));
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return ending == ".csv" || ending == ".tsv" || ending == ".txt";
}

/// The number of sites that a raw file is read for.
std::size_t count_sites(std::string const& path, std::uint64_t size, std::optional<std::int64_t> wanted)
{
    if (wanted && *wanted < 0)
        throw UserError("--sites: expected a count of sites, not " + std::to_string(*wanted));
    if (wanted && *wanted == 0)
        throw UserError("--sites: 0 sites leave nothing to plot", Exit::NothingToPlot);
    if (!wanted && size % bytes_per_site != 0)
        throw UserError(path + ": " + std::to_string(size) +
                        " bytes are no whole number of sites, which take 24 bytes each in a raw file; a CSV is told "
                        "by .csv at the end of its name");
    auto const count = wanted ? static_cast<std::uint64_t>(*wanted) : size / bytes_per_site;
    if (count > most_sites)
        throw UserError(path + ": " + std::to_string(count) + " sites are more than the " + std::to_string(most_sites) +
                        " that a control takes");
    if (count * bytes_per_site > size)
        throw UserError("--sites: " + path + " holds " + std::to_string(size) + " bytes, " + std::to_string(count) +
                        " sites take " + std::to_string(count * bytes_per_site));
    return static_cast<std::size_t>(count);
}

double from_little_endian(std::array<unsigned char, 8> bytes)
{
    if constexpr (std::endian::native == std::endian::big)
        std::reverse(bytes.begin(), bytes.end());
    return std::bit_cast<double>(bytes);
}

HostArray<double> read_block(std::FILE* file, std::string const& path, std::size_t count, char axis)
{
    std::vector<std::array<unsigned char, 8>> block(count);
    if (std::fread(block.data(), sizeof block[0], count, file) != count)
        throw UserError(path + ": cannot be read to its end");
    std::vector<double> values(count);
    for (std::size_t i = 0; i < count; ++i) {
        values[i] = from_little_endian(block[i]);
        if (!std::isfinite(values[i]))
            throw UserError(path + ": site " + std::to_string(i + 1) + ": " + axis + " is " +
                            (std::isnan(values[i]) ? "not a number" : "infinite"));
    }
    return {0, std::move(values)};
}

SiteData read_raw(OpenFile const& open, std::string const& path, std::optional<std::int64_t> sites)
{
    auto const count = count_sites(path, open.size, sites);
    auto* const file = open.file.get();
    SiteData data;
    data.x = read_block(file, path, count, 'x');
    data.y = read_block(file, path, count, 'y');
    data.z = read_block(file, path, count, 'Z');
    return data;
}

} // namespace

SiteData read_data_file(std::string const& path, std::optional<std::int64_t> sites)
{
    OpenFile const open = program::open(path);
    if (!is_csv_name(path))
        return read_raw(open, path, sites);
    if (sites)
        throw UserError("--sites: is for raw data files, the rows of " + path + " count themselves");
    Progress progress("reading " + path);
    return read_csv(open.file.get(), path, open.size, progress);
}

} // namespace zendara::program
