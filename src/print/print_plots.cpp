#include "zendara/print/paper_text.hpp"
#include "zendara/print/print_panel.hpp"

#include <algorithm>

namespace zendara
{

namespace
{

constexpr double outline_column = 1215;
constexpr double outline_column_height = 1355;
constexpr double beside_plot = 1250; // the column and a gap
constexpr double usual_share = 0.9;

constexpr double not_turned = 0; // degrees
constexpr double seen_from_above = 90;

constexpr std::int16_t ten_intervals = 5; // plot styles
constexpr std::int16_t sigma_bands = 4;
constexpr double no_sigma = 0;
constexpr std::int16_t without_marks = 0;
constexpr std::int16_t for_paper = 1;
constexpr std::int16_t printed = -1;

/// A square in the middle of a room, that takes a share of its smaller side.
PaperBox square_in(PaperBox const& room, double share)
{
    double const side = share * std::min(room.width, room.height);
    return {room.left + (room.width - side) / 2, room.top + (room.height - side) / 2, side, side};
}

} // namespace

// Plots leave their frame's caption out by one line.
PaperBox PrintPanel::room_below_caption(PaperBox const& box) const
{
    return {box.left, box.top + surface().TextHeight("0"), box.width, box.height};
}

void PrintPanel::plot_in(PaperBox const& square, PlotInSquare const& plot)
{
    surface().ScaleMode(scale_pixels);
    plot(square);
    ResetPrinterObj();
}

void PrintPanel::plot_beside_outline(panel const& panobj, PaperBox const& box, double alpha, double theta,
                                     PlotInSquare const& plot)
{
    PlaceOutline(box.left + box.width - outline_column, box.top + box.height - outline_column_height, panobj.SizeX,
                 panobj.SizeY, alpha, theta);
    PaperBox room = room_below_caption(box);
    room.width = box.width - beside_plot;
    plot_in(square_in(room, usual_share), plot);
}

void PrintPanel::Print_2DPlot(panel& panobj, double left, double top, double width, double height, double resx,
                              double resy, std::string const& caption, std::int16_t marksites, BooleanWord drawfr)
{
    ResetPrinterObj();
    plot_beside_outline(panobj, {left, top, width, height}, not_turned, seen_from_above, [&](PaperBox const& at) {
        panobj.D2Plot(surface(), resx, resy, ten_intervals, no_sigma, marksites, at.left, at.top, at.width, at.height,
                      for_paper);
    });
    if (drawfr)
        DrawFrame(caption, left, top, width, height);
}

void PrintPanel::Print_2DSigmaPlot(panel& panobj, double left, double top, double width, double height, double resx,
                                   double resy, double sigma, std::string const& caption, std::int16_t marksites,
                                   BooleanWord drawfr)
{
    PaperBox const box{left, top, width, height};
    begin(box, caption, drawfr);
    plot_beside_outline(panobj, box, not_turned, seen_from_above, [&](PaperBox const& at) {
        panobj.D2Plot(surface(), resx, resy, sigma_bands, sigma, marksites, at.left, at.top, at.width, at.height,
                      for_paper);
    });
}

void PrintPanel::Print_2DVPlot(panel& panobj, double left, double top, double width, double height,
                               std::string const& caption, BooleanWord drawfr)
{
    ResetPrinterObj();
    plot_beside_outline(panobj, {left, top, width, height}, not_turned, seen_from_above, [&](PaperBox const& at) {
        panobj.D2Number(surface(), at.left, at.top, at.width, at.height, for_paper);
    });
    if (drawfr)
        DrawFrame(caption, left, top, width, height);
}

void PrintPanel::Print_3DPlot(panel& panobj, double left, double top, double width, double height, std::int16_t Plotopt,
                              double resx, double resy, double fwscal, double alp2, double thet2,
                              std::string const& caption, BooleanWord drawfr)
{
    PaperBox const box{left, top, width, height};
    begin(box, caption, drawfr);
    plot_beside_outline(panobj, box, alp2, thet2, [&](PaperBox const& at) {
        panobj.D3Plot(surface(), resx, resy, fwscal, alp2, thet2, Plotopt, no_sigma, printed, at.left, at.top, at.width,
                      at.height, for_paper);
    });
}

void PrintPanel::Print_3DSigmaPlot(panel& panobj, double left, double top, double width, double height, double resx,
                                   double resy, double fwscal, double alp2, double thet2, double sigma,
                                   std::string const& caption, BooleanWord drawfr)
{
    PaperBox const box{left, top, width, height};
    begin(box, caption, drawfr);
    plot_beside_outline(panobj, box, alp2, thet2, [&](PaperBox const& at) {
        panobj.D3Plot(surface(), resx, resy, fwscal, alp2, thet2, sigma_bands, sigma, printed, at.left, at.top,
                      at.width, at.height, for_paper);
    });
}

void PrintPanel::Print_2DBPlot(panel& panobj, double left, double top, double width, double height, double bx,
                               double by, double fwscal, double alp2, double thet2, std::string const& caption,
                               BooleanWord drawfr)
{
    PaperBox const box{left, top, width, height};
    begin(box, caption, drawfr);
    plot_beside_outline(panobj, box, alp2, thet2, [&](PaperBox const& at) {
        panobj.D2BeamPlot(surface(), bx, by, fwscal, alp2, thet2, printed, at.left, at.top, at.width, at.height,
                          for_paper);
    });
}

void PrintPanel::Print_GridPosPlot(panel& panobj, double left, double top, double width, double height,
                                   std::string const& caption)
{
    ResetPrinterObj();
    PaperBox const room = room_below_caption({left, top, width, height});
    plot_in(square_in(room, usual_share), [&](PaperBox const& at) {
        panobj.GridPosPlot(surface(), at.left, at.top, at.width, at.height, for_paper);
    });
    DrawFrame(caption, left, top, width, height);
}

void PrintPanel::Print_2DVGridPlot(panel& panobj, double left, double top, double width, double height,
                                   std::string const& caption, BooleanWord drawfr)
{
    PaperBox const box{left, top, width, height};
    ResetPrinterObj();
    PaperBox const square = drawfr ? square_in(room_below_caption(box), usual_share) : square_in(box, 1);
    plot_in(square, [&](PaperBox const& at) {
        panobj.D2GridNumber(surface(), at.left, at.top, at.width, at.height, for_paper);
    });
    if (drawfr)
        DrawFrame(caption, left, top, width, height);
}

void PrintPanel::Print_2DPlot_THN(panel& panobj, double left, double top, double width, double height, double resx,
                                  double resy, std::string const& caption, std::string& winfo)
{
    ResetPrinterObj();
    double const line_height = surface().TextHeight("0");
    PaperBox square = square_in({left, top, width, height}, usual_share);
    square.top = top + 1.5 * line_height;
    plot_in(square, [&](PaperBox const& at) {
        panobj.D2Plot(surface(), resx, resy, ten_intervals, no_sigma, without_marks, at.left, at.top, at.width,
                      at.height, for_paper);
    });
    DrawLeftText(winfo, square.left, square.top + square.height + line_height / 2, square.width, 0);
    DrawFrame(caption, left, top, width, height);
    ResetPrinterObj();
}

void PrintPanel::Print_2DSigmaPlot_THN(panel& panobj, double left, double top, double width, double height, double resx,
                                       double resy, double sigma, std::string const& caption)
{
    PaperBox const box{left, top, width, height};
    begin(box, caption, true);
    plot_in(square_in(room_below_caption(box), usual_share), [&](PaperBox const& at) {
        panobj.D2Plot(surface(), resx, resy, sigma_bands, sigma, without_marks, at.left, at.top, at.width, at.height,
                      for_paper);
    });
}

} // namespace zendara
