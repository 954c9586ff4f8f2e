#pragma once

#include "zendara/render/plots/scan_line.hpp"
#include "zendara/render/plots/site_plot.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/support/checked.hpp"

namespace zendara
{

/// With fewer sites nothing can be interpolated, and a scan shows nothing.
constexpr double fewest_scanned_sites = 4;

inline bool is_for_paper(std::int16_t show_disp)
{
    return show_disp == 1;
}

/// The rectangle of a scan on its surface, in surface units: the box that was given on paper, a whole picture on the
/// screen.
class ScanArea
{
public:
    ScanArea(Surface const& surface, PlotBox const& paper, std::int16_t show_disp);

    double left = 0;
    double bottom = 0;
    double width = 0;
    double height = 0;

    /// Where a value lies on the scale of the panel.
    double y_of(double value, panel const& record) const
    {
        return bottom - divide((value - record.Low) * height, record.maximal - record.Low);
    }
};

inline ScanArea::ScanArea(Surface const& surface, PlotBox const& paper, std::int16_t show_disp)
    : left(paper.left), bottom(paper.top + paper.height), width(paper.width), height(paper.height)
{
    if (is_for_paper(show_disp))
        return;
    left = 0;
    bottom = surface.ScaleHeight();
    width = surface.ScaleWidth();
    height = surface.ScaleHeight();
}

} // namespace zendara
