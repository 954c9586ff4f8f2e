#include "zendara/print/print_panel.hpp"
#include "zendara/print/viewbitmap.hpp"
#include "zendara/support/interface.hpp"

namespace zendara
{

namespace
{

using P = PrintPanel;

/// The panel and the box of a plot, then what is its own.
template <class... Names> auto boxed(Names... names)
{
    return by_references("panobj", "left", "top", "width", "height", names...);
}

std::vector<Member> primitives()
{
    auto const text = by_references("text", "left", "top", "width", "colInd");
    return {
        field<&P::PrinterObj>("PrinterObj", "The page, or a picture that previews it."),
        method<&P::DrawLeftText>("DrawLeftText", "Writes a text from a place on.", text),
        method<&P::DrawCenterText>("DrawCenterText", "Writes a text around a place.", text),
        method<&P::DrawRightText>("DrawRightText", "Writes a text up to a place.", text),
        method<&P::DrawFrame>("DrawFrame", "Draws a frame with a caption in its upper edge.",
                              by_references("text", "left", "top", "width", "height")),
        method<&P::DrawSigmaChar>("DrawSigmaChar", "Writes a sigma.", by_references("left", "top", "colInd")),
        method<&P::ResetPrinterObj>("ResetPrinterObj", "Puts the drawing state to its defaults."),
        method<&P::FormatLbl>("FormatLbl", "Number text of value read-outs.", by_value("dummy")),
    };
}

std::vector<Member> plots()
{
    return {
        method<&P::Print_2DPlot>("Print_2DPlot", "Prints the colour map.",
                                 boxed("resx", "resy", "caption", "marksites", "drawfr")),
        method<&P::Print_2DPlot_THN>("Print_2DPlot_THN", "Prints a small colour map.",
                                     boxed("resx", "resy", "caption", "winfo")),
        method<&P::Print_2DSigmaPlot>("Print_2DSigmaPlot", "Prints the sigma map.",
                                      boxed("resx", "resy", "sigma", "caption", "marksites", "drawfr")),
        method<&P::Print_2DSigmaPlot_THN>("Print_2DSigmaPlot_THN", "Prints a small sigma map.",
                                          boxed("resx", "resy", "sigma", "caption")),
        method<&P::Print_Contour>(
            "Print_Contour", "Prints the contour plot.",
            boxed("distance", "distPerc", "measUnit", "marked_sites", "reso", "colored", "caption", "drawfr")),
        method<&P::Print_Contour_THN>(
            "Print_Contour_THN", "Prints a small contour plot.",
            boxed("distance", "distPercent", "marked_sites", "reso", "colored", "caption", "winfo", "DrFrame")),
        method<&P::Print_3DPlot>("Print_3DPlot", "Prints the surface plot.",
                                 boxed("Plotopt", "resx", "resy", "fwscal", "alp2", "thet2", "caption", "drawfr")),
        method<&P::Print_2DBPlot>("Print_2DBPlot", "Prints the bar plot.",
                                  boxed("bx", "by", "fwscal", "alp2", "thet2", "caption", "drawfr")),
        method<&P::Print_3DSigmaPlot>("Print_3DSigmaPlot", "Prints the sigma surface.",
                                      boxed("resx", "resy", "fwscal", "alp2", "thet2", "sigma", "caption", "drawfr")),
        method<&P::Print_2DVPlot>("Print_2DVPlot", "Prints the values.", boxed("caption", "drawfr")),
        method<&P::Print_2DVGridPlot>("Print_2DVGridPlot", "Prints the site numbers in blue.",
                                      boxed("caption", "drawfr")),
        method<&P::Print_GridPosPlot>("Print_GridPosPlot", "Prints the site numbers.", boxed("caption")),
        method<&P::Print_Histo>("Print_Histo", "Prints the histogram.",
                                by_references("plott", "panobj", "left", "top", "width", "height", "stat_resol",
                                              "orgWidth", "caption", "drawfr")),
        method<&P::Print_Histo_THN>(
            "Print_Histo_THN", "Prints a small histogram.",
            by_references("plott", "panobj", "left", "top", "width", "height", "stat_resol", "orgWidth", "caption")),
        method<&P::Print_1DPlot>("Print_1DPlot", "Prints the line scan.",
                                 by_references("panobj", "angle", "Plotopt", "x1", "y1", "x2", "y2", "x3", "y3",
                                               "marksites", "caption", "left", "top", "width", "height", "drawfr")),
    };
}

std::vector<Member> legends_and_blocks()
{
    auto const block = by_references("panobj", "leftT", "top");
    return {
        method<&P::DrawColoredLegend>("DrawColoredLegend", "Prints the ten intervals.",
                                      by_references("panobj", "left", "top", "drawfr")),
        method<&P::DrawSigmaLegend>("DrawSigmaLegend", "Prints the three sigma bands.",
                                    by_references("panobj", "left", "top", "SigmaRange", "drawfr")),
        method<&P::DrawWaferRemarks>("DrawWaferRemarks", "Prints the remarks.", block),
        method<&P::DrawPanelSize>("DrawPanelSize", "Prints the panel's sizes.", block),
        method<&P::DrawPanelStatistics>("DrawPanelStatistics", "Prints the statistics.", block),
        method<&P::Print_Contour_Legend>("Print_Contour_Legend", "Prints the interval of a contour plot.",
                                         by_references("panobj", "left", "top", "distance", "distPerc", "measUnit")),
    };
}

} // namespace

Interface const& PrintPanel::host_interface() const
{
    static Interface const table{"PrintPanel", "Puts plots, legends and blocks of text of one panel on a page.",
                                 join({primitives(), plots(), legends_and_blocks()})};
    return table;
}

Interface const& viewbitmap::host_interface() const
{
    using V = viewbitmap;
    auto const place = by_references("x", "y");
    static Interface const table{
        "viewbitmap",
        "Writes the data of one panel below a picture.",
        {
            setter<&V::BitmapObj>("BitmapObj", "The picture."),
            setter<&V::WaferObj>("WaferObj", "The panel."),
            method<&V::DrawPanelData>("DrawPanelData", "Grows the picture and writes the data."),
            method<&V::Resetbitobj>("Resetbitobj", "Puts the drawing state to its defaults."),
            method<&V::DrawStatisticsBlock>("DrawStatisticsBlock", "Writes the statistics.", place),
            method<&V::DrawSizeBlock>("DrawSizeBlock", "Writes the panel's sizes.", place),
            method<&V::DrawRemarksBlock>("DrawRemarksBlock", "Writes the remarks.", place),
            method<&V::DrawBitmapText>("DrawBitmapText", "Writes a text.",
                                       by_references("text", "x", "y", "width", "colInd")),
        }};
    return table;
}

} // namespace zendara
