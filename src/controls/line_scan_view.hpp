#pragma once

#include "zendara/form/line_overview.hpp"
#include "zendara/form/up_down.hpp"

namespace zendara
{

/// The children of the line scan control and their layout: the curve with its axes, under it the overview of one of
/// the two forms, and the options button in the lower right corner.
class LineScanView
{
public:
    explicit LineScanView(Window& window);

    Frame Plot;
    PictureBox PLOTA;             // the curve; scaled in twips
    ChildArray<ImageBox> picgrid; // marks of sites; grows with every plot that shows them
    ChildArray<Label> lblX, lblY;
    Label plus; // the start of the line, over the curve's left end
    ChildArray<Frame> FNLabel;
    LineOverview by_angle; // in FNLabel(0)
    Frame Frame1;
    TextBox AngleValue;
    UpDown UpDown1;
    Label Label1;
    LineOverview by_points; // in FNLabel(1)
    Button btnoptions;
    PictureBox copypic; // spare

    /// Makes the window at least as large as its children ask for.
    void take_smallest_size(bool has_legend);
    /// Lays everything out in the window's size; all lengths in twips.
    /// @param top_text  the text at the top of the value axis, by whose width the curve makes room
    void lay_out(bool has_legend, std::string const& top_text);

    /// Hides inner axis labels that would cover others.
    void part_labels();

    void hide_marks();
    /// Shows the overview of one form in place of the other.
    void show_form(bool is_line);

    void BackColor(Color color);

private:
    void build_curve_area();
    void build_overviews();
    void lay_out_axes();

    Window& window_;
};

} // namespace zendara
