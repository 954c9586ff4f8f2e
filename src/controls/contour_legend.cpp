#include "zendara/controls/contour_legend.hpp"

#include "zendara/support/checked.hpp"

#include <array>

namespace zendara
{

namespace
{

constexpr int scale_rows = 10;
constexpr int curves = 3;

// All in twips. Closer rows, a higher legend and a lower panel figure leave room for the distance above the scale.
constexpr double row_pitch = 165;
constexpr double scale_top = 195;
constexpr double taller = 105;
constexpr double figure_lower = 60;
constexpr double button_lower = taller - figure_lower;
constexpr double key_pitch = 240;
constexpr double key_top = 255;
constexpr double swatch_drop = 30; // below the top of its text

void make_room(LegendColumn& column)
{
    column.frleg.Height(column.frleg.Height() + taller);
    column.legende.Height(column.legende.Height() + taller);
    column.FNLabel.Top(column.FNLabel.Top() + taller);
    column.FNLabel.Height(column.FNLabel.Height() - figure_lower);
    column.FNPic.Height(column.FNPic.Height() - figure_lower);
    column.Command1.Top(column.Command1.Top() + button_lower);
}

void place(Label& text, Label& swatch, double top)
{
    text.Top(top);
    swatch.Top(top + swatch_drop);
}

} // namespace

ContourLegend::ContourLegend(LegendColumn& column)
    : lblInterval(column.legende, "lblInterval"), lblCurve(column.legende, "lblCurve", 1, curves),
      curveCol(column.legende, "curveCol", 1, curves), column_(column)
{
    make_room(column);
    auto const& text = column.ScaleValue(1);
    auto const& swatch = column.scalCol(1);
    lblInterval.Move(swatch.Left(), 0, column.legende.Width() - swatch.Left(), scale_top);
    column.further_texts.push_back(&lblInterval);
    for (int row = 1; row <= scale_rows; ++row)
        place(column.ScaleValue(row), column.scalCol(row), scale_top + (row - 1) * row_pitch);

    std::array const captions = {"Upper lines", "Mean line", "Lower lines"};
    for (int curve = 1; curve <= curves; ++curve) {
        lblCurve(curve).Left(text.Left());
        lblCurve(curve).AutoSize(true);
        lblCurve(curve).caption(captions[static_cast<std::size_t>(curve - 1)]);
        column.further_texts.push_back(&lblCurve(curve));
        curveCol(curve).has_border = true;
        curveCol(curve).Move(swatch.Left(), 0, swatch.Width(), swatch.Height());
        place(lblCurve(curve), curveCol(curve), key_top + (curve - 1) * key_pitch);
    }
}

void ContourLegend::show(ContourColors colors)
{
    for (int row = 1; row <= scale_rows; ++row) {
        column_.ScaleValue(row).Visible(colors == ContourColors::Ten_ColorPlot);
        column_.scalCol(row).Visible(colors == ContourColors::Ten_ColorPlot);
    }
    for (int curve = 1; curve <= curves; ++curve) {
        lblCurve(curve).Visible(colors == ContourColors::Three_ColorPlot);
        curveCol(curve).Visible(colors == ContourColors::Three_ColorPlot);
    }
}

void ContourLegend::fill(panel const& record, ContourColors colors, std::string const& distance)
{
    show(colors);
    lblInterval.caption("Interval: " + distance);
    curveCol(1).BackColor(to_i32(record.ColS1));
    curveCol(2).BackColor(to_i32(record.ColS2));
    curveCol(3).BackColor(to_i32(record.ColS3));
    if (colors == ContourColors::Ten_ColorPlot)
        record.scale_colored(column_.scalCol, column_.ScaleValue);
}

} // namespace zendara
