#pragma once

#include "zendara/render/surface/surface.hpp"

#include <cstdint>

namespace zendara::bench
{

/// A surface that takes every call and does nothing, to measure a plot routine alone.
class NullSurface : public Surface
{
public:
    NullSurface(double width_px, double height_px) : width_px_(width_px), height_px_(height_px) {}

    std::int64_t polygons = 0;

    void Refresh() override {}
    void Polygon(std::array<DevicePoint, 4> const&) override { ++polygons; }
    double TextWidth(std::string_view text) const override { return 6.0 * static_cast<double>(text.size()); }
    double TextHeight(std::string_view) const override { return 12; }
    double ScaleLeft() const override { return 0; }
    double ScaleTop() const override { return 0; }
    double ScaleWidth() const override { return width_px_; }
    double ScaleHeight() const override { return height_px_; }
    double TwipsPerPixelX() const override { return 15; }
    double TwipsPerPixelY() const override { return 15; }
    bool is_printer() const override { return false; }
    void set_picture(std::shared_ptr<Image const>) override {}

protected:
    void draw_cls() override {}
    void draw_line(Span const&, Color) override {}
    void draw_box(Span const&, Color) override {}
    void draw_fill_box(Span const&, Color) override {}
    void draw_circle(double, double, double, Color) override {}
    void draw_text(std::string_view) override {}

private:
    double width_px_;
    double height_px_;
};

} // namespace zendara::bench
