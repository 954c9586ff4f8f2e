#pragma once

#include "zendara/render/surface/surface.hpp"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace zendara
{

/// One drawing call with the state that was in force, as a name and plain items.
struct TraceRecord {
    using Item = std::variant<std::int32_t, double, std::string, std::vector<std::int32_t>>;

    std::string name;
    std::vector<Item> items;

    bool operator==(TraceRecord const&) const = default;
};

/// A surface that keeps every drawing call and draws nothing. Texts have fixed extents: n letters at size s are
/// 100 * n * s / 8 twips wide and 200 * s / 8 twips high.
class Recorder : public Surface
{
public:
    /// A picture on a screen of 15 twips per pixel.
    struct PictureArea {
        double left_px = 0, top_px = 0, width_px = 400, height_px = 300;
    };
    static std::unique_ptr<Recorder> picture(PictureArea const& area);
    /// A printer with an A4 page.
    static std::unique_ptr<Recorder> printer(double twips_per_pixel_x, double twips_per_pixel_y);

    /// Hands over and forgets the record.
    std::vector<TraceRecord> take_record();

    void set_area(PictureArea const& area) { area_ = area; }

    void Refresh() override;
    void Polygon(std::array<DevicePoint, 4> const& corners) override;
    double TextWidth(std::string_view text) const override;
    double TextHeight(std::string_view text) const override;
    double ScaleLeft() const override { return area_.left_px * unit_x(); }
    double ScaleTop() const override { return area_.top_px * unit_y(); }
    double ScaleWidth() const override;
    double ScaleHeight() const override;
    double TwipsPerPixelX() const override { return twips_per_pixel_x_; }
    double TwipsPerPixelY() const override { return twips_per_pixel_y_; }
    bool is_printer() const override { return is_printer_; }
    void set_picture(std::shared_ptr<Image const> picture) override;

protected:
    void draw_cls() override;
    void draw_line(Span const& line, Color color) override;
    void draw_box(Span const& box, Color color) override;
    void draw_fill_box(Span const& box, Color color) override;
    void draw_circle(double x, double y, double radius, Color color) override;
    void draw_text(std::string_view text) override;
    void scale_mode_written() override;

private:
    // Surface units in a pixel.
    double unit_x() const { return ScaleMode() == scale_twips ? twips_per_pixel_x_ : 1; }
    double unit_y() const { return ScaleMode() == scale_twips ? twips_per_pixel_y_ : 1; }

    PictureArea area_;
    double twips_per_pixel_x_ = 15;
    double twips_per_pixel_y_ = 15;
    bool is_printer_ = false;
    std::vector<TraceRecord> record_;
};

} // namespace zendara
