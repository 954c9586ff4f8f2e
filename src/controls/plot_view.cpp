#include "zendara/controls/plot_view.hpp"

namespace zendara
{

namespace
{

constexpr double frame_width_share = 0.97;
constexpr double border_twips = 120;
constexpr double caption_twips = 240; // the frame's caption, above the plot

} // namespace

PlotView::PlotView(Window& window) : Frplot(window, "Frplot"), PLOTA(Frplot, "PLOTA"), RePlot(Frplot, "RePlot")
{
    Frplot.caption("Panel");
    PLOTA.BackColor(QBColor(15));
    PLOTA.Move(border_twips, caption_twips, border_twips, border_twips);
    RePlot.Visible(false);
}

void PlotView::lay_out(double side)
{
    Frplot.Move(Frplot.Left(), Frplot.Top(), frame_width_share * side, side);
    PLOTA.Move(PLOTA.Left(), PLOTA.Top(), Frplot.Width() - 2 * PLOTA.Left(),
               Frplot.Height() - PLOTA.Top() - PLOTA.Left());
    RePlot.Move(PLOTA.Left(), PLOTA.Top(), PLOTA.Width(), PLOTA.Height());
}

void PlotView::show_surface()
{
    PLOTA.Visible(true);
    RePlot.Visible(false);
    RePlot.Picture(nullptr);
}

void PlotView::show_stored_picture()
{
    PLOTA.Visible(false);
    RePlot.Visible(true);
}

void PlotView::store_picture()
{
    RePlot.Picture(PLOTA.surface().image());
}

} // namespace zendara
