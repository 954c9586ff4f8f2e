#include "commands.hpp"
#include "drawing.hpp"
#include "loaded_control.hpp"
#include "output_file.hpp"
#include "printing.hpp"
#include "setting.hpp"
#include "zendara/files/png_file.hpp"
#include "zendara/form/window_painter.hpp"

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

void write_picture(LoadedControl& loaded, fs::path const& output, std::string const& data_file)
{
    draw(loaded, data_file);
    write_png(paint_child(loaded.control().window(), loaded.platform().glyphs()), output);
}

/// The plot with its legend to its right, if the page has room for it.
void print_page(PrintedControl& printed, PaperSurface& page)
{
    constexpr double margin = 40; // keeps the lines of frames whole
    constexpr double gap = 250;
    double const line = page.TextHeight("0"); // frames lie this much lower than their boxes
    PageBox box = {margin, 0, page.paper().width - 2 * margin, page.paper().height - line - margin};

    bool const has_room =
        box.width >= 2 * legend_width_twips + gap && page.paper().height >= legend_height_twips + line + margin;
    if (printed.shows_legend() && has_room) {
        box.width -= legend_width_twips + gap;
        printed.print_legend(box.right() + gap, box.top);
    }
    printed.print_plot(box);
}

/// A page as large as the picture would be.
void write_page(LoadedControl& loaded, Size const& pixels, fs::path const& output, std::string const& data_file)
{
    auto const& platform = loaded.platform();
    PaperSurface page(output,
                      {pixels.width * platform.twips_per_pixel_x(), pixels.height * platform.twips_per_pixel_y()});
    PrintedControl printed(loaded, page, data_file);
    print_page(printed, page);
    page.EndDoc();
}

} // namespace

Exit plot(PlotOptions const& options)
{
    auto const output = output_path(options);
    check_output(output, {".png", ".pdf", ".svg"}, options.data.file);
    Size const pixels = parse_pixels(options.pixels);
    LoadedControl loaded(options.control, pixels, options.data);
    auto& control = loaded.control();
    for (auto const& setting : options.settings)
        apply_setting(control, setting);
    set_limits(control, options.limits);
    tell_panel_note(loaded); // behind whatever may still be wrong with the options

    if (output.extension() == ".png")
        write_picture(loaded, output, options.data.file);
    else
        write_page(loaded, pixels, output, options.data.file);
    return Exit::Done;
}

} // namespace zendara::program
