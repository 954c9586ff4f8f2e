#include "zendara/controls/legend_column.hpp"

#include <algorithm>

namespace zendara
{

namespace
{

constexpr int rows = 10;

// All in twips. The column is as high as the smallest control.
constexpr double column_height = 3180;
constexpr double border = 105;
constexpr double narrowest_legend = 1890;
constexpr double legend_border = 240; // frleg beyond legende
constexpr double column_border = 210; // Frame1 beyond frleg
constexpr double row_pitch = 180;
constexpr double swatch_left = 30;
constexpr double swatch_width = 240;
constexpr double swatch_height = 135;
constexpr double text_left = 330;

} // namespace

LegendColumn::LegendColumn(Window& window)
    : frmove(window, "frmove"), Frame1(frmove, "Frame1"), frleg(Frame1, "frleg"), legende(frleg, "legende"),
      ScaleValue(legende, "ScaleValue", 1, rows), scalCol(legende, "scalCol", 1, rows), FNLabel(Frame1, "FNLabel"),
      FNPic(FNLabel, "FNPic"), Command1(Frame1, "Command1")
{
    double const legend_width = narrowest_legend + legend_border;
    frmove.has_border = false;
    frmove.Move(0, 0, legend_width + column_border, column_height);
    Frame1.Move(0, 0, legend_width + column_border, column_height);
    frleg.caption("Legend");
    frleg.Move(border, 90, legend_width, 2085);
    legende.has_border = false;
    legende.Move(legend_border / 2, 225, narrowest_legend, rows * row_pitch);
    for (int i = 1; i <= rows; ++i) {
        double const top = (i - 1) * row_pitch;
        scalCol(i).has_border = true;
        scalCol(i).Move(swatch_left, top + (row_pitch - swatch_height) / 2, swatch_width, swatch_height);
        ScaleValue(i).Move(text_left, top, 0, row_pitch);
        ScaleValue(i).AutoSize(true);
    }
    FNLabel.caption("Panel");
    FNLabel.Move(border, 2190, legend_width, 600);
    FNPic.Move(legend_border / 2, 210, narrowest_legend, 345);
    Command1.caption("Plot- Options");
    Command1.Move(border, 2805, legend_width, 300);
}

void LegendColumn::lay_out(double window_width, double window_height)
{
    double legend_width = narrowest_legend;
    for (int i = 1; i <= rows; ++i)
        legend_width = std::max(legend_width, ScaleValue(i).Left() + ScaleValue(i).Width());
    legende.Width(legend_width);
    for (Label* const text : further_texts)
        if (!text->AutoSize())
            text->Width(legend_width - text->Left());
    frleg.Width(legende.Width() + legend_border);
    Frame1.Width(frleg.Width() + column_border);
    Command1.Width(frleg.Width());
    FNLabel.Width(frleg.Width());
    frmove.Move(window_width - Frame1.Width(), frmove.Top(), Frame1.Width(), window_height);
}

void LegendColumn::BackColor(Color color)
{
    for (Child* const child : std::initializer_list<Child*>{&frmove, &legende, &FNPic, &FNLabel, &frleg, &Frame1})
        child->BackColor(color);
    for (int i = 1; i <= rows; ++i)
        ScaleValue(i).BackColor(color);
    for (Label* const text : further_texts)
        text->BackColor(color);
}

} // namespace zendara
