#include "report_sheet.hpp"

#include <algorithm>

namespace zendara::program
{

namespace
{

// Twips.
constexpr double side_margin = 850;
constexpr double title_top = 700;
constexpr double title_line_top = 1060;
constexpr double content_top = 1200;
constexpr double bottom_margin = 1150;
constexpr double gap = 250;

constexpr double title_points = 12;
constexpr double small_points = 8;

double width_of(PaperSurface const& paper, std::string const& text)
{
    return paper.TextWidth(text);
}

void write(PaperSurface& paper, std::string const& text, double left, double top)
{
    paper.CurrentX = left;
    paper.CurrentY = top;
    paper.Print(text);
}

/// Cuts a text at its end, between letters, until it fits.
std::string fitting(PaperSurface const& paper, std::string text, double width)
{
    constexpr char const* mark = "...";
    if (width_of(paper, text) <= width)
        return text;
    while (!text.empty() && width_of(paper, text + mark) > width) {
        auto const is_tail = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
        while (!text.empty() && is_tail(text.back()))
            text.pop_back();
        if (!text.empty())
            text.pop_back();
    }
    return text + mark;
}

} // namespace

ReportSheet::ReportSheet(PaperSize const& paper, double line)
    : paper_(paper), line_(line), content_{side_margin, content_top, paper.width - 2 * side_margin,
                                           paper.height - content_top - bottom_margin}
{
}

PlotPlace ReportSheet::place(std::size_t plot, bool has_legend) const
{
    if (plot == 0)
        return first_place(has_legend);
    if (plot < plots_per_page)
        return place_in(slot_of_second(), has_legend);
    return place_in(slot_on_later_page(plot % plots_per_page), has_legend);
}

// Legend, size and statistics one below the other; each frame ends a line below its box.
double ReportSheet::column_height() const
{
    return legend_height_twips + size_block_height_twips + statistic_block_height_twips + 3 * line_;
}

PlotPlace ReportSheet::first_place(bool has_legend) const
{
    double const second_width = is_landscape() ? slot_of_second().width + gap : 0;
    PlotPlace place;
    place.legend_left = content_.right() - second_width - legend_width_twips;
    place.legend_top = content_.top;
    place.size_top = content_.top + (has_legend ? legend_height_twips + line_ : 0);
    place.statistic_top = place.size_top + size_block_height_twips + line_;
    place.plot = {content_.left, content_.top, place.legend_left - gap - content_.left, column_height() - line_};
    return place;
}

// Below the first plot on an upright page, to its right on a lying one.
PageBox ReportSheet::slot_of_second() const
{
    if (is_landscape()) {
        double const width = 0.36 * content_.width;
        return {content_.right() - width, content_.top, width, column_height()};
    }
    double const top = content_.top + column_height() + gap;
    return {content_.left, top, content_.width, content_.bottom() - top};
}

PageBox ReportSheet::slot_on_later_page(std::size_t index) const
{
    auto const number = static_cast<double>(index);
    if (is_landscape()) {
        double const width = (content_.width - gap) / 2;
        return {content_.left + number * (width + gap), content_.top, width, content_.height};
    }
    double const height = (content_.height - gap) / 2;
    return {content_.left, content_.top + number * (height + gap), content_.width, height};
}

// The legend stands to the right of the plot on an upright page, and below it on a lying one.
PlotPlace ReportSheet::place_in(PageBox const& slot, bool has_legend) const
{
    PlotPlace place;
    place.plot = slot;
    place.plot.height -= line_;
    if (!has_legend)
        return place;
    if (is_landscape()) {
        place.legend_left = slot.left;
        place.legend_top = slot.bottom() - legend_height_twips - line_;
        place.plot.height = place.legend_top - gap - slot.top;
    } else {
        place.legend_left = slot.right() - legend_width_twips;
        place.legend_top = slot.top;
        place.plot.width = place.legend_left - gap - slot.left;
    }
    return place;
}

void ReportSheet::write_margins(PaperSurface& paper, std::string const& title, std::string const& date,
                                std::size_t page, std::size_t pages) const
{
    constexpr Color gray = 0x404040;
    paper.ScaleMode(scale_twips);
    paper.ForeColor = QBColor(0);
    paper.FontTransparent = true;
    paper.DrawStyle = pen_solid;
    paper.DrawWidth = 2;

    paper.Font = {"Arial", small_points};
    double const date_width = width_of(paper, date);
    write(paper, date, content_.right() - date_width, title_top + 60);
    paper.Font.size = title_points;
    write(paper, fitting(paper, title, content_.width - date_width - gap), content_.left, title_top);
    paper.Line(content_.left, title_line_top, content_.right(), title_line_top, gray);

    paper.Font.size = small_points;
    std::string const number = "Page " + std::to_string(page) + " of " + std::to_string(pages);
    write(paper, number, (paper_.width - width_of(paper, number)) / 2, content_.bottom() + 2 * gap);
}

} // namespace zendara::program
