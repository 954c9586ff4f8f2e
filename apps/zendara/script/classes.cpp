#include "script/classes.hpp"

#include "controls/control.hpp"
#include "near_names.hpp"
#include "panel/panel.hpp"
#include "render/raster_picture.hpp"
#include "render/recorder.hpp"
#include "script/support_routines.hpp"
#include "support/checked.hpp"
#include "support/interface.hpp"

#include <nlohmann/json.hpp>

#include <array>
#include <string>

namespace zendara::program
{

namespace
{

double option(Json const& options, char const* name, double default_value)
{
    auto const found = options.find(name);
    if (found == options.end())
        return default_value;
    if (!found->is_number())
        throw Failure(FailureKind::TypeMismatch, std::string("the option ") + name + " is no number");
    return found->get<double>();
}

Recorder::PictureArea picture_area(Json const& options)
{
    Recorder::PictureArea const usual;
    return {option(options, "ScaleLeft", usual.left_px), option(options, "ScaleTop", usual.top_px),
            option(options, "ScaleWidth", usual.width_px), option(options, "ScaleHeight", usual.height_px)};
}

/// A picture with pixels, and where it sits in its container.
class HostPicture : public Object
{
public:
    HostPicture(int width_px, int height_px, GlyphSource& glyphs) : picture_(width_px, height_px, glyphs)
    {
        width = picture_.width_px() * picture_.TwipsPerPixelX();
        height = picture_.height_px() * picture_.TwipsPerPixelY();
    }

    /// In the container's unit, whatever it is.
    double left = 0;
    double top = 0;
    double width;
    double height;

    Object* inner() override { return &picture_; }

    Interface const& host_interface() const override
    {
        using P = HostPicture;
        static Interface const table{"Picture",
                                     "A picture with pixels.",
                                     {field<P, &P::left>("left", "Place in its container."),
                                      field<P, &P::top>("top", "Place in its container."),
                                      field<P, &P::width>("width", "Size in its container."),
                                      field<P, &P::height>("height", "Size in its container.")}};
        return table;
    }

private:
    RasterPicture picture_;
};

int pixels(double value)
{
    constexpr std::int32_t most = 16384;
    auto const whole = to_i32(value);
    if (whole < 0 || whole > most)
        fail(FailureKind::Overflow, "a picture is larger than 16384 pixels");
    return whole;
}

using Made = std::unique_ptr<Object>;

Made make_panel(Json const&, HeadlessPlatform&)
{
    return std::make_unique<panel>();
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
    return Recorder::printer(option(options, "TwipsPerPixelX", usual), option(options, "TwipsPerPixelY", usual));
}

Made make_picture(Json const& options, HeadlessPlatform& platform)
{
    auto const area = picture_area(options);
    return std::make_unique<HostPicture>(pixels(area.width_px), pixels(area.height_px), platform.glyphs());
}

struct HostClass {
    std::string_view name;
    Made (*make)(Json const& options, HeadlessPlatform& platform);
};
constexpr std::array<HostClass, 6> host_classes = {{
    {"panel", make_panel},
    {"Support", make_support},
    {"PropertyBag", make_bag},
    {"TracePicture", make_trace_picture},
    {"TracePrinter", make_trace_printer},
    {"Picture", make_picture},
}};

Made make_control(ControlClass const& wanted, Json const& options, HeadlessPlatform& platform)
{
    constexpr double usual_width = 6000, usual_height = 4500; // twips
    auto const width = option(options, "Width", usual_width);
    auto const height = option(options, "Height", usual_height);
    auto control = wanted.make(platform);
    control->InitProperties();
    control->window().resize(width, height);
    return control;
}

[[noreturn]] void no_such_class(std::string_view name)
{
    std::vector<std::string_view> names;
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
    no_such_class(class_name);
}

} // namespace zendara::program
