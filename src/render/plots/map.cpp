#include "zendara/render/plots/site_plot.hpp"

#include <vector>

namespace zendara
{

namespace
{

constexpr std::int16_t style_intervals = 5;
constexpr double too_few_sites_for_a_map = 3;

/// What the caller of D2Plot asks for.
struct MapRequest {
    double resx;
    double resy;
    std::int16_t plot_style;
    double sigma_range;
    bool marks_sites;
};

/// One run of D2Plot: a raster of cells, each filled in the colour of the mean of its four corners.
class ColorMapPlot : SitePlot
{
public:
    ColorMapPlot(panel& record, Surface& surface, MapRequest const& request, PlotBox const& box,
                 std::int16_t show_displ)
        : SitePlot(record, surface, box, show_displ), request_(request)
    {
    }

    void run();

private:
    void fix_mark_sizes();
    void find_zoom();
    void draw_map();
    void allocate_raster();
    void place_corners();
    void place_row(std::size_t row, std::vector<std::int32_t>& to) const;
    void scale_row(std::size_t row, std::vector<double>& row_values);
    void draw_row(std::size_t row);
    void fill_cell(std::size_t row, std::size_t column);
    double sigma_color(double scaled_mean) const;
    void mark_sites();
    void mark_site(std::int16_t site);
    void refresh_for_screen();

    double corner_y(std::size_t row) const { return (cells_y_ - static_cast<int>(row)) * request_.resy; }

    MapRequest request_;
    std::int16_t mark_w_ = 6, mark_h_ = 2, mark_arm_ = 3;

