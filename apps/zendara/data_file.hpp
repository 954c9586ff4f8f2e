#pragma once

#include "user_error.hpp"
#include "zendara/support/host_array.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zendara::program
{

/// As many sites as a control takes.
constexpr std::size_t most_sites = 32767;

/// The measured sites of one file; x and y in millimetres from the panel's centre. The arrays begin at 0.
struct SiteData {
    /// Where they were read from, so that a raw file can be handed to a control by its name.
    enum class Source { Raw, Csv } source = Source::Raw;
    HostArray<double> x, y, z;

    std::size_t count() const { return x.values().size(); }
};

/// Reads a data file: CSV where the name ends in .csv, .tsv or .txt, raw 64-bit floats otherwise.
/// @param sites  sites of a raw file; by default its size / 24
/// @throws UserError  with a line that names the file and, in a CSV, the line; NothingToPlot for a file without sites
SiteData read_data_file(std::string const& path, std::optional<std::int64_t> sites);

} // namespace zendara::program
