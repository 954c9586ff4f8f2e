#pragma once

#include "zendara/render/surface/image.hpp"
#include "zendara/render/surface/surface.hpp"

#include <functional>

namespace zendara
{

/// A picture box's surface that keeps pixels. Without smoothing, so that the same calls give the same pixels
/// everywhere; which pixels belong to a shape is told in scan_converter.hpp.
class RasterPicture : public Surface
{
public:
    /// @param glyphs           where the letters come from; has to outlive the picture
    /// @param twips_per_pixel  of the screen
    RasterPicture(int width_px, int height_px, GlyphSource& glyphs, double twips_per_pixel = 15,
                  Color back_color = 0xFFFFFF);

    /// Gives the picture another size. Drawing and background picture are lost unless the size is the same.
    void resize(int width_px, int height_px);

    int width_px() const { return image_->width(); }
    int height_px() const { return image_->height(); }

    /// Copies an image into the picture.
    /// @param x  left column in pixels, may lie outside
    /// @param y  top row
    void draw_image(Image const& image, std::int32_t x, std::int32_t y);
    /// Copies an image in another size: each pixel takes the nearest one of the image, or stays where that one is
    /// see_through.
    void draw_image_stretched(Image const& image, std::int32_t x, std::int32_t y, std::int32_t width,
                              std::int32_t height);

    /// Called by Refresh; a container shows the pixels then.
    std::function<void()> on_refresh;

    void Refresh() override;
    void Polygon(std::array<DevicePoint, 4> const& corners) override;
    double TextWidth(std::string_view text) const override;
    double TextHeight(std::string_view text) const override;
    double ScaleLeft() const override { return 0; }
    double ScaleTop() const override { return 0; }
    double ScaleWidth() const override { return width_px() * unit(); }
    double ScaleHeight() const override { return height_px() * unit(); }
    double TwipsPerPixelX() const override { return twips_per_pixel_; }
    double TwipsPerPixelY() const override { return twips_per_pixel_; }
    bool is_printer() const override { return false; }

    /// The pixels as they are now. They are not copied before the next call that draws.
    std::shared_ptr<Image const> image() const override { return image_; }
    /// Also shows the new background at once, in place of what has been drawn.
    void set_picture(std::shared_ptr<Image const> picture) override;
    void set_back_color(Color color) override;
    /// The new rows have the background colour; the background picture is given up.
    void set_height(double twips) override;

protected:
    void draw_cls() override;
    void draw_line(Span const& line, Color color) override;
    void draw_box(Span const& box, Color color) override;
    void draw_fill_box(Span const& box, Color color) override;
    void draw_circle(double x, double y, double radius, Color color) override;
    void draw_text(std::string_view text) override;

private:
    double unit() const { return ScaleMode() == scale_twips ? twips_per_pixel_ : 1; }
    std::int32_t pixels(double coordinate) const;
    Image& own_image();
    void stroke(DevicePoint from, DevicePoint to, std::uint32_t pixel);
    bool has_outline() const;
    bool has_fill() const;

    std::shared_ptr<Image> image_; // shared with whoever was given it: own_image() before drawing
    std::shared_ptr<Image const> picture_;
    GlyphSource* glyphs_;
    double twips_per_pixel_;
    bool is_blank_ = true; // nothing has been drawn on the background
};

} // namespace zendara
