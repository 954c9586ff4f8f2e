#include "script/classes.hpp"

#include "near_names.hpp"
#include "script/options.hpp"
#include "script/pdf_printer.hpp"
#include "script/support_routines.hpp"
#include "zendara/controls/control_classes.hpp"
#include "zendara/dialogs/dialog_classes.hpp"
#include "zendara/panel/panel.hpp"
#include "zendara/print/print_panel.hpp"
#include "zendara/print/viewbitmap.hpp"
#include "zendara/render/surface/raster_picture.hpp"
#include "zendara/render/surface/recorder.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/interface.hpp"

#include <nlohmann/json.hpp>

#include <array>
#include <string>

namespace zendara::program
{

namespace
{

Recorder::PictureArea picture_area(Json const& options)
{
    Recorder::PictureArea const usual;
    return {number_option(options, "ScaleLeft", usual.left_px), number_option(options, "ScaleTop", usual.top_px),
            number_option(options, "ScaleWidth", usual.width_px),
            number_option(options, "ScaleHeight", usual.height_px)};
}

int pixels(double value)
{
    constexpr std::int32_t most = 16384;
    auto const whole = to_i32(value);
    if (whole < 0 || whole > most)
        fail(FailureKind::Overflow, "a picture is larger than 16384 pixels");
    return whole;
}

using Made = std::unique_ptr<Object>;

Made make_panel(Json const&, HeadlessPlatform& platform)
{
    auto record = std::make_unique<panel>();
    record->container = &platform;
    return record;
}

Made make_support(Json const&, HeadlessPlatform&)
{
    return std::make_unique<SupportRoutines>();
}

Made make_bag(Json const&, HeadlessPlatform&)
{
    return std::make_unique<PropertyBag>();
}

Made make_trace_picture(Json const& options, HeadlessPlatform&)
{
    return Recorder::picture(picture_area(options));
}

Made make_trace_printer(Json const& options, HeadlessPlatform&)
{
    constexpr double usual = 2.4; // twips per pixel, 600 dots per inch
    return Recorder::printer(number_option(options, "TwipsPerPixelX", usual),
                             number_option(options, "TwipsPerPixelY", usual));
}

Made make_pdf_printer(Json const& options, HeadlessPlatform&)
{
    return std::make_unique<PdfPrinter>(options);
}

Made make_picture(Json const& options, HeadlessPlatform& platform)
{
    auto const area = picture_area(options);
    return std::make_unique<RasterPicture>(pixels(area.width_px), pixels(area.height_px), platform.glyphs());
}

Made make_print_panel(Json const&, HeadlessPlatform&)
{
    return std::make_unique<PrintPanel>();
}

Made make_data_picture(Json const&, HeadlessPlatform& platform)
{
    return std::make_unique<viewbitmap>(platform);
}

struct HostClass {
    std::string_view name;
    Made (*make)(Json const& options, HeadlessPlatform& platform);
};
constexpr std::array<HostClass, 9> host_classes = {{
    {"panel", make_panel},
    {"PrintPanel", make_print_panel},
    {"viewbitmap", make_data_picture},
    {"Support", make_support},
    {"PropertyBag", make_bag},
    {"TracePicture", make_trace_picture},
    {"TracePrinter", make_trace_printer},
    {"PdfPrinter", make_pdf_printer},
    {"Picture", make_picture},
}};

Made make_control(ControlClass const& wanted, Json const& options, HeadlessPlatform& platform)
{
    constexpr double usual_width = 6000, usual_height = 4500; // twips
    auto const width = number_option(options, "Width", usual_width);
    auto const height = number_option(options, "Height", usual_height);
    auto control = wanted.make(platform);
    control->InitProperties();
    control->window().resize(width, height);
    return control;
}

// A dialog that a script makes is up at once, beside the script and not modally.
Made make_dialog(DialogClass const& wanted, HeadlessPlatform& platform)
{
    auto dialog = wanted.make(platform);
    dialog->Visible(true);
    return dialog;
}

Made make_page(PageClass const& wanted, HeadlessPlatform& platform)
{
    return wanted.make(platform);
}

[[noreturn]] void no_such_class(std::string_view name)
{
    std::vector<std::string_view> names;
    for (auto const& each : dialog_classes())
        names.push_back(each.name);
    for (auto const& each : page_classes())
        names.push_back(each.name);
    for (auto const& each : control_classes())
        names.push_back(each.name);
    for (auto const& each : host_classes)
        names.push_back(each.name);
    auto const hint = did_you_mean(name, names);
    throw Failure(FailureKind::NoSuchMember,
                  "there is no class \"" + std::string(name) + '"' + (hint.empty() ? "" : "; " + hint));
}

} // namespace

Made make_object(std::string_view class_name, Json const& options, HeadlessPlatform& platform)
{
    if (auto const* const control = find_control_class(class_name))
        return make_control(*control, options, platform);
    for (auto const& each : host_classes)
        if (equals_ignoring_case(each.name, class_name))
            return each.make(options, platform);
    for (auto const& each : dialog_classes())
        if (equals_ignoring_case(each.name, class_name))
            return make_dialog(each, platform);
    for (auto const& each : page_classes())
        if (equals_ignoring_case(each.name, class_name))
            return make_page(each, platform);
    no_such_class(class_name);
}

} // namespace zendara::program
