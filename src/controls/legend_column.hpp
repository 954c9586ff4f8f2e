#pragma once

#include "zendara/form/children.hpp"

#include <vector>

namespace zendara
{

/// The column at the right: the legend, the small figure of the panel, and the options button.
class LegendColumn
{
public:
    explicit LegendColumn(Window& window);

    Frame frmove;
    Frame Frame1;
    Frame frleg;
    Frame legende;
    ChildArray<Label> ScaleValue;
    ChildArray<Label> scalCol;
    Frame FNLabel;
    PictureBox FNPic;
    Button Command1;

    /// Texts of a control's own in the legend: it has to be wide enough for them, and they share its back colour.
    std::vector<Label*> further_texts;

    /// Makes the column as wide as its widest legend text asks for and sets it at the window's right edge.
    void lay_out(double window_width);

    void BackColor(Color color);
};

} // namespace zendara
