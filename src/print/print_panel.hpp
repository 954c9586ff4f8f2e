#pragma once

#include "zendara/panel/panel.hpp"
#include "zendara/render/plots/scan_line.hpp"
#include "zendara/render/surface/surface.hpp"

#include <functional>
#include <string>
#include <vector>

namespace zendara
{

struct BlockRow;

/// A rectangle on paper, in twips from the page's origin.
struct PaperBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Puts plots, legends and blocks of text of one panel on a page, or on a picture that previews the page.
///
/// Lengths are twips (1440 to the inch) from the page's origin, also on a picture. Colour indices are those of the
/// table of sixteen: 0 black, 1 blue, 2 green, 4 red, 15 white. Between two calls nothing is kept. Pages and documents
/// are begun and ended by the host. Behind every routine the surface has the drawing state of ResetPrinterObj. All
/// members fail with ObjectNotSet while there is no PrinterObj, and with Overflow where a text is wider than 32767
/// surface units or a coordinate leaves its range.
///
/// Of the plots, `left`, `top`, `width` and `height` are the box that the plot is laid out in; `caption` stands in the
/// upper edge of its frame, which is one line lower than the box; `drawfr` draws frame and caption. The names that end
/// in _THN are compact forms for small plots, which several fit on a page: without the figure of the panel.
class PrintPanel : public Object
{
public:
    /// The page or picture; the host keeps it alive.
    Surface* PrinterObj = nullptr;

    // --- Primitives -------------------------------------------------------------------------------------------------

    /// Puts the drawing state to its defaults: twips, "Arial" at 8 points, a thin black pen, a solid white fill.
    void ResetPrinterObj();

    /// Writes a text that starts at `left`, cut at its end to fit `width`.
    /// @param text  comes back as it was written
    /// @throws Failure  InvalidProcedureCall when not even the empty text fits
    void DrawLeftText(std::string& text, double left, double top, double width, std::int16_t colInd);
    /// Writes a text around `left`, cut at both ends to fit `width`. Otherwise as DrawLeftText.
    void DrawCenterText(std::string& text, double left, double top, double width, std::int16_t colInd);
    /// Writes a text that ends at `left`, cut at its start to fit `width`. Otherwise as DrawLeftText.
    void DrawRightText(std::string& text, double left, double top, double width, std::int16_t colInd);

    /// Draws a dark grey frame with a caption set into its upper edge, or a closed one for an empty caption. It lies
    /// one line lower than the box that is named.
    void DrawFrame(std::string const& text, double left, double top, double width, double height);

    /// Writes a sigma in "Symbol", a quarter of its height above `top`. The font stays as it is.
    void DrawSigmaChar(double left, double top, std::int16_t colInd);

    /// The number text of value read-outs; see format_label.
    std::string FormatLbl(double dummy) const;

    // --- Plots beside a figure of the panel
    // --------------------------------------------------------------------------- Arguments of their own are those of
    // the plot members of panel.

    /// Prints the map in ten interval colours.
    void Print_2DPlot(panel& panobj, double left, double top, double width, double height, double resx, double resy,
                      std::string const& caption, std::int16_t marksites, BooleanWord drawfr);
    /// Prints the map in three sigma colours.
    void Print_2DSigmaPlot(panel& panobj, double left, double top, double width, double height, double resx,
                           double resy, double sigma, std::string const& caption, std::int16_t marksites,
                           BooleanWord drawfr);
    /// Prints the values at their places.
    void Print_2DVPlot(panel& panobj, double left, double top, double width, double height, std::string const& caption,
                       BooleanWord drawfr);
    /// Prints the surface.
    void Print_3DPlot(panel& panobj, double left, double top, double width, double height, std::int16_t Plotopt,
                      double resx, double resy, double fwscal, double alp2, double thet2, std::string const& caption,
                      BooleanWord drawfr);
    /// Prints the surface in three sigma colours.
    void Print_3DSigmaPlot(panel& panobj, double left, double top, double width, double height, double resx,
                           double resy, double fwscal, double alp2, double thet2, double sigma,
                           std::string const& caption, BooleanWord drawfr);
    /// Prints the bars.
    void Print_2DBPlot(panel& panobj, double left, double top, double width, double height, double bx, double by,
                       double fwscal, double alp2, double thet2, std::string const& caption, BooleanWord drawfr);

    // --- Plots alone in their box
    // -------------------------------------------------------------------------------------

    /// Prints the site numbers, always in a frame.
    void Print_GridPosPlot(panel& panobj, double left, double top, double width, double height,
                           std::string const& caption);
    /// Prints the site numbers in blue. Without a frame they take the whole box.
    void Print_2DVGridPlot(panel& panobj, double left, double top, double width, double height,
                           std::string const& caption, BooleanWord drawfr);
    /// @param winfo  a line below the plot; comes back as it was written
    void Print_2DPlot_THN(panel& panobj, double left, double top, double width, double height, double resx, double resy,
                          std::string const& caption, std::string& winfo);
    void Print_2DSigmaPlot_THN(panel& panobj, double left, double top, double width, double height, double resx,
                               double resy, double sigma, std::string const& caption);

