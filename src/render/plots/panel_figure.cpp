#include "zendara/render/plots/panel_figure.hpp"

#include "zendara/panel/panel.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/circle.hpp"

#include <cmath>

namespace zendara
{

namespace
{

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

void fill_polygon(Surface& surface, std::array<DevicePoint, 4> const& corners, Color line, Color inside)
{
    surface.ForeColor = line;
    surface.FillColor = inside;
    surface.FillStyle = fill_solid;
    surface.Polygon(corners);
}

FigurePlace whole_picture(Surface const& picture)
{
    constexpr double border = 4; // both sides together
    return {round_half_even(picture.ScaleWidth() / 2), round_half_even(picture.ScaleHeight() / 2),
            picture.ScaleWidth() - border, picture.ScaleHeight() - border};
}

void draw_figure(Surface& picture, Widget* label, PanelShape const& shape, double alpha, double theta)
{
    constexpr int mark_arm = 2;
    auto const corners = figure_corners(whole_picture(picture), shape, alpha, theta);
    picture.Cls();
    fill_figure(picture, corners);
    if (label != nullptr)
        label->caption("Panel");
    draw_orientation_mark(picture, corners, mark_arm);
    picture.ForeColor = QBColor(0);
    picture.FillColor = QBColor(15);
    picture.FillStyle = fill_solid;
    picture.Refresh();
}

} // namespace

std::array<DevicePoint, 4> figure_corners(FigurePlace const& place, PanelShape const& shape, double alpha, double theta)
{
    auto const [c, s] = rotation_of(alpha);
    double const f = std::sin(theta / 180 * pi); // foreshortening of the tilt
    double const bounding_width = std::abs(s) * shape.size_y + std::abs(c) * shape.size_x;
    double const bounding_height = (std::abs(c) * shape.size_y + std::abs(s) * shape.size_x) * f;
    double const scale_y = fit(place.room_y, bounding_height);
    double const scale_x = fit(place.room_x, bounding_width);
    double const k = scale_y >= scale_x ? scale_x : scale_y;
    double const a = shape.half_x;
    double const b = shape.half_y;
    auto const corner = [&](double right, double up) {
        return DevicePoint{to_i32(place.center_x + right * k), to_i32(place.center_y - up * f * k)};
    };
    return {corner(c * a - s * b, s * a + c * b), corner(-a * c - s * b, -a * s + c * b),
            corner(-a * c + s * b, -a * s - c * b), corner(c * a + s * b, s * a - c * b)};
}

void fill_figure(Surface& surface, std::array<DevicePoint, 4> const& corners)
{
    fill_polygon(surface, corners, QBColor(0), QBColor(15));
}

void draw_orientation_mark(Surface& surface, std::array<DevicePoint, 4> const& corners, int arm_px)
{
    double const x = (static_cast<double>(corners[2].x) + corners[3].x) / 2;
    double const y = (static_cast<double>(corners[2].y) + corners[3].y) / 2;
    fill_polygon(surface,
                 {{{to_i32(x + arm_px), to_i32(y)},
                   {to_i32(x), to_i32(y - arm_px)},
                   {to_i32(x - arm_px), to_i32(y)},
                   {to_i32(x), to_i32(y + arm_px)}}},
                 QBColor(4), QBColor(4));
}

void DrawFlatPicture(Surface& picture, double alpha, double theta)
{
    draw_figure(picture, nullptr, {200, 150, 100, 75}, alpha, theta);
}

void panel::GridPosShow(Widget* FNLabel, Surface& FNPic, double alph, double thet) const
{
    draw_figure(FNPic, FNLabel, {TestSizeX, TestSizeY, HalfTestSizeX, HalfTestSizey}, alph, thet);
}

} // namespace zendara
