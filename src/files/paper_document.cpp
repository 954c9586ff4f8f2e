#include "zendara/files/paper_document.hpp"

#include "zendara/support/failure.hpp"

#include <algorithm>
#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <map>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace zendara
{

namespace
{

constexpr double twips_per_point = 20;

cairo_status_t append(void* closure, unsigned char const* data, unsigned size)
{
    try {
        auto& bytes = *static_cast<std::vector<char>*>(closure);
        bytes.insert(bytes.end(), data, data + size);
        return CAIRO_STATUS_SUCCESS;
    } catch (std::bad_alloc const&) { // must not pass through the library
        return CAIRO_STATUS_NO_MEMORY;
    }
}

void check(cairo_status_t status)
{
    if (status != CAIRO_STATUS_SUCCESS)
        throw Failure(FailureKind::FileError, std::string("a page cannot be drawn: ") + cairo_status_to_string(status));
}

/// The time that a reproducible build gives its files, as a date; empty where the environment tells none.
std::string date_of_environment()
{
    char const* const seconds = std::getenv("SOURCE_DATE_EPOCH");
    if (seconds == nullptr)
        return {};
    std::int64_t value = 0;
    auto const* const end = seconds + std::strlen(seconds);
    auto const [stop, error] = std::from_chars(seconds, end, value);
    auto const time = static_cast<std::time_t>(value);
    std::tm parts = {};
    if (error != std::errc() || stop != end || gmtime_r(&time, &parts) == nullptr)
        return {};
    char text[64];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts)};
}

bool is_see_through_anywhere(Image const& image)
{
    for (int y = 0; y < image.height(); ++y)
        if (std::find(image.row(y), image.row(y) + image.width(), see_through) != image.row(y) + image.width())
            return true;
    return false;
}

/// A pixel as Cairo has it: blue in the lowest byte, what is opaque in the highest.
std::uint32_t cairo_pixel(std::uint32_t pixel)
{
    if (pixel == see_through)
        return 0;
    return 0xFF000000u | (pixel & 0xFFu) << 16 | (pixel & 0xFF00u) | (pixel >> 16 & 0xFFu);
}

void copy_pixels(Image const& image, cairo_surface_t* target)
{
    cairo_surface_flush(target);
    unsigned char* const bytes = cairo_image_surface_get_data(target);
    int const stride = cairo_image_surface_get_stride(target);
    for (int y = 0; y < image.height(); ++y) {
        // Rows of 32-bit pixels begin at multiples of four bytes.
        auto* const row = reinterpret_cast<std::uint32_t*>(bytes + static_cast<std::ptrdiff_t>(y) * stride);
        std::transform(image.row(y), image.row(y) + image.width(), row, cairo_pixel);
    }
    cairo_surface_mark_dirty(target);
}

/// Whether an element is named here, by its kind and a number: id="image12", xlink:href="#image12", url(#image12).
bool is_named_at(std::string_view text, std::string_view kind)
{
    return text.size() > kind.size() + 1 && (text[0] == '"' || text[0] == '#') && text.substr(1, kind.size()) == kind;
}

/// The library numbers surfaces and images through the whole process. Counted from 0 in the order of their appearance,
/// they do not depend on what was drawn before.
std::vector<char> with_own_numbers(std::vector<char> const& svg)
{
    std::vector<char> out;
    std::map<std::string, std::size_t, std::less<>> numbers;
    std::string_view rest(svg.data(), svg.size());
    while (!rest.empty()) {
        std::size_t length = 1;
        std::string own(1, rest.front());
        for (std::string_view const kind : {"surface", "image"}) {
            if (!is_named_at(rest, kind))
                continue;
            std::size_t const digits = 1 + kind.size();
            std::size_t const end = std::min(rest.find_first_not_of("0123456789", digits), rest.size());
            if (end == digits)
                continue;
            auto const [found, is_new] = numbers.try_emplace(std::string(rest.substr(1, end - 1)), numbers.size());
            own = std::string(rest.substr(0, digits)) + std::to_string(found->second);
            length = end;
        }
        out.insert(out.end(), own.begin(), own.end());
        rest.remove_prefix(length);
    }
    return out;
}

} // namespace

PaperDocument::PaperDocument(PaperFormat format, PaperSize const& paper) : format_(format)
{
    double const width = paper.width / twips_per_point;
    double const height = paper.height / twips_per_point;
    surface_.reset(format == PaperFormat::Svg ? cairo_svg_surface_create_for_stream(append, &bytes_, width, height)
                                              : cairo_pdf_surface_create_for_stream(append, &bytes_, width, height));
    if (format == PaperFormat::Svg)
        cairo_svg_surface_set_document_unit(surface_.get(), CAIRO_SVG_UNIT_PT);
    else
        fix_description();
    canvas_.reset(cairo_create(surface_.get()));
    check(cairo_status(canvas_.get()));
    cairo_scale(canvas_.get(), 1 / twips_per_point, 1 / twips_per_point);
}

// Left alone, the library would write the present time.
void PaperDocument::fix_description()
{
    cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATOR, "ZendaraView");
    cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATE_DATE, date_of_environment().c_str());
}

void PaperDocument::set_color(std::uint32_t pixel)
{
    auto const part = [&](int shift) { return (pixel >> shift & 0xFF) / 255.0; };
    cairo_set_source_rgb(canvas(), part(0), part(8), part(16));
}

void PaperDocument::show_image(Image const& image, double x, double y, double width, double height)
{
    auto const format = is_see_through_anywhere(image) ? CAIRO_FORMAT_ARGB32 : CAIRO_FORMAT_RGB24;
    SurfaceHandle const pixels(cairo_image_surface_create(format, image.width(), image.height()));
    check(cairo_surface_status(pixels.get()));
    copy_pixels(image, pixels.get());

    cairo_save(canvas());
    cairo_translate(canvas(), x, y);
    cairo_scale(canvas(), width / image.width(), height / image.height());
    cairo_set_source_surface(canvas(), pixels.get(), 0, 0);
    cairo_pattern_set_filter(cairo_get_source(canvas()), CAIRO_FILTER_NEAREST); // cells keep their edges
    cairo_paint(canvas()); // a fill would make the image a tile, which viewers smooth at its edges
    cairo_restore(canvas());
}

void PaperDocument::end_page()
{
    cairo_show_page(canvas());
}

std::vector<char> PaperDocument::finish()
{
    check(cairo_status(canvas()));
    canvas_.reset();
    cairo_surface_finish(surface_.get());
    check(cairo_surface_status(surface_.get()));
    return format_ == PaperFormat::Svg ? with_own_numbers(bytes_) : std::move(bytes_);
}

} // namespace zendara
