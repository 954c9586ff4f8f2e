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

    /// Texts of a control's own in the legend. They share its back colour; where they do not size themselves, they
    /// reach up to its right edge.
    std::vector<Label*> further_texts;

    /// Makes the column as wide as the widest of the scale's texts asks for and sets it at the window's right edge,
    /// down to the lower one.
    void lay_out(double window_width, double window_height);

    void BackColor(Color color);
};

} // namespace zendara
