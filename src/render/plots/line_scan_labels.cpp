#include "zendara/render/plots/line_scan_labels.hpp"

#include "zendara/render/plots/scan_line.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/number_text.hpp"

#include <string>

namespace zendara
{

namespace
{

constexpr std::int16_t label_characters = 7; // of a value, its decimals included
constexpr std::int16_t scientific_decimals = 3;

std::string position_text(double x, double y)
{
    return "X=" + format_mask(x, "0.00") + "\nY=" + format_mask(y, "0.00");
}

void write_value_labels(panel const& record, WidgetArray& labels)
{
    ScanValueText const text(record.maximal);
    int index = 0;
    for (double const value : scan_axis_values(record))
        labels(index++).caption(text(value));
}

void write_position_labels(ScanLine const& line, WidgetArray& labels)
{
    double const step_x = line.width() / 4;
    double const step_y = line.height() / 4;
    for (int k = 0; k <= 3; ++k)
        labels(k).caption(position_text(line.start_x + k * step_x, line.start_y + k * step_y));
    labels(4).caption(position_text(line.end_x, line.end_y));
}

} // namespace

ScanValueText::ScanValueText(double top)
{
    std::int16_t const digits = IntegerDigits(top, false, is_scientific_);
    decimals_ = is_scientific_ ? scientific_decimals : static_cast<std::int16_t>(label_characters - digits);
}

std::string ScanValueText::operator()(double value) const
{
    return FormatFixed(value, 0, decimals_, is_scientific_);
}

std::array<double, 5> scan_axis_values(panel const& record)
{
    double const low = record.Low;
    double const high = record.maximal;
    double const middle = (low + high) / 2;
    return {low, (middle + low) / 2, middle, (middle + high) / 2, high};
}

void panel::D1Plot_Show_lblXY(WidgetArray& lblX, WidgetArray& lblY, std::int16_t& Plotopt, std::int16_t& phi,
                              double& x1, double& y1, double& x2, double& y2, double x3, double y3)
{
    ScanLine const line = EitherFormArguments{Plotopt, phi, x1, y1, x2, y2, x3, y3}.scan(*this);
    write_value_labels(*this, lblY);
    write_position_labels(line, lblX);
}

} // namespace zendara
