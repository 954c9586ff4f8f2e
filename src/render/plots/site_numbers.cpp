#include "zendara/render/plots/site_plot.hpp"
#include "zendara/support/number_text.hpp"

namespace zendara
{

namespace
{

constexpr Color site_number_color = 0xFF0000;   // blue
constexpr double fewest_sites_as_circles = 255; // so many numbers would only hide each other
constexpr double circle_radius = 10;

/// One run of D2GridNumber or GridPosPlot.
class SiteNumberingPlot : SiteNumbersPlot
{
public:
    using SiteNumbersPlot::SiteNumbersPlot;

    void run_in_blue()
    {
        clear_surface();
        fix_scale_range();
        fix_low();
        find_rectangle();
        find_zoom();
        fix_band();
        draw_frame();
        for_each_site([&](std::int16_t site) {
            surface_.ForeColor = site_number_color;
            if (nop() >= fewest_sites_as_circles)
                step([&] { surface_.Circle(surface_x(site_x(site)), surface_y(site_y(site)), circle_radius); });
            else
                print_number(site);
            refresh_screen_picture();
        });
        record_.setMaximalMinial(record_.maximal, record_.minimal);
    }

    void run_in_surface_color()
    {
        clear_surface();
        find_rectangle();
        find_zoom();
        draw_frame();
        for_each_site([&](std::int16_t site) {
            print_number(site);
            refresh_screen_picture();
        });
    }

private:
    void print_number(std::int16_t site) { print_centred(FormatFixed(site, 0, 0, false), site); }
};

} // namespace

void panel::D2GridNumber(Surface& Plot, double left, double top, double width, double height, std::int16_t ShowDispl)
{
    SiteNumberingPlot(*this, Plot, {left, top, width, height}, ShowDispl).run_in_blue();
}

void panel::GridPosPlot(Surface& Plot, double left, double top, double width, double height, std::int16_t ShowDispl)
{
    SiteNumberingPlot(*this, Plot, {left, top, width, height}, ShowDispl).run_in_surface_color();
}

} // namespace zendara
