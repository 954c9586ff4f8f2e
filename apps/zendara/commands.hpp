#pragma once

#include "user_error.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zendara::program
{

/// A width and a height, of a panel in millimetres or of a picture in pixels.
struct Size {
    double width = 0;
    double height = 0;
};

/// Reads "300x200".
/// @param option  named in the message
/// @throws UserError  when the text is not two numbers above 0
Size parse_size(std::string const& option, std::string const& text);

/// Where the sites come from, and on what panel they lie.
struct DataOptions {
    std::string file;
    std::optional<std::int64_t> sites; // of a raw file; by default its size tells
    std::string size;                  // of the panel, in millimetres; empty: 300x200, or what holds all sites
};

struct PlotOptions {
    DataOptions data;
    std::string control = "ZvPlot2D";
    std::string pixels = "1000x700";
    std::vector<std::string> settings; // NAME=VALUE
    std::vector<double> limits;        // none, or the lower and the upper
    std::string output;                // by default the data file's name with .png
};

struct GalleryOptions {
    DataOptions data;
    std::string pixels = "1000x700";
    std::vector<double> limits; // none, or the lower and the upper
    std::string folder;
};

struct ReportOptions {
    DataOptions data;
    std::string page = "A4";
    bool is_landscape = false;
    std::vector<std::string> controls; // empty: all
    std::vector<std::string> settings; // NAME=VALUE, for each control that has the property
    std::vector<double> limits;        // none, or the lower and the upper
    std::string units;                 // of the values, for the statistics
    std::string date;                  // as it is to stand on the pages
    std::string output;
};

struct StatsOptions {
    DataOptions data;
    std::string format = "text";
};

struct RunOptions {
    std::string script; // "-" is standard input
    bool trace = false;
};

struct ControlsOptions {
    std::string name; // empty: the list of all
    std::string format = "text";
};

// Each command throws UserError for bad input, with nothing written by then.

Exit plot(PlotOptions const& options);
Exit gallery(GalleryOptions const& options);
Exit report(ReportOptions const& options);
Exit stats(StatsOptions const& options);
Exit run(RunOptions const& options);
Exit controls(ControlsOptions const& options);

} // namespace zendara::program