    std::vector<double> corner_x_;                     // millimetres, from the right to the left
    std::vector<std::int32_t> corner_x_px_;            // surface units
    std::vector<std::int32_t> corner_y_px_;            // surface units, from the top down
    std::vector<double> values_;                       // one row of interpolated corners
    std::vector<double> row_values_, next_row_values_; // scaled, above and below the current cells
    IntervalColors interval_colors_;
    double sigma_low_ = 0, sigma_high_ = 0; // scaled
    double color_ = 0;
};

void ColorMapPlot::run()
{
    clear_surface();
    fix_scale_range();
    fix_low();
    find_rectangle();
    fix_mark_sizes();
    find_raster(request_.resx, request_.resy);
    find_zoom();
    fix_band();
    if (nop() > too_few_sites_for_a_map)
        draw_map();
    if (request_.marks_sites)
        mark_sites();
    record_.setMaximalMinial(record_.maximal, record_.minimal);
}

// Larger in device units on paper, so that the marks keep their size.
void ColorMapPlot::fix_mark_sizes()
{
    if (!surface_.is_printer())
        return;
    step([&] { mark_w_ = to_i16(12 * surface_.TwipsPerPixelX()); });
    step([&] { mark_h_ = to_i16(4 * surface_.TwipsPerPixelY()); });
    step([&] { mark_arm_ = to_i16(6 * surface_.TwipsPerPixelX()); });
}

// One zoom for both axes, so that the map keeps the panel's proportions.
void ColorMapPlot::find_zoom()
{
    double zoom_x = 0;
    double zoom_y = 0;
    step([&] { zoom_x = divide(plot_w_ - 6, to_i16(2.0 * cells_x_) * request_.resx); });
    step([&] { zoom_y = divide(plot_h_ - 6, to_i16(2.0 * cells_y_) * request_.resy); });
    zoom_ = zoom_x < zoom_y ? zoom_x : zoom_y;
}

void ColorMapPlot::draw_map()
{
    draw_frame();
    interval_colors_ = IntervalColors(record_, zoom_, band_, scale_top_ == scale_bottom_);
    step([&] { sigma_low_ = scaled(record_.mean - request_.sigma_range * record_.StdDev); });
    step([&] { sigma_high_ = scaled(record_.mean + request_.sigma_range * record_.StdDev); });
    step([&] { allocate_raster(); });
    if (row_values_.empty())
        return;

    place_corners();
    scale_row(0, row_values_);
    for (std::size_t row = 0; row < rows(); ++row) {
        next_row_values_ = row_values_; // a value that cannot be scaled keeps the one above
        scale_row(row + 1, next_row_values_);
        draw_row(row);
        row_values_.swap(next_row_values_);
        refresh_for_screen();
    }
    refresh_for_screen();
}

// Column and row counts are 16-bit numbers: a raster of more fails here, and no map is drawn.
void ColorMapPlot::allocate_raster()
{
    auto const last_column = static_cast<std::size_t>(to_i16(2.0 * cells_x_));
    auto const last_row = static_cast<std::size_t>(to_i16(2.0 * cells_y_));
    corner_x_.resize(last_column + 1);
    for (std::size_t column = 0; column <= last_column; ++column)
        corner_x_[column] = (cells_x_ - static_cast<int>(column)) * request_.resx;
    corner_x_px_.assign(last_column + 1, 0);
    corner_y_px_.assign(last_row + 1, 0);
    values_.assign(last_column + 1, 0);
    row_values_.assign(last_column + 1, 0);
}

void ColorMapPlot::place_corners()
{
    is_rectangle_repaired_ = false;
    for (std::size_t column = 0; column < corner_x_px_.size(); ++column)
        step([&] { corner_x_px_[column] = to_i32(surface_x(corner_x_[column])); });
    for (std::size_t row = 0; row < corner_y_px_.size(); ++row)
        step([&] { corner_y_px_[row] = to_i32(surface_y(corner_y(row))); });
}

void ColorMapPlot::scale_row(std::size_t row, std::vector<double>& row_values)
{
    record_.interpolate_row(corner_x_, corner_y(row), values_);
    for (std::size_t column = 0; column < values_.size(); ++column)
        step([&] { row_values[column] = scaled(values_[column]); });
    if (is_rectangle_repaired_)
        place_corners();
}

void ColorMapPlot::draw_row(std::size_t row)
{
    surface_.DrawStyle = pen_none;
    for (std::size_t column = 0; column < columns(); ++column)
        fill_cell(row, column);
}

void ColorMapPlot::fill_cell(std::size_t row, std::size_t column)
{
    double const cell_mean =
        (row_values_[column] + row_values_[column + 1] + next_row_values_[column] + next_row_values_[column + 1]) / 4;
    color_ = request_.plot_style == style_intervals ? interval_colors_(cell_mean, color_) : sigma_color(cell_mean);
    if (cell_mean == 0)
        return;
    step([&] { surface_.FillColor = to_i32(color_); });
    surface_.FillStyle = fill_solid;
    std::int32_t const right = corner_x_px_[column];
    std::int32_t const left = corner_x_px_[column + 1];
    std::int32_t const top = corner_y_px_[row];
    std::int32_t const bottom = corner_y_px_[row + 1];
    surface_.Polygon({{{right, top}, {left, top}, {left, bottom}, {right, bottom}}});
}

double ColorMapPlot::sigma_color(double scaled_mean) const
{
    bool const is_spread = record_.maxi != record_.mini;
    if (sigma_low_ > scaled_mean && is_spread)
        return record_.ColS3;
    if (sigma_high_ < scaled_mean && is_spread)
        return record_.ColS1;
    return record_.ColS2;
}

void ColorMapPlot::mark_sites()
{
    for_each_site([&](std::int16_t site) { mark_site(site); });
}

// A black plus on a white cross above the mean, a black minus on a white bar otherwise.
void ColorMapPlot::mark_site(std::int16_t site)
{
    double x = 0;
    double y = 0;
    step([&] { x = finite(surface_x(site_x(site))); });
    step([&] { y = finite(surface_y(site_y(site))); });
    bool const is_above_mean = site_z(site) > record_.mean;
    auto const fill = [&](double half_width, double half_height, Color color) {
        step([&] { surface_.FillBox(x - half_width, y - half_height, x + half_width, y + half_height, color); });
    };
    fill(mark_w_, mark_h_, QBColor(15));
    if (is_above_mean)
        fill(mark_h_, mark_w_, QBColor(15));
    fill(mark_arm_, 0, QBColor(0));
    if (is_above_mean)
        fill(0, mark_arm_, QBColor(0));
    refresh_for_screen();
}

void ColorMapPlot::refresh_for_screen()
{
    if (!is_for_paper())
        refresh_screen_picture();
}

} // namespace

void panel::D2Plot(Surface& Plot, double resx, double resy, std::int16_t PlotStyle, double SigmaRange,
                   std::int16_t marksites, double left, double top, double width, double height, std::int16_t ShowDispl)
{
    MapRequest const request{resx, resy, PlotStyle, SigmaRange, marksites != 0};
    ColorMapPlot(*this, Plot, request, {left, top, width, height}, ShowDispl).run();
}

} // namespace zendara
