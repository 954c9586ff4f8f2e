#include "zendara/render/plots/site_plot.hpp"
#include "zendara/support/circle.hpp"

#include <cmath>
#include <optional>
#include <vector>

namespace zendara
{

namespace
{

constexpr double too_few_sites_for_a_surface = 3;

/// How the tops of the cells look.
enum class CellLook { Intervals, AllLines, White, Sigma };

CellLook look_of(std::int16_t plot_style)
{
    switch (plot_style) {
    case 1:
    case 5:
        return CellLook::Intervals;
    case 3:
        return CellLook::White;
    case 4:
        return CellLook::Sigma;
    default:
        return CellLook::AllLines;
    }
}

/// In place of a colour it stands for none: white, or the system's colour where one looks straight down.
constexpr double no_color = 15;
constexpr Color straight_down_white = system_color(0);

/// What the caller of D3Plot asks for.
struct SurfaceRequest {
    double resx;
    double resy;
    double height_scale;
    double rotation_deg;
    double inclination_deg;
    std::int16_t plot_style;
    double sigma_range;
    bool is_printed;
};

/// Which way the walk over the nodes goes along x and y, +1 or -1: from the farthest corner to the nearest one.
struct Walk {
    int along_x;
    int along_y;
};

/// The walk of a rotation; none beyond the full circle.
std::optional<Walk> walk_of(double rotation)
{
    if (rotation < 0)
        return std::nullopt;
    if (rotation < pi / 2)
        return Walk{-1, -1};
    if (rotation < pi)
        return Walk{-1, +1};
    if (rotation < 3 * pi / 2)
        return Walk{+1, +1};
    if (rotation < 2 * pi)
        return Walk{+1, -1};
    return std::nullopt;
}

/// The nodes of one row, in the order of the walk.
struct NodeRow {
    std::vector<double> height;                 // surface units
    std::vector<std::int32_t> x, foot_y, top_y; // device pixels

    void resize(std::size_t nodes)
    {
        height.assign(nodes, 0);
        for (auto* const places : {&x, &foot_y, &top_y})
            places->assign(nodes, 0);
    }

    DevicePoint foot(std::size_t node) const { return {x[node], foot_y[node]}; }
    DevicePoint top(std::size_t node) const { return {x[node], top_y[node]}; }
};

/// One run of D3Plot: cells painted from the back to the front, each over those behind it.
class SurfacePlot : SitePlot
{
public:
    SurfacePlot(panel& record, Surface& surface, SurfaceRequest const& request, PlotBox const& box,
                std::int16_t show_displ)
        : SitePlot(record, surface, box, show_displ), request_(request), look_(look_of(request.plot_style))
    {
    }

    void run();

private:
    void find_angles();
    void find_zoom();
    void find_heights();
    void find_origin();
    void draw_surface();
    void fix_fill();
    void fix_colors();
    void allocate_rows();
    void place_row(std::size_t row, NodeRow& nodes);
    void draw_row(std::size_t row);
    void draw_wall(std::array<DevicePoint, 4> const& corners);
    void draw_top(std::size_t column);
    double color_of(double height);
    double sigma_color(double height) const;

    double height_of(double value) const
    {
        return divide((value - record_.Low) * height_zoom_, record_.maxi - record_.Low);
    }
    // Half the raster's extent across the surface and along it, for a zoom of 1.
    double half_extent_x() const { return std::abs(ca_) * cells_x_ + std::abs(sb_) * cells_y_; }
    double half_extent_y() const { return std::abs(sa_) * cells_x_ + std::abs(cb_) * cells_y_; }

    // Signed numbers of a node along x and y, from the place in the walk.
    double node_i(std::size_t place) const { return walk_.along_x * (static_cast<int>(place) - cells_x_); }
    double node_j(std::size_t place) const { return walk_.along_y * (static_cast<int>(place) - cells_y_); }

    SurfaceRequest request_;
    CellLook const look_;
    double rotation_ = 0, inclination_ = 0;    // radians
    double ca_ = 0, cb_ = 0, sa_ = 0, sb_ = 0; // of the rotation, times the cell sizes
    double st_ = 0, ct_ = 0;                   // of the inclination
    double height_zoom_ = 0;
    double top_height_ = 0, bottom_height_ = 0;
    double center_x_ = 0, base_y_ = 0; // where the panel's centre lies

