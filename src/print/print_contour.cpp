#include "zendara/print/print_panel.hpp"
#include "zendara/support/checked.hpp"
#include "zendara/support/number_text.hpp"

#include <algorithm>
#include <cmath>

namespace zendara
{

namespace
{

constexpr double outline_column = 1215;
constexpr double outline_column_height = 1455 + 100;
constexpr double figure_lower_by = 360; // than the interval above it
constexpr double interval_width = 1200;
constexpr double usual_share = 0.9;
constexpr std::int16_t for_paper = 1;

/// What an interval in the measuring unit is a percentage of; 0 for nothing.
double percent_base(panel const& record)
{
    if (record.mean != 0)
        return record.mean;
    if (record.range != 0)
        return record.range;
    if (std::abs(record.mean) < std::abs(record.maxi))
        return record.maxi;
    if (std::abs(record.mean) < std::abs(record.mini))
        return record.mini;
    return 0;
}

double in_percent(panel const& record, double distance, bool is_in_unit)
{
    if (!is_in_unit)
        return distance;
    double const base = percent_base(record);
    return base == 0 ? 1 : divide(distance * 100, std::abs(base));
}

std::string interval_text(double distance, std::string const& unit)
{
    return "Interval: " + plain_text(distance) + " " + unit;
}

} // namespace

void PrintPanel::Print_Contour(panel& panobj, double left, double top, double width, double height, double distance,
                               BooleanWord distPerc, std::string const& measUnit, std::int16_t marked_sites,
                               std::int16_t reso, std::int16_t colored, std::string const& caption, BooleanWord drawfr)
{
    begin({left, top, width, height}, caption, drawfr);
    double const column_x = left + width - outline_column;
    double const column_y = top + height - outline_column_height;
    PlaceOutline(column_x, column_y + figure_lower_by, panobj.SizeX, panobj.SizeY, 0, 90);

    double const percent = in_percent(panobj, distance, distPerc);
    std::string text = interval_text(distance, distPerc ? measUnit : "%");
    DrawLeftText(text, column_x, column_y, interval_width, 0);

    double const room = width - outline_column;
    double const side = usual_share * std::min(room, height);
    double const y = top + surface().TextHeight("0") + (height - side) / 2;
    panobj.D2Contour(surface(), percent, marked_sites, reso, colored, left + (room - side) / 2, y, side, side,
                     for_paper);
    ResetPrinterObj();
}

void PrintPanel::Print_Contour_THN(panel& panobj, double left, double top, double width, double height, double distance,
                                   BooleanWord distPercent, std::int16_t marked_sites, std::int16_t reso,
                                   std::int16_t colored, std::string const& caption, std::string& winfo,
                                   BooleanWord DrFrame)
{
    ResetPrinterObj();
    double const line_height = surface().TextHeight("0");
    double const side = DrFrame ? usual_share * std::min(height - 3 * line_height, width) : std::min(width, height);
    double const y = DrFrame ? top + 1.5 * line_height : top;
    double const percent = in_percent(panobj, distance, distPercent);
    panobj.D2Contour(surface(), percent, marked_sites, reso, colored, left, y, side, side, for_paper);
    ResetPrinterObj();
    if (DrFrame) {
        DrawLeftText(winfo, left, y + side + line_height / 2, side, 0);
        DrawFrame(caption, left, top, width, height);
    }
    ResetPrinterObj();
}

void PrintPanel::Print_Contour_Legend(panel&, double left, double top, double distance, BooleanWord distPerc,
                                      std::string const& measUnit)
{
    ResetPrinterObj();
    std::string text = interval_text(distance, distPerc ? "%" : measUnit);
    DrawLeftText(text, left, top, interval_width, 0);
}

} // namespace zendara
