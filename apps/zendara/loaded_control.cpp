#include "loaded_control.hpp"

#include "data_file.hpp"
#include "near_names.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace zendara::program
{

namespace
{

// A file of one site more is read, but the 16-bit counter of that route fails behind its last site.
constexpr std::size_t most_sites_of_a_file = 32766;

std::optional<double> length_in(std::string_view text)
{
    double value = 0;
    auto const [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    bool const is_length =
        error == std::errc() && stop == text.data() + text.size() && std::isfinite(value) && value > 0;
    return is_length ? std::optional(value) : std::nullopt;
}

ControlClass const& control_class(std::string const& name)
{
    if (auto const* const found = find_control_class(name))
        return *found;
    std::vector<std::string_view> names;
    for (auto const& known : control_classes())
        names.push_back(known.name);
    auto const hint = did_you_mean(name, names);
    throw UserError("--control: there is no control \"" + name + "\"; " +
                    (hint.empty() ? "\"zendara controls\" lists them" : hint));
}

std::string text_of(Size const& size)
{
    char text[64];
    std::snprintf(text, sizeof text, "%g x %g mm", size.width, size.height);
    return text;
}

/// A warning, or nothing when all sites lie on the panel.
std::string note_on_sites_beyond(Size const& panel_mm, SiteData const& sites, std::string const& file)
{
    auto const x = sites.x.values();
    auto const y = sites.y.values();
    std::size_t beyond = 0;
    for (std::size_t i = 0; i < x.size(); ++i)
        if (std::abs(x[i]) > panel_mm.width / 2 || std::abs(y[i]) > panel_mm.height / 2)
            ++beyond;
    if (beyond == 0)
        return {};
    return "warning: " + file + ": " + std::to_string(beyond) + " of " + std::to_string(x.size()) +
           " sites lie beyond the panel of " + text_of(panel_mm) + "; tell its size by --size";
}

/// The smallest panel about its centre that holds all sites.
Size size_around(SiteData const& sites)
{
    auto const reach = [](std::span<double const> coordinates) {
        double largest = 0;
        for (double const coordinate : coordinates)
            largest = std::max(largest, std::abs(coordinate));
        return 2 * largest;
    };
    double const width = reach(sites.x.values());
    double const height = reach(sites.y.values());
    return {width > 0 ? width : height, height > 0 ? height : width};
}

bool holds(Size const& panel_mm, Size const& extent)
{
    return extent.width <= panel_mm.width && extent.height <= panel_mm.height;
}

bool loads_from_file(Control& control, SiteData const& sites, std::string const& file)
{
    if (sites.source != SiteData::Source::Raw || sites.count() > most_sites_of_a_file)
        return false;
    return control.SetDataFile(file, static_cast<double>(sites.count())) == 0;
}

bool loads_from_arrays(Control& control, SiteData const& sites)
{
    return control.SetPanelData(sites.x.values(), sites.y.values(), sites.z.values()) == 0;
}

} // namespace

Size parse_size(std::string const& option, std::string const& text)
{
    auto const cross = text.find_first_of("xX");
    if (cross != std::string::npos) {
        auto const width = length_in(std::string_view(text).substr(0, cross));
        auto const height = length_in(std::string_view(text).substr(cross + 1));
        if (width && height)
            return {*width, *height};
    }
    throw UserError(option + ": expected WIDTHxHEIGHT, 300x200 for example, not \"" + text + "\"");
}

LoadedControl::LoadedControl(std::string const& control, Size const& pixels, DataOptions const& data)
{
    auto const& wanted = control_class(control);
    if (!data.size.empty())
        panel_mm_ = parse_size("--size", data.size);
    SiteData const sites = read_data_file(data.file, data.sites);
    site_count_ = sites.count();
    choose_panel(data.size, sites);

    control_ = wanted.make(platform_);
    control_->InitProperties();
    control_->window().resize(pixels.width * platform_.twips_per_pixel_x(),
                              pixels.height * platform_.twips_per_pixel_y());
    control_->PanelSizeX(panel_mm_.width);
    control_->PanelSizeY(panel_mm_.height);

    // The file route wants to open the file for writing as well; a file that may only be read goes in by arrays.
    if (!loads_from_file(*control_, sites, data.file) && !loads_from_arrays(*control_, sites))
        throw UserError(data.file +
                        ": the sites cannot be taken: a value is too large, or a site lies far beyond the "
                        "panel of " +
                        text_of(panel_mm_) + " (--size)");
    panel_note_ = is_panel_fitted_
                      ? "note: the panel is taken as " + text_of(panel_mm_) + ", which holds all sites; --size tells it"
                      : note_on_sites_beyond(panel_mm_, sites, data.file);
}

// Without a size from the user, the usual panel is taken as long as it holds all sites.
void LoadedControl::choose_panel(std::string const& size, SiteData const& sites)
{
    Size const needed = size_around(sites);
    is_panel_fitted_ = size.empty() && !holds(panel_mm_, needed);
    if (is_panel_fitted_)
        panel_mm_ = needed;
}

} // namespace zendara::program
