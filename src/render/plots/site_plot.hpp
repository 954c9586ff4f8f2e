#pragma once

#include "zendara/panel/panel.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/trap.hpp"

#include <array>
#include <cstdint>

namespace zendara
{

/// The rectangle that a host gives for a plot on paper, in twips.
struct PlotBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Picks the interval colour of a scaled value: col1 from zoom - band upwards, then one band each, col10 below.
class IntervalColors
{
public:
    IntervalColors() = default;
    /// @param zoom  the scaled value of the scale's top
    /// @param band  width of one interval; scaled
    /// @param is_flat  top and bottom of the scale are equal: everything gets the sixth colour
    IntervalColors(panel const& record, double zoom, double band, bool is_flat);

    /// The colour; `previous` where no interval claims the value.
    double operator()(double scaled, double previous) const
    {
        if (is_flat_)
            return colors_[5];
        if (is_descending_ && scaled == scaled) {
            // With borders that fall from interval to interval, the count of borders above is the interval.
            std::size_t above = 0;
            for (double const border : borders_)
                above += border > scaled ? 1u : 0u;
            return colors_[above];
        }
        return by_every_interval(scaled, previous);
    }

private:
    double by_every_interval(double scaled, double previous) const;

    std::array<double, 9> borders_{}; // lower borders of the intervals 1 to 9
    std::array<double, 10> colors_{};
    bool is_flat_ = false;
    bool is_descending_ = true;
};

/// One run of a plot routine over a panel's sites: where on the surface it draws, and how values are scaled.
///
/// A run never fails outward: after a failed statement the rectangle is taken from the box at 4.8 twips per pixel, and
/// the run goes on at the next statement.
class SitePlot
{
public:
    SitePlot(panel& record, Surface& surface, PlotBox const& box, std::int16_t show_displ)
        : record_(record), surface_(surface), box_(box), show_displ_(show_displ)
    {
    }

protected:
    template <class Statement> void step(Statement&& statement)
    {
        trap(place_of(""), std::forward<Statement>(statement), [this] { repair_rectangle(); });
    }

    TrapPlace place_of(char const* step) const { return {record_.container, record_, "plot", step}; }

    bool is_for_paper() const { return show_displ_ == 1; }
    bool is_screen_picture() const { return !surface_.is_printer(); }

    void clear_surface();
    void fix_scale_range();
    void fix_low() { fix_low(scale_top_, scale_bottom_); }
    /// Sets the value below a range of values that stands for nothing.
    void fix_low(double highest, double lowest);
    void find_rectangle();
    /// Finds the raster of cells around the panel's centre: at least four to each side, for which the cells' sizes in
    /// millimetres are lowered in place.
    void find_raster(double& cell_width, double& cell_height);
    void fix_band();
    void draw_frame();
    void refresh_screen_picture();

    double middle_x() const { return plot_l_ + plot_w_ / 2.0; }
    double middle_y() const { return plot_t_ + plot_h_ / 2.0; }
    double surface_x(double x) const { return middle_x() + x * zoom_; }
    double surface_y(double y) const { return middle_y() - y * zoom_; }
    double scaled(double value) const;

    double nop() const { return record_.nop_; }
    /// Number of sites as a 16-bit counter takes it.
    /// @throws Failure  Overflow
    std::int16_t site_count() const { return to_i16(record_.nop_); }
    /// Runs a step for each site; a failing count leaves no sites.
    template <class PerSite> void for_each_site(PerSite&& per_site)
    {
        std::int16_t count = 0;
        step([&] { count = site_count(); });
        for (std::int32_t site = 1; site <= count; ++site)
            per_site(static_cast<std::int16_t>(site));
    }
    double site_x(std::int16_t site) const { return record_.grid_x_(site); }
    double site_y(std::int16_t site) const { return record_.grid_y_(site); }
    double site_z(std::int16_t site) const { return record_.grid_z_(site); }

    std::size_t columns() const { return 2 * static_cast<std::size_t>(cells_x_); }
    std::size_t rows() const { return 2 * static_cast<std::size_t>(cells_y_); }

    panel& record_;
    Surface& surface_;
    PlotBox const box_;
    std::int16_t const show_displ_;

    // The rectangle in surface units.
    std::int16_t plot_l_ = 0, plot_w_ = 0, plot_t_ = 0, plot_h_ = 0;
    bool is_rectangle_repaired_ = false;
    double scale_bottom_ = 0, scale_top_ = 0;
    std::int16_t cells_x_ = 0, cells_y_ = 0; // half the number of columns and rows of a raster
    double zoom_ = 0; // surface units per millimetre; also the full height of the scaled value range
    double band_ = 0; // one colour interval, scaled

private:
    void repair_rectangle();
};

/// A run that shows the sites themselves: the numbers of the values or of the sites.
class SiteNumbersPlot : protected SitePlot
{
public:
    using SitePlot::SitePlot;

protected:
    void find_zoom();
    /// Writes a text in the middle of a site's place.
    void print_centred(std::string const& text, std::int16_t site);
};

} // namespace zendara
