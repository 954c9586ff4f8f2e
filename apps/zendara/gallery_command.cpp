#include "commands.hpp"
#include "drawing.hpp"
#include "gallery_page.hpp"
#include "progress.hpp"
#include "statistics.hpp"
#include "zendara/files/png_file.hpp"
#include "zendara/form/window_painter.hpp"

#include <filesystem>
#include <fstream>
#include <string>

namespace zendara::program
{

namespace
{

namespace fs = std::filesystem;

void make_folder(fs::path const& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error || !fs::is_directory(folder))
        throw UserError("-o " + folder.string() + ": the folder cannot be made");
}

std::vector<GallerySetting> settings_of(Control& control)
{
    std::vector<GallerySetting> settings;
    for (auto const& member : control.host_interface().members)
        if (member.put != nullptr && member.type != Type::Object && member.type != Type::Picture)
            settings.push_back({std::string(member.name), member.get(control), member.type, member.enumeration,
                                std::string(member.help)});
    return settings;
}

void write_page(fs::path const& file, std::string const& page)
{
    std::ofstream out(file, std::ios::binary);
    out << page;
    out.close();
    if (!out)
        throw UserError("-o " + file.string() + ": cannot be written");
}

} // namespace

Exit gallery(GalleryOptions const& options)
{
    Size const pixels = parse_pixels(options.pixels);
    fs::path const folder = options.folder;
    Gallery gallery;
    gallery.title = fs::path(options.data.file).filename().string();

    Progress progress("plotting");
    auto const classes = control_classes();
    for (std::size_t i = 0; i < classes.size(); ++i) {
        progress.show(i, classes.size());
        std::string const name(classes[i].name);
        LoadedControl loaded(name, pixels, options.data);
        set_limits(loaded.control(), options.limits);
        draw(loaded, options.data.file);
        if (i == 0) {
            tell_panel_note(loaded);
            gallery.statistics = statistics_of(loaded, options.data.file);
            gallery.panel_mm = loaded.panel_mm();
            make_folder(folder);
        }
        std::string const picture = name + ".png";
        auto const image = paint_child(loaded.control().window(), loaded.platform().glyphs());
        write_png(image, folder / picture);
        gallery.plots.push_back({name, std::string(loaded.control().host_interface().help), picture, image.width(),
                                 image.height(), settings_of(loaded.control())});
    }
    write_page(folder / "index.html", gallery_page(gallery));
    return Exit::Done;
}

} // namespace zendara::program
