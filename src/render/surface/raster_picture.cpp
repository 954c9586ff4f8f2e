#include "zendara/render/surface/raster_picture.hpp"

#include "zendara/render/surface/scan_converter.hpp"
#include "zendara/support/checked.hpp"

#include <algorithm>
#include <utility>

namespace zendara
{

namespace
{

std::uint32_t pixel_of(Color color)
{
    return static_cast<std::uint32_t>(color >= 0 ? color & 0xFFFFFF : plain_color(color));
}

std::shared_ptr<Image> new_image(int width, int height, Color color)
{
    return std::make_shared<Image>(std::max(width, 0), std::max(height, 0), pixel_of(color));
}

/// The columns or rows of a piece of `length` pixels from `start` on that an image of that size has.
struct Visible {
    std::int64_t first;
    std::int64_t end;
};

Visible visible_part(std::int64_t start, std::int64_t length, std::int64_t size)
{
    return {std::max<std::int64_t>(start, 0), std::min(start + length, size)};
}

void draw_glyph(Image& image, Glyph const& glyph, std::int64_t left, std::int64_t top, std::uint32_t pixel)
{
    Visible const columns = visible_part(left, glyph.width, image.width());
    Visible const rows = visible_part(top, glyph.height, image.height());
    for (std::int64_t y = rows.first; y < rows.end; ++y) {
        std::uint8_t const* const mask = glyph.mask.get() + (y - top) * glyph.width;
        std::uint32_t* const row = image.row(static_cast<int>(y));
        for (std::int64_t x = columns.first; x < columns.end; ++x)
            if (mask[x - left] != 0)
                row[x] = pixel;
    }
}

std::int64_t advance_of(GlyphSource& glyphs, FontFace const& font, std::string_view text)
{
    std::int64_t width = 0;
    while (!text.empty())
        width += glyphs.glyph(font, next_letter(text)).advance;
    return width;
}

/// A box between two corners, both included.
PixelBox box_between(DevicePoint corner, DevicePoint opposite)
{
    auto const [left, right] = std::minmax(corner.x, opposite.x);
    auto const [top, bottom] = std::minmax(corner.y, opposite.y);
    return {left, top, std::int64_t{right} + 1, std::int64_t{bottom} + 1};
}

} // namespace

RasterPicture::RasterPicture(int width_px, int height_px, GlyphSource& glyphs, double twips_per_pixel, Color back_color)
    : image_(new_image(width_px, height_px, back_color)), glyphs_(&glyphs), twips_per_pixel_(twips_per_pixel)
{
    BackColor = back_color;
    width = width_px * twips_per_pixel;
    height = height_px * twips_per_pixel;
}

void RasterPicture::resize(int width_px, int height_px)
{
    if (std::max(width_px, 0) == image_->width() && std::max(height_px, 0) == image_->height())
        return;
    picture_ = nullptr;
    image_ = new_image(width_px, height_px, BackColor);
    is_blank_ = true;
}

void RasterPicture::set_back_color(Color color)
{
    BackColor = color;
    if (is_blank_)
        draw_cls();
}

void RasterPicture::set_height(double twips)
{
    auto const before = image_;
    int const height_px = to_i32(twips / twips_per_pixel_);
    height = twips;
    if (height_px == before->height())
        return;
    picture_ = nullptr;
    image_ = new_image(before->width(), height_px, BackColor);
    draw_image(*before, 0, 0);
}

void RasterPicture::draw_image(Image const& image, std::int32_t x, std::int32_t y)
{
    Image& target = own_image();
    Visible const columns = visible_part(x, image.width(), target.width());
    Visible const rows = visible_part(y, image.height(), target.height());
    if (columns.first >= columns.end)
        return;
    for (std::int64_t row = rows.first; row < rows.end; ++row) {
        std::uint32_t const* const source = image.row(static_cast<int>(row - y));
        std::copy(source + (columns.first - x), source + (columns.end - x),
                  target.row(static_cast<int>(row)) + columns.first);
    }
}

void RasterPicture::draw_image_stretched(Image const& image, std::int32_t x, std::int32_t y, std::int32_t width,
                                         std::int32_t height)
{
    if (image.width() == 0 || image.height() == 0)
        return;
    // The pixel of the image under the centre of the shown one.
    auto const nearest = [](std::int64_t shown, std::int64_t shown_size, std::int64_t size) {
        return (2 * shown + 1) * size / (2 * shown_size);
    };
    Image& target = own_image();
    Visible const columns = visible_part(x, width, target.width());
    Visible const rows = visible_part(y, height, target.height());
    for (std::int64_t row = rows.first; row < rows.end; ++row) {
        std::uint32_t const* const source = image.row(static_cast<int>(nearest(row - y, height, image.height())));
        std::uint32_t* const shown = target.row(static_cast<int>(row));
        for (std::int64_t column = columns.first; column < columns.end; ++column) {
            std::uint32_t const pixel = source[nearest(column - x, width, image.width())];
            if (pixel != see_through)
                shown[column] = pixel;
        }
    }
}

void RasterPicture::Refresh()
{
    if (on_refresh)
        on_refresh();
}

void RasterPicture::Polygon(std::array<DevicePoint, 4> const& corners)
{
    if (has_fill())
        fill_polygon(own_image(), corners, {pixel_of(FillColor), FillStyle == fill_diagonal_cross});
    if (!has_outline())
        return;
    std::uint32_t const pixel = pixel_of(ForeColor);
    for (std::size_t i = 0; i < corners.size(); ++i)
        stroke(corners[i], corners[(i + 1) % corners.size()], pixel);
}

double RasterPicture::TextWidth(std::string_view text) const
{
    return static_cast<double>(advance_of(*glyphs_, Font, text)) * unit();
}

double RasterPicture::TextHeight(std::string_view) const
{
    return glyphs_->line_metrics(Font).height * unit();
}

void RasterPicture::set_picture(std::shared_ptr<Image const> picture)
{
    picture_ = std::move(picture);
    if (picture_ != image_)
        draw_cls();
}

void RasterPicture::draw_cls()
{
    // A shared image is left to the others: what is in it need not be copied to be cleared.
    if (image_.use_count() > 1)
        image_ = new_image(image_->width(), image_->height(), BackColor);
    else
        fill_box(*image_, {0, 0, image_->width(), image_->height()}, {pixel_of(BackColor)});
    is_blank_ = true;
    if (picture_)
        draw_image(*picture_, 0, 0);
}

void RasterPicture::draw_line(Span const& line, Color color)
{
    DevicePoint const from = {pixels(line.x1), pixels(line.y1)};
    DevicePoint const to = {pixels(line.x2), pixels(line.y2)};
    if (has_outline())
        stroke(from, to, pixel_of(color));
}

void RasterPicture::draw_box(Span const& box, Color color)
{
    DevicePoint const corner = {pixels(box.x1), pixels(box.y1)};
    DevicePoint const opposite = {pixels(box.x2), pixels(box.y2)};
    PixelBox const area = box_between(corner, opposite);
    Image& image = own_image();

    if (has_fill())
        fill_box(image, {area.left + 1, area.top + 1, area.right - 1, area.bottom - 1},
                 {pixel_of(FillColor), FillStyle == fill_diagonal_cross});
    if (!has_outline())
        return;
    Paint const pen = {pixel_of(color)};
    if (DrawWidth <= 1) {
        fill_box(image, {area.left, area.top, area.right, area.top + 1}, pen);
        fill_box(image, {area.left, area.bottom - 1, area.right, area.bottom}, pen);
        fill_box(image, {area.left, area.top, area.left + 1, area.bottom}, pen);
        fill_box(image, {area.right - 1, area.top, area.right, area.bottom}, pen);
        return;
    }
    stroke(corner, {opposite.x, corner.y}, pen.pixel);
    stroke({opposite.x, corner.y}, opposite, pen.pixel);
    stroke(opposite, {corner.x, opposite.y}, pen.pixel);
    stroke({corner.x, opposite.y}, corner, pen.pixel);
}

void RasterPicture::draw_fill_box(Span const& box, Color color)
{
    DevicePoint const corner = {pixels(box.x1), pixels(box.y1)};
    DevicePoint const opposite = {pixels(box.x2), pixels(box.y2)};
    fill_box(own_image(), box_between(corner, opposite), {pixel_of(color)});
}

void RasterPicture::draw_circle(double x, double y, double radius, Color color)
{
    DevicePoint const center = {pixels(x), pixels(y)};
    std::int32_t const radius_px = pixels(radius);
    if (radius_px < 0)
        return;
    Image& image = own_image();
    if (has_fill())
        fill_disc(image, center, radius_px, {pixel_of(FillColor), FillStyle == fill_diagonal_cross});
    if (has_outline())
        draw_ring(image, center, radius_px, std::max<std::int32_t>(DrawWidth, 1), pixel_of(color));
}

void RasterPicture::draw_text(std::string_view text)
{
    std::int64_t pen = pixels(CurrentX);
    std::int64_t const top = pixels(CurrentY);
    GlyphSource::LineMetrics const line = glyphs_->line_metrics(Font);
    Image& image = own_image();

    if (!FontTransparent)
        fill_box(image, {pen, top, pen + advance_of(*glyphs_, Font, text), top + line.height}, {pixel_of(BackColor)});
    std::uint32_t const pixel = pixel_of(ForeColor);
    if (Font.Underline)
        fill_box(image, {pen, top + line.ascent + 1, pen + advance_of(*glyphs_, Font, text), top + line.ascent + 2},
                 {pixel});
    while (!text.empty()) {
        Glyph const& glyph = glyphs_->glyph(Font, next_letter(text));
        std::int64_t const left = pen + glyph.left;
        draw_glyph(image, glyph, left, top + line.ascent - glyph.top, pixel);
        if (Font.Bold) // struck twice, as wide as before
            draw_glyph(image, glyph, left + 1, top + line.ascent - glyph.top, pixel);
        pen += glyph.advance;
    }
}

std::int32_t RasterPicture::pixels(double coordinate) const
{
    return to_i32(ScaleMode() == scale_twips ? coordinate / twips_per_pixel_ : coordinate);
}

Image& RasterPicture::own_image()
{
    if (image_.use_count() > 1)
        image_ = std::make_shared<Image>(*image_);
    is_blank_ = false;
    return *image_;
}

void RasterPicture::stroke(DevicePoint from, DevicePoint to, std::uint32_t pixel)
{
    if (DrawWidth <= 1)
        zendara::draw_line(own_image(), from, to, pixel);
    else
        draw_band(own_image(), from, to, DrawWidth, pixel);
}

bool RasterPicture::has_outline() const
{
    return DrawStyle != pen_none;
}

bool RasterPicture::has_fill() const
{
    return FillStyle != fill_none;
}

} // namespace zendara
