#include "zendara/render/plots/site_plot.hpp"

#include <algorithm>

namespace zendara
{

namespace
{

// Twips per pixel of a printer of 300 dots per inch, to which a failed run goes back.
constexpr double repair_twips_per_pixel = 4.8;

} // namespace

IntervalColors::IntervalColors(panel const& record, double zoom, double band, bool is_flat)
    : colors_{record.col1, record.col2, record.col3, record.col4, record.col5,
              record.col6, record.col7, record.col8, record.col9, record.col10},
      is_flat_(is_flat)
{
    for (std::size_t k = 0; k < borders_.size(); ++k)
        borders_[k] = zoom - static_cast<double>(k + 1) * band;
    is_descending_ = std::is_sorted(borders_.rbegin(), borders_.rend());
}

double IntervalColors::by_every_interval(double scaled, double previous) const
{
    double color = previous;
    if (borders_.front() <= scaled)
        color = colors_.front();
    for (std::size_t k = 1; k < borders_.size(); ++k)
        if (borders_[k - 1] > scaled && borders_[k] <= scaled)
            color = colors_[k];
    if (borders_.back() > scaled)
        color = colors_.back();
    return color;
}

void SitePlot::repair_rectangle()
{
    is_rectangle_repaired_ = true;
    trap(place_of("rectangle"), [&] { plot_l_ = to_i16(box_.left / repair_twips_per_pixel); });
    trap(place_of("rectangle"), [&] { plot_t_ = to_i16(box_.top / repair_twips_per_pixel); });
    trap(place_of("rectangle"), [&] { plot_w_ = to_i16(box_.width / repair_twips_per_pixel); });
    trap(place_of("rectangle"), [&] { plot_h_ = to_i16(box_.height / repair_twips_per_pixel); });
}

void SitePlot::clear_surface()
{
    if (is_for_paper())
        return;
    step([&] { surface_.Cls(); });
    step([&] { surface_.Refresh(); });
}

void SitePlot::fix_scale_range()
{
    double const maximal = record_.maximal;
    double const minimal = record_.minimal;
    if (maximal == record_.maxi && minimal == record_.mini) {
        scale_bottom_ = minimal;
        scale_top_ = maximal;
        return;
    }
    // With plot limits, the top and the bottom interval are the stretches beyond them.
    step([&] { scale_bottom_ = finite(minimal - (maximal - minimal) / 8); });
    step([&] { scale_top_ = finite(maximal + (maximal - minimal) / 8); });
}

void SitePlot::fix_low(double highest, double lowest)
{
    if (highest != lowest)
        step([&] { record_.Low = finite(lowest - (highest - lowest) * 0.1); });
    else if (lowest < 0)
        step([&] { record_.Low = finite(1.1 * lowest - 0.001); });
    else
        step([&] { record_.Low = finite(0.9 * lowest - 0.001); });
}

void SitePlot::find_rectangle()
{
    if (surface_.is_printer() || is_for_paper()) {
        step([&] { plot_l_ = to_i16(divide(box_.left, surface_.TwipsPerPixelX())); });
        step([&] { plot_w_ = to_i16(divide(box_.width, surface_.TwipsPerPixelX())); });
        step([&] { plot_t_ = to_i16(divide(box_.top, surface_.TwipsPerPixelY())); });
        step([&] { plot_h_ = to_i16(divide(box_.height, surface_.TwipsPerPixelY())); });
        return;
    }
    step([&] { plot_l_ = to_i16(surface_.ScaleLeft()); });
    step([&] { plot_w_ = to_i16(surface_.ScaleWidth()); });
    step([&] { plot_t_ = to_i16(surface_.ScaleTop()); });
    step([&] { plot_h_ = to_i16(surface_.ScaleHeight()); });
}

void SitePlot::find_raster(double& cell_width, double& cell_height)
{
    constexpr std::int16_t fewest_cells = 4; // to each side of the centre
    step([&] { cells_x_ = to_i16(divide(record_.HalfTestSizeX, cell_width)); });
    step([&] { cells_y_ = to_i16(divide(record_.HalfTestSizey, cell_height)); });
    if (cells_x_ < fewest_cells) {
        cells_x_ = fewest_cells;
        cell_width = record_.HalfTestSizeX / fewest_cells;
    }
    if (cells_y_ < fewest_cells) {
        cells_y_ = fewest_cells;
        cell_height = record_.HalfTestSizey / fewest_cells;
    }
}

void SitePlot::fix_band()
{
    step([&] {
        double const bottom_stretch = divide((scale_top_ - scale_bottom_) * 0.1, scale_top_ - record_.Low);
        band_ = finite((1 - bottom_stretch) * zoom_ / 10);
    });
}

void SitePlot::draw_frame()
{
    surface_.FillColor = QBColor(15);
    double x0 = 0;
    double y0 = 0;
    step([&] { x0 = finite(middle_x() - zoom_ * record_.HalfTestSizeX); });
    step([&] { y0 = finite(middle_y() - zoom_ * record_.HalfTestSizey); });
    surface_.DrawStyle = pen_solid;
    step([&] {
        surface_.BoxStep(x0 - 1, y0 - 1, finite(zoom_ * record_.TestSizeX + 1), finite(zoom_ * record_.TestSizeY + 1),
                         QBColor(0));
    });
}

void SitePlot::refresh_screen_picture()
{
    if (is_screen_picture())
        step([&] { surface_.Refresh(); });
}

double SitePlot::scaled(double value) const
{
    return divide((value - record_.Low) * zoom_, scale_top_ - record_.Low);
}

void SiteNumbersPlot::find_zoom()
{
    double zoom_x = 0;
    double zoom_y = 0;
    step([&] { zoom_x = divide(plot_w_ - 6, record_.TestSizeX); });
    step([&] { zoom_y = divide(plot_h_ - 6, record_.TestSizeY); });
    zoom_ = zoom_x < zoom_y ? zoom_x : zoom_y;
}

void SiteNumbersPlot::print_centred(std::string const& text, std::int16_t site)
{
    step([&] { surface_.CurrentX = finite(surface_x(site_x(site)) - surface_.TextWidth(text) / 2); });
    // Always the height of a digit, so that the texts of one row of sites share one line.
    step([&] { surface_.CurrentY = finite(surface_y(site_y(site)) - surface_.TextHeight("0") / 2); });
    step([&] { surface_.Print(text); });
}

} // namespace zendara
