#include "commands.hpp"
#include "json.hpp"
#include "loaded_control.hpp"
#include "statistics.hpp"
#include "zendara/support/number_text.hpp"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace zendara::program
{

namespace
{

/// The shortest text that reads back as the same number; 17 digits are always enough.
std::string exact(double value)
{
    char text[32];
    for (int digits = 15; digits <= 17; ++digits) {
        std::snprintf(text, sizeof text, "%.*g", digits, value);
        if (std::strtod(text, nullptr) == value)
            break;
    }
    return text;
}

char const* word(bool is_true)
{
    return is_true ? "true" : "false";
}

std::string as_text(Statistics const& statistics)
{
    constexpr std::size_t label_width = 20;
    auto const row = [](std::string label, std::string const& value) {
        label.resize(label_width, ' ');
        return label + value + '\n';
    };
    std::string text = row("sites", std::to_string(statistics.sites));
    for (std::size_t i = 0; i < statistic_figures.size(); ++i)
        text += row(std::string(statistic_figures[i].label),
                    format_label(statistics.values[i]) + std::string(statistic_figures[i].unit));
    text += row("zero values", statistics.has_zero ? "yes" : "no");
    text += row("negative values", statistics.has_negative ? "yes" : "no");
    return text;
}

std::string as_json(Statistics const& statistics)
{
    std::string text = "{\"file\": " + json_text(statistics.file) + ", \"sites\": " + std::to_string(statistics.sites);
    for (std::size_t i = 0; i < statistic_figures.size(); ++i)
        text += ", \"" + std::string(statistic_figures[i].member) + "\": " + exact(statistics.values[i]);
    return text + ", \"zero\": " + word(statistics.has_zero) + ", \"negative\": " + word(statistics.has_negative) +
           "}\n";
}

std::string csv_cell(std::string const& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string cell = "\"";
    for (char const c : text)
        cell += c == '"' ? std::string("\"\"") : std::string(1, c);
    return cell + '"';
}

std::string as_csv(Statistics const& statistics)
{
    std::string header = "file,sites";
    std::string row = csv_cell(statistics.file) + ',' + std::to_string(statistics.sites);
    for (std::size_t i = 0; i < statistic_figures.size(); ++i) {
        header += ',' + std::string(statistic_figures[i].member);
        row += ',' + exact(statistics.values[i]);
    }
    return header + ",zero,negative\n" + row + ',' + word(statistics.has_zero) + ',' + word(statistics.has_negative) +
           '\n';
}

} // namespace

Exit stats(StatsOptions const& options)
{
    constexpr Size smallest_control = {300, 212}; // pixels; nothing is drawn
    LoadedControl loaded("ZvPlot2D", smallest_control, options.data);
    auto const statistics = statistics_of(loaded, options.data.file);
    auto const text = options.format == "json"  ? as_json(statistics)
                      : options.format == "csv" ? as_csv(statistics)
                                                : as_text(statistics);
    std::fputs(text.c_str(), stdout);
    return Exit::Done;
}

} // namespace zendara::program
