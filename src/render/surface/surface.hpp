#pragma once

#include "zendara/render/surface/font.hpp"
#include "zendara/support/boolean_word.hpp"
#include "zendara/support/color.hpp"
#include "zendara/support/object.hpp"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace zendara
{

/// A corner of a polygon, in device pixels.
struct DevicePoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(DevicePoint const&) const = default;
};

/// Units of coordinates.
constexpr std::int16_t scale_twips = 1;
constexpr std::int16_t scale_pixels = 3;

/// Fills.
constexpr std::int16_t fill_solid = 0;
constexpr std::int16_t fill_none = 1;
constexpr std::int16_t fill_diagonal_cross = 7;

/// Pens.
constexpr std::int16_t pen_solid = 0;
constexpr std::int16_t pen_none = 5;

class Image;

/// What all plots draw on: a picture box on the screen, or a printer.
///
/// The pen, the fills and the current position are plain members, read by every drawing call. Coordinates are floating
/// point in the unit of ScaleMode and are rounded half to even to pixels; polygons are in pixels at once.
class Surface : public Object
{
public:
    Color ForeColor = 0;
    Color FillColor = 0;
    Color BackColor = 0xFFFFFF;
    std::int16_t FillStyle = fill_none;
    std::int16_t DrawStyle = pen_solid;
    std::int16_t DrawWidth = 1; // pixels
    BooleanWord FontTransparent = true;
    FontFace Font;
    double CurrentX = 0;
    double CurrentY = 0;
    /// Where a picture sits in its container, in the container's unit; of a printer, the page's size in twips.
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    /// Clears to the background colour and takes the current position back to (0, 0).
    void Cls();
    /// Shows at once what has been drawn so far.
    virtual void Refresh() = 0;

    /// A line between two points. Like every call of this kind it leaves the current position at its second point.
    void Line(double x1, double y1, double x2, double y2, Color color);
    /// A line from the current position.
    void LineTo(double x, double y, Color color);
    /// An outlined box, its inside as FillStyle and FillColor say.
    void Box(double x1, double y1, double x2, double y2, Color color);
    /// As Box; the second corner is given as its distance from the first.
    void BoxStep(double x, double y, double dx, double dy, Color color);
    /// A box filled with the colour, all four edges included: with two equal coordinates it shows as a line.
    void FillBox(double x1, double y1, double x2, double y2, Color color);
    /// Line, Box or FillBox, by the sum of flags: 2 a colour is given, 4 the first point is given (or else it is the
    /// current position), 8 the second point is relative to the first, 16 a box, 32 a filled box.
    void line_by_flags(std::int16_t flags, double x1, double y1, double x2, double y2, Color color);
    /// A circle, its inside as FillStyle and FillColor say; its line in ForeColor where no colour is given.
    void Circle(double x, double y, double radius, std::optional<Color> color = {});
    /// Writes a text; the current position, its top left corner, moves on behind it.
    void Print(std::string_view text);
    /// Fills four corners with FillColor and FillStyle; ForeColor, DrawStyle and DrawWidth draw the outline.
    virtual void Polygon(std::array<DevicePoint, 4> const& corners) = 0;

    /// Extent of a text in the unit of ScaleMode.
    virtual double TextWidth(std::string_view text) const = 0;
    virtual double TextHeight(std::string_view text) const = 0;

    /// The coordinate system of the inner area.
    virtual double ScaleLeft() const = 0;
    virtual double ScaleTop() const = 0;
    virtual double ScaleWidth() const = 0;
    virtual double ScaleHeight() const = 0;

    /// 1 for twips, 3 for pixels.
    std::int16_t ScaleMode() const { return scale_mode_; }
    void ScaleMode(std::int16_t mode);
    /// The unit that the surface starts with: no write that a record would show.
    void start_scale_mode(std::int16_t mode) { scale_mode_ = mode; }

    /// Twips per device pixel, of the printer or, on a picture, of the screen.
    virtual double TwipsPerPixelX() const = 0;
    virtual double TwipsPerPixelY() const = 0;

    /// A printer, or else a picture on the screen.
    virtual bool is_printer() const = 0;

    /// The device handle of the platform, 0 where it has none.
    virtual std::int32_t hdc() const { return 0; }

    /// What has been drawn so far; nullptr where the surface keeps no pixels.
    virtual std::shared_ptr<Image const> image() const { return nullptr; }
    /// Takes an image as the background that Cls goes back to; nullptr takes it away.
    virtual void set_picture(std::shared_ptr<Image const> picture) = 0;

    /// Writes `BackColor`; a picture with pixels on which nothing has been drawn yet shows it at once.
    virtual void set_back_color(Color color) { BackColor = color; }

    /// Writes `height`; a picture with pixels keeps what it shows, and grows or shrinks at its lower edge.
    /// @throws Failure  Overflow when the pixels cannot be counted
    virtual void set_height(double twips) { height = twips; }

    Interface const& host_interface() const override;

protected:
    struct Span {
        double x1, y1, x2, y2;
    };

    virtual void draw_cls() = 0;
    virtual void draw_line(Span const& line, Color color) = 0;
    virtual void draw_box(Span const& box, Color color) = 0;
    virtual void draw_fill_box(Span const& box, Color color) = 0;
    virtual void draw_circle(double x, double y, double radius, Color color) = 0;
    virtual void draw_text(std::string_view text) = 0;
    virtual void scale_mode_written() {}

private:
    std::int16_t scale_mode_ = scale_pixels;
};

} // namespace zendara
