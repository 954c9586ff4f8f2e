#pragma once

#include "printing.hpp"
#include "zendara/files/paper_surface.hpp"

#include <cstddef>
#include <string>

namespace zendara::program
{

/// Where the parts of one plot stand on a page of the report.
struct PlotPlace {
    PageBox plot;
    // Upper left corners; the data blocks stand beside the first plot alone.
    double legend_left = 0, legend_top = 0;
    double size_top = 0, statistic_top = 0;
};

/// The form of the report's pages: a title line, two plots, a page number. The first plot of all has the legend and the
/// data blocks in a column to its right.
class ReportSheet
{
public:
    static constexpr std::size_t plots_per_page = 2;

    /// @param line  height of a text line of the print members, in twips
    ReportSheet(PaperSize const& paper, double line);

    /// @param plot        counted from 0 through the report
    /// @param has_legend  a plot without one takes its room too
    PlotPlace place(std::size_t plot, bool has_legend) const;

    /// Writes the title line and the page number.
    /// @param page  from 1
    void write_margins(PaperSurface& paper, std::string const& title, std::string const& date, std::size_t page,
                       std::size_t pages) const;

private:
    PlotPlace first_place(bool has_legend) const;
    PageBox slot_of_second() const;
    PageBox slot_on_later_page(std::size_t index) const;
    PlotPlace place_in(PageBox const& slot, bool has_legend) const;
    double column_height() const;
    bool is_landscape() const { return paper_.width > paper_.height; }

    PaperSize paper_;
    double line_;
    PageBox content_;
};

} // namespace zendara::program
