#pragma once

#include "zendara/form/line_shape.hpp"

namespace zendara
{

/// The children of the histogram control and their layout: the frame, in it the picture with axes and texts, in that
/// the picture with bars and curve, and the options button in the lower right corner.
class HistogramView
{
public:
    explicit HistogramView(Window& window);

    Frame frmhist;
    PictureBox histPic;          // axes and texts; scaled in pixels
    PictureBox PLOTA;            // bars and curve; scaled in pixels
    ChildArray<LineShape> Line1; // frame of PLOTA: left, upper, right, lower
    LineShape Line2, Line3;      // mark at the origin
    ChildArray<Label> lblX;      // texts of the sigma marks, not shown
    Button Command1;
    PictureBox copypic; // spare

    /// The place of the plot as another chart of the host dictates it, in twips; top 0 for none.
    struct ChartDim {
        double top = 0;
        double height = 0;
    };
    /// Lays everything out in a window of that size, in twips.
    void lay_out(double width, double height, ChartDim const& chart);

    void BackColor(Color color);

private:
    void lay_out_plot(ChartDim const& chart);
    void lay_out_lines();

    Window& window_;
};

} // namespace zendara