    // --- Contour plots
    // ------------------------------------------------------------------------------------------------

    /// Prints lines of equal value with their interval.
    /// @param distance      between two lines
    /// @param distPerc      True: `distance` is in the measuring unit `measUnit`; False: in percent
    /// @param marked_sites, reso, colored  as those of panel::D2Contour
    void Print_Contour(panel& panobj, double left, double top, double width, double height, double distance,
                       BooleanWord distPerc, std::string const& measUnit, std::int16_t marked_sites, std::int16_t reso,
                       std::int16_t colored, std::string const& caption, BooleanWord drawfr);
    /// @param distPercent  as distPerc of Print_Contour
    /// @param winfo        a line below the plot, with the frame; comes back as it was written
    void Print_Contour_THN(panel& panobj, double left, double top, double width, double height, double distance,
                           BooleanWord distPercent, std::int16_t marked_sites, std::int16_t reso, std::int16_t colored,
                           std::string const& caption, std::string& winfo, BooleanWord DrFrame);

    // --- Histogram and line scan
    // --------------------------------------------------------------------------------------

    /// Prints the histogram. Never fails: a failed step is left out.
    /// @param plott     as PlotType of panel::Statistic
    /// @param orgWidth  carried for hosts
    void Print_Histo(std::int16_t plott, panel& panobj, double left, double top, double width, double height,
                     double stat_resol, double orgWidth, std::string const& caption, BooleanWord drawfr);
    /// @param caption  carried for hosts
    void Print_Histo_THN(std::int16_t plott, panel& panobj, double left, double top, double width, double height,
                         double stat_resol, double orgWidth, std::string const& caption);

    /// Prints the values along a line, with the line on a figure of the panel.
    /// @param Plotopt  1 the line through (x1, y1) at `angle` degrees, else the line through (x2, y2) and (x3, y3)
    void Print_1DPlot(panel& panobj, std::int16_t angle, std::int16_t Plotopt, double x1, double y1, double x2,
                      double y2, double x3, double y3, BooleanWord marksites, std::string const& caption, double left,
                      double top, double width, double height, BooleanWord drawfr);

    // --- Legends and blocks of text
    // -----------------------------------------------------------------------------------

    /// Prints the ten intervals with their colours, 2400 twips high; with a frame 2775 by 2895.
    void DrawColoredLegend(panel& panobj, double left, double top, BooleanWord drawfr);
    /// Prints the three sigma bands with their colours, 1200 twips high; with a frame as DrawColoredLegend.
    void DrawSigmaLegend(panel& panobj, double left, double top, double SigmaRange, BooleanWord drawfr);
    /// Prints a line with the interval of a contour plot.
    /// @param distPerc  True: `distance` is in percent; False: in the measuring unit. The reverse of Print_Contour.
    void Print_Contour_Legend(panel& panobj, double left, double top, double distance, BooleanWord distPerc,
                              std::string const& measUnit);

    /// Blocks of text in frames of 2775 twips: remarks, 1875 high; sizes, 1630 high; statistics, 2115 high.
    void DrawWaferRemarks(panel& panobj, double leftT, double top);
    void DrawPanelSize(panel& panobj, double leftT, double top);
    void DrawPanelStatistics(panel& panobj, double leftT, double top);

    Interface const& host_interface() const override;

private:
    /// Draws a plot into a square, while the surface counts in pixels.
    using PlotInSquare = std::function<void(PaperBox const& square)>;

    Surface& surface() const;
    std::int16_t pen_for(std::int16_t on_printer, std::int16_t on_picture) const;
    void begin(PaperBox const& box, std::string const& caption, BooleanWord with_frame);

    void DrawPanelOutline(double left, double top, double sizeX, double sizeY, double size, double alpha, double theta);
    void PlaceOutline(double x, double y, double sizeX, double sizeY, double alpha, double theta);

    PaperBox room_below_caption(PaperBox const& box) const;
    void plot_beside_outline(panel const& panobj, PaperBox const& box, double alpha, double theta,
                             PlotInSquare const& plot);
    void plot_in(PaperBox const& square, PlotInSquare const& plot);

    void print_histogram(std::int16_t plott, panel& panobj, PaperBox const& box, double lower_by, double stat_resol);

    void print_scan_column(panel& panobj, EitherFormArguments const& line, double x, double y);
    void DrawScanIndicator(panel& panobj, EitherFormArguments const& line, PaperBox const& picture);
    void print_scan_values(panel const& panobj, double x, PaperBox const& axes);
    void print_scan_positions(ScanLine const& scan, PaperBox const& axes);
    void print_scan_origin(double x, double top);
    void print_scan_curve(panel& panobj, EitherFormArguments const& line, PaperBox const& axes, BooleanWord marksites);

    void DrawColoredScale(panel const& panobj, double left, double top);
    void DrawSigmaScale(panel const& panobj, double left, double top, double SigmaRange);

    void print_block(std::string const& title, double height, std::vector<BlockRow> const& rows, double left,
                     double top);
};

} // namespace zendara
