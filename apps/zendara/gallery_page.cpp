#include "gallery_page.hpp"

#include "zendara/support/number_text.hpp"

#include <cstdio>

namespace zendara::program
{

namespace
{

constexpr std::string_view style = R"(
:root { color-scheme: light dark; --line: #8884; --soft: #888; }
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 80rem; padding: 1rem; font: 1rem/1.5 system-ui, sans-serif; }
h1 { font-size: 1.5rem; overflow-wrap: anywhere; }
h2 { font-size: 1.15rem; margin: 0; }
table { border-collapse: collapse; width: 100%; }
th, td { border-bottom: 1px solid var(--line); padding: .2rem .5rem .2rem 0; text-align: left; vertical-align: top; }
td.number { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
.figures { max-width: 26rem; }
.plots { display: grid; gap: 2rem; grid-template-columns: repeat(auto-fit, minmax(min(100%, 34rem), 1fr)); }
.plots p { margin: 0 0 .5rem; color: var(--soft); }
img { width: 100%; height: auto; border: 1px solid var(--line); }
summary { cursor: pointer; padding: .5rem 0; }
.swatch { display: inline-block; width: 1em; height: 1em; border: 1px solid var(--soft); vertical-align: -.15em; }
nav a { margin-right: .75rem; white-space: nowrap; }
)";

std::string escaped(std::string_view text)
{
    std::string html;
    for (char const letter : text) {
        if (letter == '&')
            html += "&amp;";
        else if (letter == '<')
            html += "&lt;";
        else if (letter == '>')
            html += "&gt;";
        else if (letter == '"')
            html += "&quot;";
        else
            html += letter;
    }
    return html;
}

std::string color_text(Value const& value)
{
    Color const color = plain_color(from_value<Color>(value));
    char hex[8];
    std::snprintf(hex, sizeof hex, "#%02x%02x%02x", static_cast<unsigned>(color & 255),
                  static_cast<unsigned>(color >> 8 & 255), static_cast<unsigned>(color >> 16 & 255));
    return std::string("<span class=\"swatch\" style=\"background:") + hex + "\"></span> " + hex;
}

std::string value_text(GallerySetting const& setting)
{
    if (setting.type == Type::Color)
        return color_text(setting.value);
    if (setting.type == Type::Bool)
        return to_double(setting.value) != 0 ? "yes" : "no";
    if (setting.enumeration != nullptr)
        for (auto const& item : setting.enumeration->items)
            if (item.value == to_double(setting.value))
                return escaped(item.name);
    return escaped(to_text(setting.value));
}

std::string figure_row(std::string_view label, std::string const& value)
{
    return "<tr><th scope=\"row\">" + escaped(label) + "</th><td class=\"number\">" + escaped(value) + "</td></tr>\n";
}

std::string statistics_table(Gallery const& gallery)
{
    auto const& statistics = gallery.statistics;
    std::string html = "<table class=\"figures\">\n<caption hidden>Statistics</caption>\n";
    html +=
        figure_row("panel", plain_text(gallery.panel_mm.width) + " x " + plain_text(gallery.panel_mm.height) + " mm");
    html += figure_row("sites", std::to_string(statistics.sites));
    for (std::size_t i = 0; i < statistic_figures.size(); ++i)
        html += figure_row(statistic_figures[i].label,
                           format_label(statistics.values[i]) + std::string(statistic_figures[i].unit));
    return html + "</table>\n";
}

std::string settings_table(GalleryPlot const& plot)
{
    std::string html = "<details><summary>Settings</summary>\n<table>\n";
    for (auto const& setting : plot.settings)
        html += "<tr><th scope=\"row\">" + escaped(setting.name) + "</th><td>" + value_text(setting) + "</td><td>" +
                escaped(setting.help) + "</td></tr>\n";
    return html + "</table>\n</details>\n";
}

std::string section(Gallery const& gallery, GalleryPlot const& plot)
{
    std::string const size =
        " width=\"" + std::to_string(plot.width_px) + "\" height=\"" + std::to_string(plot.height_px) + '"';
    return "<section id=\"" + plot.name + "\">\n<h2>" + plot.name + "</h2>\n<p>" + escaped(plot.help) +
           "</p>\n<a href=\"" + plot.picture + "\"><img src=\"" + plot.picture + "\"" + size + " alt=\"" +
           escaped(plot.help + " Data: " + gallery.title + ", " + std::to_string(gallery.statistics.sites) +
                   " sites.") +
           "\"></a>\n" + settings_table(plot) + "</section>\n";
}

} // namespace

std::string gallery_page(Gallery const& gallery)
{
    std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
                       escaped(gallery.title) + "</title>\n<style>" + std::string(style) +
                       "</style>\n</head>\n<body>\n";
    html += "<h1>" + escaped(gallery.title) + "</h1>\n<nav>";
    for (auto const& plot : gallery.plots)
        html += "<a href=\"#" + plot.name + "\">" + plot.name + "</a>";
    html += "</nav>\n" + statistics_table(gallery) + "<div class=\"plots\">\n";
    for (auto const& plot : gallery.plots)
        html += section(gallery, plot);
    return html + "</div>\n</body>\n</html>\n";
}

} // namespace zendara::program
