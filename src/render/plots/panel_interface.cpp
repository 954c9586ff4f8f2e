#include "zendara/panel/panel.hpp"
#include "zendara/render/surface/surface.hpp"
#include "zendara/render/surface/widget.hpp"
#include "zendara/support/interface.hpp"

namespace zendara
{

namespace
{

using P = panel;

std::vector<Member> data_members()
{
    constexpr auto interval_color = "Interval colour, col1 for the top interval.";
    constexpr auto sigma_color = "Colour above, inside or below the sigma band.";
    constexpr auto carried = "Carried for hosts.";
    constexpr auto remark = "Remark field of the printed page.";
    return {
        field<&P::col1>("col1", interval_color),
        field<&P::col2>("col2", interval_color),
        field<&P::col3>("col3", interval_color),
        field<&P::col4>("col4", interval_color),
        field<&P::col5>("col5", interval_color),
        field<&P::col6>("col6", interval_color),
        field<&P::col7>("col7", interval_color),
        field<&P::col8>("col8", interval_color),
        field<&P::col9>("col9", interval_color),
        field<&P::col10>("col10", interval_color),
        field<&P::ColS1>("ColS1", sigma_color),
        field<&P::ColS2>("ColS2", sigma_color),
        field<&P::ColS3>("ColS3", sigma_color),
        field<&P::Save>("Save", carried),
        field<&P::NewFile>("NewFile", carried),
        field<&P::FW_NUll>("FW_NUll", "Some value is zero or as good as zero."),
        field<&P::FW_Negativ>("FW_Negativ", "Some value is negative."),
        field<&P::changeResx>("changeResx", carried),
        field<&P::FileDT>("FileDT", carried),
        field<&P::filename>("filename", carried),
        field<&P::DirFileName>("DirFileName", carried),
        field<&P::mean>("mean", "Arithmetic mean of the values."),
        field<&P::StdDev>("StdDev", "Sample standard deviation of the values."),
        field<&P::maxi>("maxi", "Largest value."),
        field<&P::mini>("mini", "Smallest value."),
        field<&P::maximal>("maximal", "Upper limit of the colour scale."),
        field<&P::minimal>("minimal", "Lower limit of the colour scale."),
        field<&P::HiLo>("HiLo", "Spread of the scale limits in percent of their sum."),
        field<&P::Low>("Low", "Value below the scale that stands for nothing."),
        field<&P::range>("range", "Difference of the scale limits."),
        field<&P::Summe_Value>("Summe_Value", "Sum of the values."),
        field<&P::NptLCL>("NptLCL", "Sites below the lower control limit."),
        field<&P::NptUCL>("NptUCL", "Sites above the upper control limit."),
        field<&P::vLcl>("vLcl", "Lower control limit of the histogram."),
        field<&P::vUcl>("vUcl", "Upper control limit of the histogram."),
        field<&P::Recognize>("Recognize", carried),
        field<&P::SizeX>("SizeX", "Panel width in millimetres."),
        field<&P::SizeY>("SizeY", "Panel height in millimetres."),
        field<&P::TestSizeX>("TestSizeX", "Width of the tested area in millimetres."),
        field<&P::TestSizeY>("TestSizeY", "Height of the tested area in millimetres."),
        field<&P::HalfTestSizeX>("HalfTestSizeX", "Half the width of the tested area."),
        field<&P::HalfTestSizey>("HalfTestSizey", "Half the height of the tested area."),
        field<&P::Meas_unit>("Meas_unit", "Measuring unit as printed."),
        field<&P::Special>("Special", remark),
        field<&P::equip>("equip", remark),
        field<&P::panel>("panel", remark),
        field<&P::Operator>("Operator", remark),
        field<&P::FAB>("FAB", remark),
        field<&P::lot>("lot", remark),
        field<&P::meq>("meq", remark),
        field<&P::maxHauf>("maxHauf", "Highest class count of the histogram."),
        field<&P::GaussMax>("GaussMax", "Peak of the bell curve of the histogram."),
    };
}

std::vector<Member> record_methods()
{
    Arguments<3> const site = {by_value("x"), by_value("y"), by_value("Z")};
    Arguments<4> const numbered_site = {by_value("i"), by_value("x"), by_value("y"), by_value("Z")};
    return {
        method<&P::reset>("reset", "Takes all sites away."),
        method<&P::SetNop>("SetNop", "Sizes the record for a number of sites.", by_value("Number")),
        method<&P::GetNop>("GetNop", "Number of sites."),
        method<&P::SetGridValue>("SetGridValue", "Fills the next site.", site),
        method<&P::SetGridValueD>("SetGridValueD", "Fills a site.", numbered_site),
        method<&P::GetGridValue>("GetGridValue", "Value of a site; its place goes into gr(1) and gr(2).",
                                 by_value("ind"), by_reference("gr")),
        method<&P::OverwriteGridValue>("OverwriteGridValue", "Fills a site, checked.", numbered_site),
        method<&P::MaxMin>("MaxMin", "Computes the statistics."),
        method<&P::setMaximalMinial>("setMaximalMinial", "Moves the limits of the colour scale.", by_value("maxim"),
                                     by_value("minim")),
        method<&P::Gauss>("Gauss", "Normal density at a value.", by_value("hist_x")),
        method<&P::Globlal_Value_Sub_Mean>(
            "Globlal_Value_Sub_Mean", "Sum of squared distances of the values from a mean.", by_reference("glmean")),
        method<&P::Points_OutCL>("Points_OutCL", "Counts the sites beyond control limits.", by_reference("LCL"),
                                 by_reference("UCL")),
        method<&P::Interpolation>("Interpolation", "Value at any point.", by_value("Xa"), by_value("Ya")),
        method<&P::Interpolation_Einfach>("Interpolation_Einfach", "Value at any point, from a scan of all sites.",
                                          by_value("Xa"), by_value("Ya")),
    };
}

Arguments<12> histogram_arguments(std::string_view kind)
{
    return {by_reference(kind),     by_reference("Plot"),   by_reference("histPic"), by_reference("x0"),
            by_reference("y0"),     by_reference("breite"), by_reference("hoehe"),   by_value("stat_resol"),
            by_reference("laenge"), by_reference("left"),   by_reference("top"),     by_reference("ShowDisp")};
}

std::vector<Member> plot_methods()
{
    Arguments<6> const box = {by_reference("Plot"),  by_reference("left"),   by_reference("top"),
                              by_reference("width"), by_reference("height"), by_reference("ShowDispl")};
    return {
        method<&P::D2Plot>("D2Plot", "Draws the colour map or the sigma map.", by_reference("Plot"), by_value("resx"),
                           by_value("resy"), by_reference("PlotStyle"), by_value("SigmaRange"), by_value("marksites"),
                           by_reference("left"), by_reference("top"), by_reference("width"), by_reference("height"),
                           by_reference("ShowDispl")),
        method<&P::D2Number>("D2Number", "Prints the values at their places.", box),
        method<&P::D2GridNumber>("D2GridNumber", "Prints the site numbers at their places.", box),
        method<&P::GridPosPlot>("GridPosPlot", "Prints the site numbers in the surface's colour.", box),
        method<&P::D2Contour>("D2Contour", "Draws lines of equal value.", by_reference("Plot"), by_value("distance"),
                              by_value("marked_sites"), by_value("reso"), by_value("colored"), by_reference("left"),
                              by_reference("top"), by_reference("width"), by_reference("height"),
                              by_reference("ShowDispl")),
        method<&P::D3Plot>("D3Plot", "Draws the panel as a surface.", by_reference("Plot"), by_value("resx"),
                           by_value("resy"), by_value("fwscal"), by_value("alp2"), by_value("thet2"),
                           by_value("PlotStyle"), by_value("SigmaRange"), by_reference("fprint"), by_reference("left"),
                           by_reference("top"), by_reference("width"), by_reference("height"),
                           by_reference("ShowDispl")),
        method<&P::D2BeamPlot>("D2BeamPlot", "Stands a bar on each site.", by_reference("Plot"), by_value("bx"),
                               by_value("by"), by_value("fwscal"), by_value("alp2"), by_value("thet2"),
                               by_reference("fprint"), by_reference("left"), by_reference("top"), by_reference("width"),
                               by_reference("height"), by_reference("ShowDispl")),
        method<&P::GridPosShow>("GridPosShow", "Draws the small figure of the turned panel.", by_value("FNLabel"),
                                by_value("FNPic"), by_value("alph"), by_value("thet")),
        method<&P::scale_colored>("scale_colored", "Fills the ten-interval legend.", by_reference("scalCol"),
                                  by_reference("scallab"), optional(by_value("dummy"), std::int16_t{0})),
        method<&P::scale_sigma>("scale_sigma", "Fills the three-band legend.", by_value("scalCol"), by_value("scallab"),
                                by_value("SigmaRange")),
        method<&P::Statistic>("Statistic", "Draws the histogram.", histogram_arguments("PlotType")),
        method<&P::Statistic_Quer>("Statistic_Quer", "Draws the histogram crosswise.", histogram_arguments("RightD")),
        method<&P::FormatLbl>("FormatLbl", "Number text of value read-outs.", by_value("dummy")),
    };
}

std::vector<Member> scan_methods()
{
    // The line in either form, as the labels and the indicator get it.
    auto const either_form = by_references("Plotopt", "phi", "x1", "y1", "x2", "y2") + by_value("x3") + by_value("y3");
    return {
        method<&P::D1Plot_calculate_ends_coord>(
            "D1Plot_calculate_ends_coord", "Ends of the line through two points.",
            by_references("x1", "y1", "x2", "y2", "xstart", "ystart", "xend", "yend")),
        method<&P::D1Plot_calculate_ends_angle>("D1Plot_calculate_ends_angle",
                                                "Ends of the line through a point at an angle.",
                                                by_references("x1", "y1", "phi", "xstart", "ystart", "xend", "yend")),
        method<&P::D1Plot>("D1Plot", "Draws the values along a line.",
                           by_references("Plot", "resol", "phi", "D1Angle", "x1", "y1", "x2", "y2", "DrawCol", "left",
                                         "top", "width", "height", "ShowDisp")),
        method<&P::D1Plot_MarkSites>("D1Plot_MarkSites", "Marks the sites on a line.",
                                     by_references("Plot", "picgrid", "phi", "D1Angle", "x1", "y1", "x2", "y2",
                                                   "DrawCol", "left", "top", "width", "height", "ShowDisp")),
        method<&P::D1Plot_AdjustLines>("D1Plot_AdjustLines", "Draws the grid of a line scan.",
                                       by_references("Plot", "left", "top", "width", "height")),
        method<&P::D1Plot_Show_lblXY>("D1Plot_Show_lblXY", "Writes the axis labels of a line scan.",
                                      by_references("lblX", "lblY") + either_form),
        method<&P::draw_indicator>("draw_indicator", "Shows a line on a picture of the panel.",
                                   by_references("Iline", "plus") + either_form + by_reference("Plot")),
    };
}

} // namespace

Interface const& panel::host_interface() const
{
    static Interface const table{"panel", "The record of one panel and its plots.",
                                 join({data_members(), record_methods(), plot_methods(), scan_methods()})};
    return table;
}

} // namespace zendara
