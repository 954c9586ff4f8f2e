#pragma once

#include "zendara/form/children.hpp"

namespace zendara
{

/// The frame with the plot: the surface that is drawn on, and in its place, after a resize, the stored picture.
class PlotView
{
public:
    explicit PlotView(Window& window);

    Frame Frplot;
    PictureBox PLOTA;
    ImageBox RePlot;

    /// Makes the frame as large as its share of a square and the plot as large as the frame.
    void lay_out(double side);

    /// Shows the surface in place of the stored picture, which is given up.
    void show_surface();
    /// Shows the stored picture, stretched, in place of the surface.
    void show_stored_picture();
    /// Takes what the surface shows as the stored picture.
    void store_picture();
};

} // namespace zendara
