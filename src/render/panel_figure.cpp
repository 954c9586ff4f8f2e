#include "render/panel_figure.hpp"

#include "panel/panel.hpp"
#include "render/widget.hpp"
#include "support/checked.hpp"

#include <cmath>

namespace zendara
{

namespace
{

double const pi = 4 * std::atan(1.0);

/// A rectangle to be shown turned and tilted, in any unit of length.
struct PanelShape {
    double size_x;
    double size_y;
    double half_x;
    double half_y;
};

struct Rotation {
    double cosine;
    double sine;
};

// Beyond the circle, 2 pi is added or taken off although the angle is in degrees; saved pictures look so.
Rotation rotation_of(double degrees)
{
    if (degrees < 0)
        degrees += 2 * pi;
    if (degrees >= 360)
        degrees -= 2 * pi;
    if (degrees == 90)
        return {0, 1};
    if (degrees == 180)
        return {-1, 0};
    if (degrees == 270)
        return {0, -1};
    double const radians = degrees / 180 * pi;
    return {std::cos(radians), std::sin(radians)};
}

double fit(double room, double extent)
{
    return extent == 0 ? 1 : room / extent;
}

std::array<DevicePoint, 4> figure_corners(Surface const& picture, PanelShape const& shape, double alpha, double theta)
{
    double const center_x = round_half_even(picture.ScaleWidth() / 2);
    double const center_y = round_half_even(picture.ScaleHeight() / 2);
    auto const [c, s] = rotation_of(alpha);
    double const f = std::sin(theta / 180 * pi); // foreshortening of the tilt
    double const bounding_width = std::abs(s) * shape.size_y + std::abs(c) * shape.size_x;
    double const bounding_height = (std::abs(c) * shape.size_y + std::abs(s) * shape.size_x) * f;
    double const scale_y = fit(picture.ScaleHeight() - 4, bounding_height);
    double const scale_x = fit(picture.ScaleWidth() - 4, bounding_width);
    double const k = scale_y >= scale_x ? scale_x : scale_y;
    double const a = shape.half_x;
    double const b = shape.half_y;
    auto const corner = [&](double right, double up) {
        return DevicePoint{to_i32(center_x + right * k), to_i32(center_y - up * f * k)};
    };
    return {corner(c * a - s * b, s * a + c * b), corner(-a * c - s * b, -a * s + c * b),
            corner(-a * c + s * b, -a * s - c * b), corner(c * a + s * b, s * a - c * b)};
}

void fill_polygon(Surface& picture, std::array<DevicePoint, 4> const& corners, Color line, Color inside)
{
    picture.ForeColor = line;
    picture.FillColor = inside;
    picture.FillStyle = fill_solid;
    picture.Polygon(corners);
}

// On the edge between the third and the fourth corner, which is the lower one of a panel that is not turned.
void draw_orientation_mark(Surface& picture, std::array<DevicePoint, 4> const& corners)
{
    double const x = (static_cast<double>(corners[2].x) + corners[3].x) / 2;
    double const y = (static_cast<double>(corners[2].y) + corners[3].y) / 2;
    fill_polygon(picture,
                 {{{to_i32(x + 2), to_i32(y)},
                   {to_i32(x), to_i32(y - 2)},
                   {to_i32(x - 2), to_i32(y)},
                   {to_i32(x), to_i32(y + 2)}}},
                 QBColor(4), QBColor(4));
}

void draw_figure(Surface& picture, Widget* label, PanelShape const& shape, double alpha, double theta)
{
    auto const corners = figure_corners(picture, shape, alpha, theta);
    picture.Cls();
    fill_polygon(picture, corners, QBColor(0), QBColor(15));
    if (label != nullptr)
        label->caption("Panel");
    draw_orientation_mark(picture, corners);
    picture.ForeColor = QBColor(0);
    picture.FillColor = QBColor(15);
    picture.FillStyle = fill_solid;
    picture.Refresh();
}

} // namespace

void DrawFlatPicture(Surface& picture, double alpha, double theta)
{
    draw_figure(picture, nullptr, {200, 150, 100, 75}, alpha, theta);
}

void panel::GridPosShow(Widget* FNLabel, Surface& FNPic, double alph, double thet) const
{
    draw_figure(FNPic, FNLabel, {TestSizeX, TestSizeY, HalfTestSizeX, HalfTestSizey}, alph, thet);
}

} // namespace zendara
