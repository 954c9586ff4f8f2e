// The command line program. This file alone knows how options are written; the commands know nothing of it.

#include "commands.hpp"
#include "zendara/support/failure.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <string>

namespace
{

using namespace zendara::program;

void add_data_options(CLI::App& command, DataOptions& data)
{
    command.add_option("DATA", data.file, "Sites: a CSV with the columns x, y, z, or raw 64-bit floats")->required();
    command.add_option("--size", data.size,
                       "Width and height of the panel in mm; by default 300x200, or what holds all sites");
    command.add_option("--sites", data.sites, "Sites in a raw file; by default its size / 24");
}

void add_limits(CLI::App& command, std::vector<double>& limits)
{
    command.add_option("--limits", limits, "Lower and upper limit of the colour scale")->expected(2);
}

void add_pixels(CLI::App& command, std::string& pixels)
{
    command.add_option("--pixels", pixels, "Width and height of the picture")->capture_default_str();
}

void add_settings(CLI::App& command, std::vector<std::string>& settings)
{
    command.add_option("--set", settings, "NAME=VALUE: set a property; \"zendara controls NAME\" lists them")
        ->allow_extra_args(false);
}

CLI::App& add_plot(CLI::App& program, PlotOptions& options)
{
    auto& command = *program.add_subcommand("plot", "Draw a control as a picture");
    add_data_options(command, options.data);
    command.add_option("--control", options.control, "Which control draws")->capture_default_str();
    add_pixels(command, options.pixels);
    add_settings(command, options.settings);
    add_limits(command, options.limits);
    command.add_option("-o,--output", options.output, "The picture, .png, .pdf or .svg; by default named after DATA");
    return command;
}

CLI::App& add_gallery(CLI::App& program, GalleryOptions& options)
{
    auto& command = *program.add_subcommand("gallery", "Draw all controls, with a page that shows them");
    add_data_options(command, options.data);
    add_pixels(command, options.pixels);
    add_limits(command, options.limits);
    command.add_option("-o,--output", options.folder, "The folder for the pictures and index.html")->required();
    return command;
}

CLI::App& add_report(CLI::App& program, ReportOptions& options)
{
    auto& command = *program.add_subcommand("report", "Print all controls, with legends and statistics, as PDF");
    add_data_options(command, options.data);
    command.add_option("-o,--output", options.output, "The report, .pdf")->required();
    command.add_option("--page", options.page, "A4 or Letter")->capture_default_str();
    command.add_flag("--landscape", options.is_landscape, "Pages lie on their long side");
    command.add_option("--controls", options.controls, "Which controls are printed, with commas between")
        ->delimiter(',')
        ->allow_extra_args(false);
    add_settings(command, options.settings);
    add_limits(command, options.limits);
    command.add_option("--units", options.units, "Unit of the values, printed with the statistics");
    command.add_option("--date", options.date, "Printed on each page as it is");
    return command;
}

CLI::App& add_stats(CLI::App& program, StatsOptions& options)
{
    auto& command = *program.add_subcommand("stats", "Print the statistics of a panel");
    add_data_options(command, options.data);
    command.add_option("--format", options.format, "text, json or csv")
        ->check(CLI::IsMember({"text", "json", "csv"}))
        ->capture_default_str();
    return command;
}

CLI::App& add_run(CLI::App& program, RunOptions& options)
{
    auto& command = *program.add_subcommand("run", "Run a host script");
    command.add_option("SCRIPT", options.script, "A JSON file with steps, or - for standard input")->required();
    command.add_flag("--trace", options.trace, "Every surface records its drawing calls");
    return command;
}

CLI::App& add_controls(CLI::App& program, ControlsOptions& options)
{
    auto& command = *program.add_subcommand("controls", "List the controls, or the members of one");
    command.add_option("NAME", options.name, "A control");
    command.add_option("--format", options.format, "text or json")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    return command;
}

Exit fail_with(std::string line, Exit exit)
{
    std::replace(line.begin(), line.end(), '\n', ' ');
    std::fprintf(stderr, "zendara: %s\n", line.c_str());
    return exit;
}

/// The outer edge: whatever a command could not do ends here, in one line.
Exit guarded(std::function<Exit()> const& command)
{
    try {
        return command();
    } catch (UserError const& error) {
        return fail_with(error.what(), error.exit());
    } catch (std::exception const& error) {
        return fail_with(error.what(), Exit::BadInput);
    }
}

Exit run_program(int count, char** words)
{
    CLI::App program("Plots of the measured data of one panel.", "zendara");
    auto const add_version = [](CLI::App& app) { app.set_version_flag("--version", "zendara " ZENDARA_VERSION); };
    program.require_subcommand(1);
    add_version(program);

    PlotOptions plot_options;
    GalleryOptions gallery_options;
    ReportOptions report_options;
    StatsOptions stats_options;
    RunOptions run_options;
    ControlsOptions controls_options;
    Exit exit = Exit::Done;
    auto const answer = [&](CLI::App& command, std::function<Exit()> action) {
        add_version(command);
        command.callback([&exit, action = std::move(action)] { exit = guarded(action); });
    };
    answer(add_plot(program, plot_options), [&] { return plot(plot_options); });
    answer(add_gallery(program, gallery_options), [&] { return gallery(gallery_options); });
    answer(add_report(program, report_options), [&] { return report(report_options); });
    answer(add_stats(program, stats_options), [&] { return stats(stats_options); });
    answer(add_run(program, run_options), [&] { return run(run_options); });
    answer(add_controls(program, controls_options), [&] { return controls(controls_options); });

    try {
        program.parse(count, words);
    } catch (CLI::ParseError const& error) {
        if (error.get_exit_code() == 0) { // --help and --version
            program.exit(error);
            return Exit::Done;
        }
        return fail_with(std::string(error.what()) + " (see --help)", Exit::BadInput);
    }
    return exit;
}

} // namespace

int main(int count, char** words)
{
    return static_cast<int>(guarded([&] { return run_program(count, words); }));
}
