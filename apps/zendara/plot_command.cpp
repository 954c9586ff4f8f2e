#include "commands.hpp"
#include "drawing.hpp"
#include "loaded_control.hpp"
#include "platform/headless/png_file.hpp"
#include "platform/headless/window_painter.hpp"
#include "setting.hpp"

#include <filesystem>
#include <string>

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

} // namespace

Exit plot(PlotOptions const& options)
{
    auto const output = output_path(options);
    check_output(output, options.data.file);
    LoadedControl loaded(options.control, parse_pixels(options.pixels), options.data);
    tell_fitted_panel(loaded);
    auto& control = loaded.control();
    for (auto const& setting : options.settings)
        apply_setting(control, setting);
    set_limits(control, options.limits);

    draw(loaded, options.data.file);
    write_png(paint_child(control.window(), loaded.platform().glyphs()), output);
    return Exit::Done;
}

} // namespace zendara::program
