#include "zendara/panel/load.hpp"

#include "zendara/support/checked.hpp"
#include "zendara/support/file.hpp"
#include "zendara/support/trap.hpp"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <utility>
#include <vector>

namespace zendara
{

namespace
{

using Array = HostArray<double>;
using View = HostArrayView<double>;

// The last site of so many that a 16-bit site number reaches.
std::int32_t reachable_sites(double nop)
{
    return std::min<std::int32_t>(to_i32(nop), std::numeric_limits<std::int16_t>::max());
}

struct SiteColumns {
    Array x, y, Z;
};

// Three columns that somebody else holds.
struct SiteViews {
    View x, y, Z;
};

// The indices of the sites in their columns, both inclusive.
struct Bounds {
    std::int16_t lower = 1, upper = 0;
};

// One load, step by step, each under a trap of its own name: a step that fails ends the load.
class Load
{
public:
    Load(panel& record, char const* routine, bool keep_limits)
        : record_(record), routine_(routine), keep_limits_(keep_limits), maximal_(record.maximal),
          minimal_(record.minimal)
    {
    }

    template <class Step> bool runs(char const* name, Step&& step)
    {
        return trap({record_.container, record_, routine_, name}, std::forward<Step>(step));
    }

    // What is left when all sites are stored. Plot limits outlive the old data.
    LoadResult finish()
    {
        bool const is_done = runs("statistics", [&] { record_.MaxMin(); }) &&
                             (!keep_limits_ || runs("plot limits", [&] { give_limits_back(); }));
        return is_done ? LoadResult::Done : LoadResult::RunTimeFailure;
    }

private:
    void give_limits_back() { record_.setMaximalMinial(maximal_, minimal_); }

    panel& record_;
    char const* routine_;
    bool keep_limits_;
    double maximal_, minimal_;
};

// One equal pair is enough: one wrong array passes and fails at its first missing element.
bool lets_pass(std::int32_t bound_x, std::int32_t bound_y, std::int32_t bound_Z)
{
    return bound_x == bound_y || bound_Z == bound_y;
}

LoadResult compare_bounds(SiteViews const& sites, Bounds& bounds)
{
    auto const& [x, y, Z] = sites;
    if (!lets_pass(x.upper_bound(), y.upper_bound(), Z.upper_bound()))
        return LoadResult::UpperBoundsDiffer;
    bounds.upper = to_i16(x.upper_bound());
    if (!lets_pass(x.lower_bound(), y.lower_bound(), Z.lower_bound()))
        return LoadResult::LowerBoundsDiffer;
    bounds.lower = to_i16(x.lower_bound());
    return LoadResult::Done;
}

// In 16 bits as its operands are, and so with a failure where a step leaves them: 0 to 32767 is one site too many.
std::int16_t count_of_sites(Bounds const& bounds)
{
    return to_i16(to_i16(bounds.upper - bounds.lower) + 1);
}

[[noreturn]] void fail_with_coordinate(char axis, std::int16_t index, double value)
{
    throw Failure(FailureKind::Overflow,
                  std::string(1, axis) + '(' + std::to_string(index) + ") is no finite number: " + shown(value));
}

// The table of sites takes no other coordinates, and below 10 sites there is no table that would say so.
double finite_coordinate(View const& column, char axis, std::int16_t index)
{
    double const value = column(index);
    if (!std::isfinite(value))
        fail_with_coordinate(axis, index, value);
    return value;
}

void store_sites(panel& record, SiteViews const& sites, Bounds const& bounds)
{
    for (std::int16_t i = bounds.lower; i <= bounds.upper; count_on(i)) {
        double const x = finite_coordinate(sites.x, 'x', i);
        double const y = finite_coordinate(sites.y, 'y', i);
        record.SetGridValue(x, y, sites.Z(i));
    }
}

[[noreturn]] void fail_with_last_error(std::string const& path)
{
    throw Failure(FailureKind::FileError, path + ": " + std::strerror(errno));
}

File open_for_reading_and_writing(std::string const& path)
{
    // Appending is the mode that creates a missing file and never cuts one that exists.
    File file(std::fopen(path.c_str(), "a+b"));
    if (file == nullptr)
        fail_with_last_error(path);
    std::rewind(file.get());
    return file;
}

double from_little_endian(unsigned char const* bytes)
{
    std::uint64_t bits = 0;
    for (int i = 7; i >= 0; --i)
        bits = bits << 8 | bytes[i];
    double value = 0;
    static_assert(sizeof value == sizeof bits && std::numeric_limits<double>::is_iec559);
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

// What the file lacks stays 0.
void read_values(File const& file, std::string const& path, std::span<double> values)
{
    std::vector<unsigned char> bytes(8 * values.size());
    std::size_t const count = std::fread(bytes.data(), 8, values.size(), file.get());
    if (std::ferror(file.get()) != 0)
        fail_with_last_error(path);
    for (std::size_t i = 0; i < count; ++i)
        values[i] = from_little_endian(&bytes[8 * i]);
}

SiteColumns read_columns(std::string const& path, double nops)
{
    SiteColumns columns;
    // A count beyond 16 bits fails before any value is used, so there is no need to read so many.
    for (Array* const column : {&columns.x, &columns.y, &columns.Z})
        column->redim(1, reachable_sites(nops));

    File const file = open_for_reading_and_writing(path);
    for (Array* const column : {&columns.x, &columns.y, &columns.Z})
        read_values(file, path, column->values());
    return columns;
}

} // namespace

LoadResult load_arrays(panel& record, HostArrayView<double> x, HostArrayView<double> y, HostArrayView<double> Z,
                       bool keep_limits)
{
    SiteViews const sites{x, y, Z};
    Bounds bounds;
    Load load(record, "SetPanelData", keep_limits);

    LoadResult compared = LoadResult::RunTimeFailure;
    load.runs("bounds", [&] { compared = compare_bounds(sites, bounds); });
    if (compared != LoadResult::Done)
        return compared;

    record.reset();
    bool const is_stored = load.runs("count of sites", [&] { record.SetNop(count_of_sites(bounds)); }) &&
                           load.runs("sites", [&] { store_sites(record, sites, bounds); });
    return is_stored ? load.finish() : LoadResult::RunTimeFailure;
}

LoadResult load_file(panel& record, std::string const& datafile, double nops, bool keep_limits)
{
    SiteColumns columns;
    Load load(record, "SetDataFile", keep_limits);

    record.reset();
    bool const is_stored = load.runs("count of sites", [&] { record.SetNop(nops); }) &&
                           load.runs("data file", [&] { columns = read_columns(datafile, nops); }) &&
                           load.runs("sites", [&] {
                               store_sites(record, {columns.x, columns.y, columns.Z}, {1, to_i16(nops)});
                           });
    return is_stored ? load.finish() : LoadResult::RunTimeFailure;
}

double read_sites(panel const& record, HostArray<double>& x, HostArray<double>& y, HostArray<double>& Z)
{
    double const nop = record.GetNop();
    if (!(nop > 0))
        return nop;

    for (Array* const column : {&x, &y, &Z})
        column->redim(1, reachable_sites(nop));
    Array position(1, {0.0, 0.0});
    for (std::int16_t i = 1; i <= nop; count_on(i)) {
        Z(i) = record.GetGridValue(i, position);
        x(i) = position(1);
        y(i) = position(2);
    }
    return nop;
}

BooleanWord ApplyPlotLimit(panel& panobj, double LPL, double UPL)
{
    if (LPL >= UPL)
        return false;
    panobj.setMaximalMinial(UPL, LPL);
    return true;
}

} // namespace zendara
