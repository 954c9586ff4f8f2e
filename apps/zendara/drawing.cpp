#include "drawing.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace zendara::program
{

void tell_messages(HeadlessPlatform& platform)
{
    for (auto message : platform.take_messages()) {
        std::replace(message.text.begin(), message.text.end(), '\n', ' ');
        std::fprintf(stderr, "zendara: %s: %s\n", message.title.c_str(), message.text.c_str());
    }
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
    control.SetPlotLimit(limits[0], limits[1]);
}

void draw(LoadedControl& loaded, std::string const& data_file)
{
    std::int16_t const result = loaded.control().Plot();
    tell_messages(loaded.platform());
    if (result != 0)
        throw UserError(data_file + ": there is nothing to plot", Exit::NothingToPlot);
}

void tell_panel_note(LoadedControl const& loaded)
{
    if (!loaded.panel_note().empty())
        std::fprintf(stderr, "zendara: %s\n", loaded.panel_note().c_str());
}

} // namespace zendara::program