    Walk walk_{};
    std::vector<double> node_x_;            // millimetres
    std::vector<double> along_x_, along_y_; // what a column adds across and along the surface
    std::vector<double> values_;
    NodeRow row_, next_row_; // behind and in front of the current cells
    IntervalColors interval_colors_;
    double sigma_low_ = 0, sigma_high_ = 0; // heights
    double color_ = 0;
    Color no_color_fill_ = QBColor(15);
};

void SurfacePlot::run()
{
    clear_surface();
    fix_scale_range();
    fix_low(record_.maxi, record_.mini); // the base lies below all data, whatever the plot limits are
    find_rectangle();
    find_angles();
    find_raster(request_.resx, request_.resy);
    find_zoom();
    find_heights();
    find_origin();
    if (nop() > too_few_sites_for_a_surface)
        draw_surface();
    record_.setMaximalMinial(record_.maximal, record_.minimal);
}

// The full circle is tested as 360 though the angle is in radians: angles beyond it are left to find no walk.
void SurfacePlot::find_angles()
{
    constexpr double full_circle_deg = 360;
    step([&] { rotation_ = radians(request_.rotation_deg); });
    step([&] { inclination_ = radians(request_.inclination_deg); });
    if (rotation_ < 0)
        rotation_ += 2 * pi;
    if (rotation_ >= full_circle_deg)
        rotation_ -= 2 * pi;
}

// One zoom for width and height, so that the picture fits with a margin of three pixels.
void SurfacePlot::find_zoom()
{
    step([&] { ca_ = finite(request_.resx * std::cos(rotation_)); });
    step([&] { cb_ = finite(request_.resy * std::cos(rotation_)); });
    step([&] { sa_ = finite(request_.resx * std::sin(rotation_)); });
    step([&] { sb_ = finite(request_.resy * std::sin(rotation_)); });
    st_ = std::sin(inclination_);
    ct_ = std::cos(inclination_);

    double zoom_x = 0;
    step([&] { zoom_x = divide((plot_w_ - 6) / 2.0, half_extent_x()); });
    if (st_ == 0 && request_.height_scale == 0) {
        zoom_ = zoom_x;
        return;
    }
    double zoom_y = 0;
    step([&] { zoom_y = divide(plot_h_ - 6, 2 * st_ * half_extent_y() + request_.height_scale * ct_); });
    zoom_ = zoom_x < zoom_y ? zoom_x : zoom_y;
}

void SurfacePlot::find_heights()
{
    step([&] { height_zoom_ = finite(zoom_ * request_.height_scale); });
    step([&] { top_height_ = height_of(scale_top_); });
    step([&] { bottom_height_ = height_of(scale_bottom_); });
    step([&] { band_ = finite((top_height_ - bottom_height_) / 10); });
}

void SurfacePlot::find_origin()
{
    center_x_ = middle_x();
    step([&] { base_y_ = finite((plot_t_ + plot_h_ - 3) - half_extent_y() * zoom_ * st_); });
}

void SurfacePlot::draw_surface()
{
    auto const walk = walk_of(rotation_);
    if (!walk)
        return;
    walk_ = *walk;
    step([&] { allocate_rows(); });
    if (node_x_.empty())
        return;

    fix_fill();
    fix_colors();
    place_row(0, row_);
    for (std::size_t row = 0; row < rows(); ++row) {
        next_row_ = row_; // a node that cannot be placed keeps the place of the one behind it
        place_row(row + 1, next_row_);
        draw_row(row);
        std::swap(row_, next_row_);
        refresh_screen_picture();
    }
}

// Column and row counts are 16-bit numbers: a raster of more fails here, and no surface is drawn.
void SurfacePlot::allocate_rows()
{
    auto const nodes = static_cast<std::size_t>(to_i16(2.0 * cells_x_)) + 1;
    to_i16(2.0 * cells_y_);
    for (std::size_t column = 0; column < nodes; ++column) {
        double const i = node_i(column);
        node_x_.push_back(i * request_.resx);
        along_x_.push_back(i * ca_);
        along_y_.push_back(i * sa_);
    }
    values_.assign(nodes, 0);
    row_.resize(nodes);
}

void SurfacePlot::fix_fill()
{
    surface_.FillStyle = look_ == CellLook::AllLines ? fill_none : fill_solid;
    surface_.DrawStyle = pen_solid;
    bool const is_seen_straight_down =
        request_.rotation_deg == 0 && request_.inclination_deg == 90 && !request_.is_printed;
    if (is_seen_straight_down)
        no_color_fill_ = straight_down_white;
}

void SurfacePlot::fix_colors()
{
    interval_colors_ = IntervalColors(record_, top_height_, band_, false);
    step([&] { sigma_low_ = height_of(record_.mean - request_.sigma_range * record_.StdDev); });
    step([&] { sigma_high_ = height_of(record_.mean + request_.sigma_range * record_.StdDev); });
}

void SurfacePlot::place_row(std::size_t row, NodeRow& nodes)
{
    double const j = node_j(row);
    double const across = j * sb_;
    double const along = j * cb_;
    double const tilted_zoom = zoom_ * st_;
    record_.interpolate_row(node_x_, j * request_.resy, values_);
    for (std::size_t node = 0; node < values_.size(); ++node) {
        double const foot_y = base_y_ - tilted_zoom * (along_y_[node] + along);
        step([&] { nodes.height[node] = height_of(values_[node]); });
        step([&] { nodes.x[node] = to_i32(center_x_ + zoom_ * (along_x_[node] - across)); });
        step([&] { nodes.foot_y[node] = to_i32(foot_y); });
        step([&] { nodes.top_y[node] = to_i32(foot_y - ct_ * nodes.height[node]); });
    }
}

// Walls stand around the raster only: those at the back before the cells that hide them, those in front behind them.
void SurfacePlot::draw_row(std::size_t row)
{
    bool const is_first_row = row == 0;
    bool const is_last_row = row + 1 == rows();
    std::size_t const last = columns() - 1;
    for (std::size_t k = 0; k <= last; ++k) {
        if (is_first_row)
            draw_wall({row_.foot(k), row_.foot(k + 1), row_.top(k + 1), row_.top(k)});
        if (k == 0)
            draw_wall({next_row_.foot(k), row_.foot(k), row_.top(k), next_row_.top(k)});
        draw_top(k);
        if (k == last)
            draw_wall({next_row_.top(k + 1), row_.top(k + 1), row_.foot(k + 1), next_row_.foot(k + 1)});
        if (is_last_row)
            draw_wall({next_row_.top(k), next_row_.top(k + 1), next_row_.foot(k + 1), next_row_.foot(k)});
    }
}

void SurfacePlot::draw_wall(std::array<DevicePoint, 4> const& corners)
{
    surface_.FillColor = QBColor(15);
    surface_.Polygon(corners);
}

void SurfacePlot::draw_top(std::size_t column)
{
    double const mean_height =
        (row_.height[column] + row_.height[column + 1] + next_row_.height[column] + next_row_.height[column + 1]) / 4;
    color_ = color_of(mean_height);
    step([&] { surface_.FillColor = color_ == no_color ? no_color_fill_ : to_i32(color_); });
    surface_.Polygon({row_.top(column), row_.top(column + 1), next_row_.top(column + 1), next_row_.top(column)});
}

double SurfacePlot::color_of(double height)
{
    switch (look_) {
    case CellLook::Intervals:
        return interval_colors_(height, color_);
    case CellLook::Sigma:
        return sigma_color(height);
    default:
        return no_color;
    }
}

double SurfacePlot::sigma_color(double height) const
{
    bool const is_spread = top_height_ != bottom_height_;
    if (sigma_low_ > height && is_spread)
        return record_.ColS3;
    if (sigma_high_ < height && is_spread)
        return record_.ColS1;
    return record_.ColS2;
}

} // namespace

void panel::D3Plot(Surface& Plot, double resx, double resy, double fwscal, double alp2, double thet2,
                   std::int16_t PlotStyle, double SigmaRange, std::int16_t fprint, double left, double top,
                   double width, double height, std::int16_t ShowDispl)
{
    SurfaceRequest const request{resx, resy, fwscal, alp2, thet2, PlotStyle, SigmaRange, fprint != 0};
    SurfacePlot(*this, Plot, request, {left, top, width, height}, ShowDispl).run();
}

} // namespace zendara
