#include "zendara/render/plots/site_plot.hpp"
#include "zendara/support/circle.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace zendara
{

namespace
{

/// What the caller of D2BeamPlot asks for.
struct BarRequest {
    double half_width;
    double half_depth;
    double height_scale;
    double rotation_deg;
    double inclination_deg;
};

/// A site's bar, turned by the rotation.
struct Bar {
    double x;
    double depth;
    double value;
};

/// Sorts by depth. Which of equally deep bars comes first, and so lies over the others, follows from this very way of
/// sorting: another one would change pictures.
void sort_by_depth(std::vector<Bar>& bars, std::ptrdiff_t first, std::ptrdiff_t last)
{
    if (last <= first)
        return;
    auto const at = [&](std::ptrdiff_t place) -> Bar& { return bars[static_cast<std::size_t>(place)]; };
    double const pivot = at((first + last) / 2).depth;
    std::ptrdiff_t left = first;
    std::ptrdiff_t right = last;
    do {
        while (at(left).depth < pivot && left < last)
            ++left;
        while (pivot < at(right).depth && right > first)
            --right;
        if (left <= right)
            std::swap(at(left++), at(right--));
    } while (left <= right);
    sort_by_depth(bars, first, right);
    sort_by_depth(bars, left, last);
}

/// A place on the surface, before it is rounded to pixels.
struct Point {
    double x;
    double y;

    Point higher_by(double height) const { return {x, y - height}; }
};

/// The corners of a bar or of the plate on the ground, in circular order.
using Corners = std::array<Point, 4>;

/// One run of D2BeamPlot: bars painted from the back to the front.
class BarPlot : SitePlot
{
public:
    BarPlot(panel& record, Surface& surface, BarRequest const& request, PlotBox const& box, std::int16_t show_displ)
        : SitePlot(record, surface, box, show_displ), request_(request)
    {
    }

    void run();

private:
    void find_angles();
    void turn_sites();
    void find_bar_vectors();
    void find_zoom();
    void find_origin();
    void start_drawing();
    void draw_bars_below_plate();
    void draw_plate();
    void draw_bars();
    void draw_walls(Bar const& bar, Corners const& feet, double color);
    void draw_face(Corners const& corners, double color);
    void draw_face(Point const& a, Point const& b, Point const& c, Point const& d, double color)
    {
        draw_face({a, b, c, d}, color);
    }

    double height_of_value(double value) const { return (value - record_.Low) * request_.height_scale * ct_; }
    double color_of(Bar const& bar) { return color_ = interval_colors_(bar.value, color_); }
    Corners feet_of(Bar const& bar) const;
    Point plate_corner(double x, double y) const;
    bool shows_tops() const { return request_.inclination_deg > 0; }

    BarRequest request_;
    double rotation_ = 0, inclination_ = 0; // radians
    double ca_ = 0, sa_ = 0, st_ = 0, ct_ = 0;
    double ex_ = 0, ey_ = 0; // from a bar's middle half its width, on the surface
    double fx_ = 0, fy_ = 0; // and half its depth
    double plate_height_ = 0;
    double center_x_ = 0, base_y_ = 0; // where the panel's centre lies
    std::vector<Bar> bars_;            // from the back to the front
    IntervalColors interval_colors_;
    double color_ = 0;
};

void BarPlot::run()
{
    clear_surface();
    fix_scale_range();
    fix_low();
    find_rectangle();
    find_angles();
    step([&] { turn_sites(); });
    find_bar_vectors();
    find_zoom();
    find_origin();
    start_drawing();
    draw_bars_below_plate();
    draw_plate();
    draw_bars();
    record_.setMaximalMinial(record_.maximal, record_.minimal);
}

void BarPlot::find_angles()
{
    step([&] { rotation_ = radians(request_.rotation_deg); });
    step([&] { inclination_ = radians(request_.inclination_deg); });
    ca_ = std::cos(rotation_);
    sa_ = std::sin(rotation_);
    st_ = std::sin(inclination_);
    ct_ = std::cos(inclination_);
}

void BarPlot::turn_sites()
{
    std::int16_t const count = site_count();
    if (count < 1)
        fail(FailureKind::SubscriptOutOfRange, "there are no sites to stand bars on");
    bars_.reserve(static_cast<std::size_t>(count));
    for (std::int32_t number = 1; number <= count; ++number) {
        auto const site = static_cast<std::int16_t>(number);
        double const x = site_x(site);
        double const y = site_y(site);
        bars_.push_back({ca_ * x - sa_ * y, sa_ * x + ca_ * y, site_z(site)});
    }
    sort_by_depth(bars_, 0, count - 1);
    std::reverse(bars_.begin(), bars_.end());
}

void BarPlot::find_bar_vectors()
{
    step([&] { ex_ = finite(request_.half_width * ca_); });
    step([&] { ey_ = finite(request_.half_width * sa_ * st_); });
    step([&] { fx_ = finite(-request_.half_depth * sa_); });
    step([&] { fy_ = finite(request_.half_depth * ca_ * st_); });
}

// One zoom for width and height, so that the picture fits with a margin of five pixels.
void BarPlot::find_zoom()
{
    double width = 0;
    double height = 0;
    step([&] {
        width = finite(std::abs(ca_) * record_.TestSizeX + std::abs(sa_) * record_.TestSizeY +
                       2 * (std::abs(ex_) + std::abs(fx_)));
    });
    step([&] {
        plate_height_ = finite(st_ * (std::abs(ca_) * record_.TestSizeY + std::abs(sa_) * record_.TestSizeX) +
                               2 * (std::abs(ey_) + std::abs(fy_)));
    });
    height = plate_height_;
    if (scale_top_ - record_.Low > 0)
        step([&] { height = finite(height + height_of_value(scale_top_)); });
    if (scale_bottom_ - record_.Low < 0)
        step([&] { height = finite(height - height_of_value(scale_bottom_)); });

    double zoom_x = 0;
    double zoom_y = 0;
    step([&] { zoom_y = height == 0 ? 1 : divide(plot_h_ - 10, height); });
    step([&] { zoom_x = width == 0 ? 1 : divide(plot_w_ - 10, width); });
    zoom_ = zoom_x < zoom_y ? zoom_x : zoom_y;
}

void BarPlot::find_origin()
{
    center_x_ = middle_x();
    step([&] { base_y_ = finite((plot_t_ + plot_h_ - 5) - (plate_height_ / 2) * zoom_); });
    if (scale_bottom_ - record_.Low < 0)
        step([&] { base_y_ = finite(base_y_ + height_of_value(scale_bottom_) * zoom_); });
    for (double* const part : {&ex_, &ey_, &fx_, &fy_})
        step([&] { *part = finite(*part * zoom_); });
    step([&] { band_ = finite((scale_top_ - scale_bottom_) / 10); });
    interval_colors_ = IntervalColors(record_, scale_top_, band_, false);
}

void BarPlot::start_drawing()
{
    surface_.ForeColor = QBColor(0);
    surface_.FillColor = QBColor(15);
    if (is_screen_picture() && !is_for_paper())
        step([&] { surface_.Cls(); });
}

void BarPlot::draw_bars_below_plate()
{
    surface_.FillStyle = fill_solid;
    for (Bar const& bar : bars_) {
        if (!(bar.value < record_.Low))
            continue;
        Corners const feet = feet_of(bar);
        double const color = color_of(bar);
        if (shows_tops())
            draw_face(feet, color);
        draw_walls(bar, feet, color);
        refresh_screen_picture();
    }
}

// The hatch shows it as a grid under the bars.
void BarPlot::draw_plate()
{
    surface_.DrawStyle = pen_solid;
    surface_.FillStyle = fill_diagonal_cross;
    double const x = record_.HalfTestSizeX;
    double const y = record_.HalfTestSizey;
    draw_face(plate_corner(-x, -y), plate_corner(x, -y), plate_corner(x, y), plate_corner(-x, y), QBColor(15));
}

void BarPlot::draw_bars()
{
    surface_.FillStyle = fill_solid;
    for (Bar const& bar : bars_) {
        Corners const feet = feet_of(bar);
        double const color = color_of(bar);
        if (shows_tops()) {
            double const height = bar.value < record_.Low ? 0 : height_of_value(bar.value) * zoom_;
            draw_face(feet[0].higher_by(height), feet[1].higher_by(height), feet[2].higher_by(height),
                      feet[3].higher_by(height), color);
        }
        if (bar.value > record_.Low)
            draw_walls(bar, feet, color);
        refresh_screen_picture();
    }
}

// Only the walls that face the viewer, two at most.
void BarPlot::draw_walls(Bar const& bar, Corners const& feet, double color)
{
    if (request_.inclination_deg == 90)
        return;
    double const d = request_.rotation_deg;
    double const height = height_of_value(bar.value) * zoom_;
    auto const& [p1, p2, p3, p4] = feet;
    Point const t1 = p1.higher_by(height), t2 = p2.higher_by(height);
    Point const t3 = p3.higher_by(height), t4 = p4.higher_by(height);
    if (d < 90 || d > 270)
        draw_face(p1, p2, t2, t1, color);
    if (d > 0 && d < 180)
        draw_face(p1, t1, t4, p4, color);
    if (d > 90 && d < 270)
        draw_face(p4, t4, t3, p3, color);
    if (d > 180 && d < 360)
        draw_face(p3, p2, t2, t3, color);
}

void BarPlot::draw_face(Corners const& corners, double color)
{
    step([&] {
        surface_.FillColor = to_i32(color);
        std::array<DevicePoint, 4> points;
        for (std::size_t i = 0; i < corners.size(); ++i)
            points[i] = {to_i32(corners[i].x), to_i32(corners[i].y)};
        surface_.Polygon(points);
    });
}

Corners BarPlot::feet_of(Bar const& bar) const
{
    double const x = zoom_ * bar.x;
    double const y = st_ * bar.depth * zoom_;
    return {{{x - ex_ - fx_ + center_x_, base_y_ - (y - ey_ - fy_)},
             {x + ex_ - fx_ + center_x_, base_y_ - (y + ey_ - fy_)},
             {x + ex_ + fx_ + center_x_, base_y_ - (y + ey_ + fy_)},
             {x - ex_ + fx_ + center_x_, base_y_ - (y - ey_ + fy_)}}};
}

Point BarPlot::plate_corner(double x, double y) const
{
    return {zoom_ * (ca_ * x - sa_ * y) + center_x_, base_y_ - st_ * (sa_ * x + ca_ * y) * zoom_};
}

} // namespace

void panel::D2BeamPlot(Surface& Plot, double bx, double by, double fwscal, double alp2, double thet2, std::int16_t,
                       double left, double top, double width, double height, std::int16_t ShowDispl)
{
    BarRequest const request{bx / 2, by / 2, fwscal, alp2, thet2};
    BarPlot(*this, Plot, request, {left, top, width, height}, ShowDispl).run();
}

} // namespace zendara
