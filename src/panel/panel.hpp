#pragma once

#include "zendara/support/boolean_word.hpp"
#include "zendara/support/color.hpp"
#include "zendara/support/host_array.hpp"
#include "zendara/support/object.hpp"
#include "zendara/support/value.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zendara
{

class Container;
class Surface;
class LineWidget;
class Widget;
class WidgetArray;

/// One panel: its size, its sites, what was computed from them, the interval colours, and the routines that plot it.
///
/// Lengths are millimetres from the panel's centre, x to the right and y upwards; values are in the measuring unit.
/// Sites are numbered from 1. The way of use: reset, SetNop, SetGridValue for each site, MaxMin, then any number of
/// Interpolation and plot calls.
class panel : public Object
{
public:
    /// The ten interval colours, col1 for the top interval, each a colour value in a Double.
    double col1 = QBColor(4);
    double col2 = QBColor(12);
    double col3 = QBColor(14);
    double col4 = QBColor(10);
    double col5 = QBColor(6);
    double col6 = QBColor(2);
    double col7 = QBColor(3);
    double col8 = QBColor(9);
    double col9 = QBColor(1);
    double col10 = QBColor(5);
    /// The colours above, inside and below the sigma band.
    double ColS1 = QBColor(4);
    double ColS2 = QBColor(2);
    double ColS3 = QBColor(1);
    /// Carried for hosts.
    BooleanWord Save;
    BooleanWord NewFile;
    /// True when some site's Z was zero or as good as zero.
    BooleanWord FW_NUll;
    /// True when some site's Z was negative.
    BooleanWord FW_Negativ;
    /// Carried for hosts.
    BooleanWord changeResx = true;
    std::string FileDT, filename, DirFileName;
    /// Arithmetic mean and sample standard deviation of Z.
    double mean = 0;
    double StdDev = 0;
    /// Largest and smallest Z.
    double maxi = 0;
    double mini = 0;
    /// Limits of the colour scale; maxi and mini until plot limits are set.
    double maximal = 0;
    double minimal = 0;
    /// Half the spread in percent of the middle of the scale limits: nothing, the Integer 0, or a Double.
    Value HiLo;
    /// The value below the scale that stands for "nothing here".
    double Low = 0;
    /// maximal - minimal.
    double range = 0;
    /// Sum of all Z.
    double Summe_Value = 0;
    /// Sites below the lower and above the upper limit of the last Points_OutCL.
    double NptLCL = 0;
    double NptUCL = 0;
    /// Control limits of the histogram.
    double vLcl = 0;
    double vUcl = 0;
    /// Carried for hosts.
    std::string Recognize;
    double SizeX = 0;
    double SizeY = 0;
    /// Width and height of the tested area, which the plots cover, and their halves.
    double TestSizeX = 0;
    double TestSizeY = 0;
    double HalfTestSizeX = 0;
    double HalfTestSizey = 0;
    std::string Meas_unit;
    /// Remark fields of the printed page.
    std::string Special, equip, panel, Operator, FAB, lot, meq;
    /// Highest class count of the histogram, and the peak of its bell curve.
    std::int32_t maxHauf = 0;
    double GaussMax = 0;

    // --- Record -----------------------------------------------------------------------------------------------------

    /// Takes all sites away. Statistics keep their old values until the next MaxMin.
    void reset();

    /// Sizes the record for `Number` sites, rounded half to even; all start at (0, 0) with Z 0.
    /// @throws Failure  SubscriptOutOfRange for a negative count, Overflow beyond 32 bits
    void SetNop(double Number);

    /// The number of sites that the record is sized for.
    double GetNop() const { return nop_; }

    /// Fills the next site; does nothing when all are filled. A magnitude below 1e-15 is stored as 0.
    /// @throws Failure  Overflow when the site number does not fit into 16 bits
    void SetGridValue(double x, double y, double Z);

    /// Fills site i; does nothing when i is above the number of sites.
    /// @throws Failure  SubscriptOutOfRange when i is below 1
    void SetGridValueD(std::int16_t i, double x, double y, double Z);

    /// Fills site i.
    /// @throws Failure  SubscriptOutOfRange when i is no site
    void OverwriteGridValue(std::int16_t i, double x, double y, double Z);

    /// @param gr  gr(1) gets x and gr(2) gets y of the site
    /// @return    Z of site `ind`
    /// @throws Failure  SubscriptOutOfRange when `ind` is no site or `gr` lacks an element
    double GetGridValue(std::int16_t ind, HostArray<double>& gr) const;

    // --- Statistics -------------------------------------------------------------------------------------------------

    /// Computes the statistics and, from 10 sites on, the table that Interpolation searches.
    /// @throws Failure  SubscriptOutOfRange without a site or with a site far outside the panel, Overflow of a sum
    void MaxMin();

    /// Moves the limits of the colour scale and what follows from them: range, HiLo, Low.
    void setMaximalMinial(double maxim, double minim);

    /// Standard normal density at the standardised value, not divided by the standard deviation.
    /// @throws Failure  DivisionByZero when StdDev is 0
    double Gauss(double hist_x) const;

    /// Sum over the sites of (Z - glmean) squared.
    /// @throws Failure  Overflow of the sum, or with more sites than a 16-bit counter takes
    double Globlal_Value_Sub_Mean(double& glmean) const;

    /// Counts the sites strictly below LCL into NptLCL and strictly above UCL into NptUCL.
    void Points_OutCL(double& LCL, double& UCL);

    // --- Interpolation ----------------------------------------------------------------------------------------------

    /// The value at any point: an inverse-distance-squared mean over four near sites. Never fails; 0 below 4 sites.
    double Interpolation(double Xa, double Ya) const;

    /// The same mean over the four nearest of all sites, found by a plain scan.
    /// @throws Failure  SubscriptOutOfRange below 4 sites and where no site lies near enough
    double Interpolation_Einfach(double Xa, double Ya) const;

    /// Interpolation at every (x[i], y), bit for bit the same, several points at once.
    /// @param x  the points of one raster row, neighbours near each other
    /// @param z  as many values
    void interpolate_row(std::span<double const> x, double y, std::span<double> z) const;

    // --- Plots ------------------------------------------------------------------------------------------------------

    /// Draws the filled map.
    /// @param resx, resy     cell size in millimetres; at least four cells to each side of the centre are drawn
    /// @param PlotStyle      5 for ten intervals, any other value for the three sigma bands
    /// @param SigmaRange     half width of the sigma band in standard deviations
    /// @param marksites      not 0: the sites are marked
    /// @param left, top, width, height  rectangle in twips on a printer or with ShowDispl 1, otherwise unused
    /// @param ShowDispl      1: the surface is neither cleared nor refreshed
    void D2Plot(Surface& Plot, double resx, double resy, std::int16_t PlotStyle, double SigmaRange,
                std::int16_t marksites, double left, double top, double width, double height, std::int16_t ShowDispl);

    /// Prints each site's value at its place, in the colour of its interval. Arguments as those of D2Plot.
    void D2Number(Surface& Plot, double left, double top, double width, double height, std::int16_t ShowDispl);

    /// Prints each site's running number, or a circle from 255 sites on. Arguments as those of D2Plot.
    void D2GridNumber(Surface& Plot, double left, double top, double width, double height, std::int16_t ShowDispl);

    /// Prints the running numbers in the surface's own colour. Arguments as those of D2Plot.
    void GridPosPlot(Surface& Plot, double left, double top, double width, double height, std::int16_t ShowDispl);

    /// Draws lines of equal value over the panel.
    /// @param distance      interval between levels in percent
    /// @param marked_sites  1 the sites, 2 the nodes of the raster, 3 no marks
    /// @param reso          0 low, 1 high, 2 automatic: nodes of the raster by the number of sites
    /// @param colored       0 the surface's own colour, 1 three colours, 2 ten colours
    /// @param left, top, width, height  rectangle in surface units with ShowDispl 1; a negative left keeps quiet where
    ///                                  no lines can be drawn
    /// @throws Failure  DivisionByZero for a tested area without height, Overflow for too many nodes
    void D2Contour(Surface& Plot, double distance, std::int16_t marked_sites, std::int16_t reso, std::int16_t colored,
                   double left, double top, double width, double height, std::int16_t ShowDispl);

    /// Draws the panel as a surface over a flat base, seen from a rotation and an inclination.
    /// @param resx, resy  cell size in millimetres; at least four cells to each side of the centre are drawn
    /// @param fwscal      height of the value scale, in millimetres of the projected panel
    /// @param alp2        rotation in degrees
    /// @param thet2       inclination in degrees: 90 straight down, 0 along the base
    /// @param PlotStyle   1 and 5 interval colours, 2 all lines, 3 white cells, 4 sigma colours
    /// @param SigmaRange  half width of the sigma band in standard deviations
    /// @param fprint      not 0 on paper
    void D3Plot(Surface& Plot, double resx, double resy, double fwscal, double alp2, double thet2,
                std::int16_t PlotStyle, double SigmaRange, std::int16_t fprint, double left, double top, double width,
                double height, std::int16_t ShowDispl);

    /// Stands a bar on each site, over a hatched plate. Arguments as those of D3Plot.
    /// @param bx, by  width and depth of a bar in millimetres
    /// @param fwscal  height per unit of the value, in millimetres
    void D2BeamPlot(Surface& Plot, double bx, double by, double fwscal, double alp2, double thet2, std::int16_t fprint,
                    double left, double top, double width, double height, std::int16_t ShowDispl);

    /// Draws the histogram of the values with a bell curve over it.
    /// @param PlotType    1 bars on the lower edge, 2 from the upper edge, 3 from the left edge, 4 from the right edge
    /// @param Plot        takes bars, curve and limits
    /// @param histPic     takes axes and texts; the same as Plot on paper
    /// @param x0, y0      place of Plot on histPic; like all by-reference numbers they come back converted to pixels
    /// @param breite, hoehe  width and height of Plot less 1
    /// @param stat_resol  number of bins
    /// @param laenge      length of a tick
    /// @param left, top   origin of the plot on Plot
    /// @param ShowDisp    1 for paper
    void Statistic(std::int16_t& PlotType, Surface& Plot, Surface& histPic, double& x0, double& y0, double& breite,
                   double& hoehe, double stat_resol, std::int16_t& laenge, double& left, double& top,
                   std::int16_t& ShowDisp);

    /// The crosswise form of Statistic.
    /// @param RightD  0 bars from the left edge, not 0 from the right edge
    void Statistic_Quer(std::int16_t& RightD, Surface& Plot, Surface& histPic, double& x0, double& y0, double& breite,
                        double& hoehe, double stat_resol, std::int16_t& laenge, double& left, double& top,
                        std::int16_t& ShowDisp);

    /// Finds where the line through two points enters and leaves the tested area.
    void D1Plot_calculate_ends_coord(double& x1, double& y1, double& x2, double& y2, double& xstart, double& ystart,
                                     double& xend, double& yend);

    /// Finds where the line through a point at an angle enters and leaves the tested area.
    /// @param phi  degrees; 0 runs upward, 90 from the right to the left
    void D1Plot_calculate_ends_angle(double& x1, double& y1, std::int16_t& phi, double& xstart, double& ystart,
                                     double& xend, double& yend);

    /// Draws the values along a line.
    /// @param resol     number of steps
    /// @param phi       angle in degrees, for the angle form
    /// @param D1Angle   not 0: the angle form through (x1, y1); 0: the line through both points
    /// @param DrawCol   colour of the curve
    /// @param left, top, width, height  rectangle in surface units with ShowDisp 1
    void D1Plot(Surface& Plot, std::int16_t& resol, std::int16_t& phi, std::int16_t& D1Angle, double& x1, double& y1,
                double& x2, double& y2, Color& DrawCol, double& left, double& top, double& width, double& height,
                std::int16_t& ShowDisp);

    /// Marks the sites on the line: with elements of `picgrid` on the screen, with circles on paper. Arguments as those
    /// of D1Plot.
    /// @param picgrid  small images in the surface; it grows with each call. Nothing on paper
    /// @throws Failure  ObjectNotSet on the screen without `picgrid`
    void D1Plot_MarkSites(Surface& Plot, WidgetArray* picgrid, std::int16_t& phi, std::int16_t& D1Angle, double& x1,
                          double& y1, double& x2, double& y2, Color& DrawCol, double& left, double& top, double& width,
                          double& height, std::int16_t& ShowDisp);

    /// Draws the grid of a line scan.
    void D1Plot_AdjustLines(Surface& Plot, double& left, double& top, double& width, double& height);

    /// Writes the five labels of each axis of a line scan.
    /// @param Plotopt  1 the angle form through (x1, y1), else the line through (x2, y2) and (x3, y3)
    void D1Plot_Show_lblXY(WidgetArray& lblX, WidgetArray& lblY, std::int16_t& Plotopt, std::int16_t& phi, double& x1,
                           double& y1, double& x2, double& y2, double x3, double y3);

    /// Shows where the line of a scan runs on a small picture of the panel.
    /// @param Iline  the line, in the picture's pixels
    /// @param plus   the mark on its start
    void draw_indicator(LineWidget& Iline, Widget& plus, std::int16_t& Plotopt, std::int16_t& phi, double& x1,
                        double& y1, double& x2, double& y2, double x3, double y3, Surface& Plot);

    /// Draws the small figure of the panel, turned and tilted as its plot is, with a red mark on its lower edge.
    /// @param FNLabel     gets the caption "Panel"; may be nothing
    /// @param alph, thet  rotation and inclination in degrees; 90 shows the panel flat
    void GridPosShow(Widget* FNLabel, Surface& FNPic, double alph, double thet) const;

    /// Fills the ten-interval legend: captions, tool tips and colours of the rows 1 to 10.
    void scale_colored(WidgetArray& scalCol, WidgetArray& scallab, std::int16_t dummy = 0) const;

    /// Fills the three-band legend into the rows 1, 3 and 5 and hides the others.
    void scale_sigma(WidgetArray& scalCol, WidgetArray& scallab, double SigmaRange) const;

    /// The number text of value read-outs; see format_label.
    std::string FormatLbl(double dummy) const;

    Interface const& host_interface() const override;

    /// The container that the panel works in: it shows messages, and hears of trapped failures. nullptr for none.
    Container* container = nullptr;

private:
    friend class BucketSearch; // the plain and the fast form of Interpolation
    friend class SitePlot;     // what the plot routines share
    friend class HistogramPlot;
    friend struct BucketTableProbe; // lets tests look at the table

    static double GaussNorm(double z); // standard normal density
    std::int16_t site_count() const;   // nop_ as a 16-bit counter takes it
    void store_site(std::int32_t site, double x, double y, double Z);
    bool BuildSiteBuckets();
    void lay_buckets_out(std::span<std::int16_t const> cell_i, std::span<std::int16_t const> cell_j);
    void copy_sites_beside_items();

    double nop_ = 0;
    double grid_next_ = 1;
    // One element per site; the index is 1-based at the interface.
    HostArray<double> grid_x_, grid_y_, grid_z_;

    // The part of the table that holds sites: cells outside it are empty.
    struct CellBox {
        std::int32_t first_i = 0, first_j = 0;
        std::int32_t columns = 0, rows = 0;
    };

    double bucket_pitch_ = 0;      // edge length of a cell in millimetres
    std::int16_t bucket_half_ = 0; // cell index of coordinate 0
    CellBox bucket_box_;
    // The cells' lists one behind the other, x cell by x cell: cell (i, j) holds the items from
    // bucket_start_[(i - first_i) * rows + j - first_j] up to the next start, as 0-based site numbers in ascending
    // order. Empty before the first MaxMin; kept by reset and SetNop.
    std::vector<std::uint32_t> bucket_start_;
    std::vector<std::int16_t> bucket_items_;
    // Position and value of each item beside it, as long as no site has changed since the table was built.
    std::vector<double> bucket_x_, bucket_y_, bucket_z_;
    bool bucket_copies_hold_ = false;
};

/// What Interpolation returns, worked out step by step as the rule is told, with no short cut. The oracle of tests.
double interpolation_step_by_step(panel const& record, double Xa, double Ya);

} // namespace zendara
