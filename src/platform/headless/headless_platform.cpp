#include "zendara/platform/headless/headless_platform.hpp"

#include "zendara/form/form.hpp"
#include "zendara/render/surface/raster_picture.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/process_state.hpp"

#include <clocale>
#include <langinfo.h>
#include <locale.h>
#include <utility>

namespace zendara
{

namespace
{

constexpr double twips_per_pixel = 15;

// The user's decimal mark, without touching the locale of the process.
std::string decimal_mark_of_user()
{
    locale_t const users = newlocale(LC_NUMERIC_MASK, "", static_cast<locale_t>(nullptr));
    if (users == static_cast<locale_t>(nullptr))
        return ".";
    std::string mark = nl_langinfo_l(RADIXCHAR, users);
    freelocale(users);
    return mark;
}

// A length of a box's place, which is in twips unless its container is scaled in pixels.
double in_pixels(PictureBox const& box, double length)
{
    return box.unit() == ScaleUnit::Pixels ? length : length / twips_per_pixel;
}

Recorder::PictureArea area_of(PictureBox const& box)
{
    return {0, 0, in_pixels(box, box.Width()), in_pixels(box, box.Height())};
}

/// Whole pixels of a box.
struct PixelSize {
    int width, height;

    explicit PixelSize(PictureBox const& box) : width(whole(box, box.Width())), height(whole(box, box.Height())) {}

private:
    static int whole(PictureBox const& box, double length) { return length > 0 ? to_i32(in_pixels(box, length)) : 0; }
};

} // namespace

HeadlessPlatform::HeadlessPlatform(Pictures pictures) : pictures_(pictures), application_path_("/usr/share/zendara")
{
    if (pictures_ == Pictures::Recorded)
        default_printer_ = Recorder::printer(2.4, 2.4);
    set_decimal_separator(pictures_ == Pictures::Recorded ? "." : decimal_mark_of_user());
}

std::vector<HeadlessPlatform::MessageBox> HeadlessPlatform::take_messages()
{
    return std::exchange(messages_, {});
}

void HeadlessPlatform::message_box(std::string_view text, int style, std::string_view title)
{
    messages_.push_back({std::string(title), std::string(text), style});
}

std::vector<TrappedFailure> HeadlessPlatform::take_failures(Object const& source)
{
    return std::exchange(failures_[&source], {});
}

void HeadlessPlatform::trapped(Object const& source, TrappedFailure const& failure)
{
    constexpr std::size_t most_kept = 1000;
    auto& kept = failures_[&source];
    if (kept.size() < most_kept)
        kept.push_back(failure);
}

void HeadlessPlatform::do_events()
{
    if (on_do_events)
        on_do_events();
}

void HeadlessPlatform::show_modal(Form& form)
{
    if (on_modal)
        on_modal(form);
    if (form.Visible())
        form.close();
}

std::string HeadlessPlatform::version() const
{
    return ZENDARA_VERSION;
}

std::unique_ptr<Surface> HeadlessPlatform::make_surface(PictureBox& box)
{
    if (pictures_ == Pictures::Recorded) {
        auto recorder = Recorder::picture(area_of(box));
        box.on_size = [&box, surface = recorder.get()] { surface->set_area(area_of(box)); };
        return recorder;
    }
    PixelSize const size(box);
    auto picture = std::make_unique<RasterPicture>(size.width, size.height, glyphs_, twips_per_pixel, box.BackColor());
    box.on_size = [&box, surface = picture.get()] {
        PixelSize const now(box);
        surface->resize(now.width, now.height);
    };
    return picture;
}

Platform::Extent HeadlessPlatform::text_extent(FontFace const& face, std::string_view text)
{
    if (pictures_ == Pictures::Recorded) {
        Recorder measure;
        measure.Font = face;
        return {measure.TextWidth(text) * twips_per_pixel, measure.TextHeight(text) * twips_per_pixel};
    }
    RasterPicture measure(0, 0, glyphs_);
    measure.Font = face;
    return {measure.TextWidth(text) * twips_per_pixel, measure.TextHeight(text) * twips_per_pixel};
}

} // namespace zendara
