// Any bytes as a CSV and as a raw data file: a file either is rejected in words or yields finite sites.

#include "csv_table.hpp"
#include "data_file.hpp"
#include "progress.hpp"
#include "zendara/support/file.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

using namespace zendara::program;

void expect(bool holds, char const* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

bool is_finite(std::span<double const> values)
{
    return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

void check(SiteData const& data)
{
    expect(data.count() >= 1 && data.count() <= most_sites, "a file without sites, or with too many, was read");
    expect(data.y.values().size() == data.count() && data.z.values().size() == data.count(), "a column is shorter");
    expect(is_finite(data.x.values()) && is_finite(data.y.values()) && is_finite(data.z.values()),
           "a number is not finite");
}

template <class Read> void read_and_check(Read read)
{
    try {
        check(read());
    } catch (UserError const& error) {
        std::string const line = error.what();
        expect(!line.empty(), "an error has no words");
        expect(line.find('\n') == std::string::npos, "an error takes more than one line");
    }
}

void read_as_csv(std::uint8_t const* bytes, std::size_t size)
{
    zendara::File const file(fmemopen(const_cast<std::uint8_t*>(bytes), size, "rb"));
    expect(file != nullptr, "the bytes cannot be opened");
    read_and_check([&] {
        Progress progress("reading");
        return read_csv(file.get(), "fuzz.csv", size, progress);
    });
}

void read_as_raw(std::uint8_t const* bytes, std::size_t size, std::optional<std::int64_t> sites)
{
    int const file = memfd_create("fuzz", 0);
    expect(file >= 0 && write(file, bytes, size) == static_cast<ssize_t>(size), "the bytes cannot be written");
    read_and_check([&] { return read_data_file("/proc/self/fd/" + std::to_string(file), sites); });
    close(file);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    if (size < 2)
        return 0;
    auto const sites = static_cast<std::int8_t>(data[0]); // 0 stands for none given
    read_as_csv(data + 1, size - 1);
    read_as_raw(data + 1, size - 1, sites == 0 ? std::nullopt : std::optional<std::int64_t>(sites));
    return 0;
}
