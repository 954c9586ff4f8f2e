#include "commands.hpp"
#include "loaded_control.hpp"
#include "platform/headless/png_file.hpp"
#include "platform/headless/window_painter.hpp"
#include "progress.hpp"
#include "setting.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace zendara::program
{

namespace
{

namespace fs = std::filesystem;

fs::path output_path(PlotOptions const& options)
{
    if (options.output.empty())
        return fs::path(options.data.file).filename().replace_extension(".png");
    return options.output;
}

void check_output(fs::path const& output, std::string const& data_file)
{
    auto const ending = output.extension();
    if (ending == ".svg" || ending == ".pdf")
        throw UserError("-o " + output.string() + ": " + ending.string() + " files cannot be written yet, only .png");
    if (ending != ".png")
        throw UserError("-o " + output.string() + ": expected a name that ends in .png");
    std::error_code ignored;
    if (fs::equivalent(output, data_file, ignored))
        throw UserError("-o " + output.string() + ": is the data file itself");
}

Size parse_pixels(std::string const& text)
{
    constexpr double most = 16384;
    Size const pixels = parse_size("--pixels", text);
    if (pixels.width != std::floor(pixels.width) || pixels.height != std::floor(pixels.height) ||
        std::max(pixels.width, pixels.height) > most)
        throw UserError("--pixels: expected whole numbers from 1 to 16384, not \"" + text + "\"");
    return pixels;
}

void set_limits(Control& control, std::vector<double> const& limits)
{
    if (limits.empty())
        return;
    bool const is_range = std::isfinite(limits[0]) && std::isfinite(limits[1]) && limits[0] < limits[1];
    if (!is_range)
        throw UserError("--limits: the lower limit has to lie below the upper one");
    std::vector<Value> arguments = {limits[0], limits[1]};
    call_member(control, "SetPlotLimit", arguments);
}

void tell_messages(HeadlessPlatform& platform)
{
    for (auto message : platform.take_messages()) {
        std::replace(message.text.begin(), message.text.end(), '\n', ' ');
        std::fprintf(stderr, "zendara: %s: %s\n", message.title.c_str(), message.text.c_str());
    }
}

} // namespace

Exit plot(PlotOptions const& options)
{
    auto const output = output_path(options);
    check_output(output, options.data.file);
    LoadedControl loaded(options.control, parse_pixels(options.pixels), options.data);
    auto& control = loaded.control();
    for (auto const& setting : options.settings)
        apply_setting(control, setting);
    set_limits(control, options.limits);

    std::vector<Value> none;
    Value const result = call_member(control, "Plot", none);
    tell_messages(loaded.platform());
    if (to_double(result) != 0)
        throw UserError(options.data.file + ": there is nothing to plot", Exit::NothingToPlot);
    write_png(paint_child(control.window(), loaded.platform().glyphs()), output);
    return Exit::Done;
}

} // namespace zendara::program
